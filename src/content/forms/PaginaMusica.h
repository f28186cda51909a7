#pragma once

#include "shell/host/Edit.h"
#include "shell/host/Pagina.h"

namespace zuvora {

// The folder of music that the call display plays.
class PaginaMusica : public Pagina {
public:
    explicit PaginaMusica(const Apertura &apertura);

protected:
    void riempi() override;

private:
    void ScegliCartella();
    void salva();

    Label Titolo{this, "Label1", "CARTELLA MP3", {120, 330, 5295, 255}};
    Edit FE1_1{this, "FE1(1)", {120, 600, 5295, 975}};
    Button CBT_2{this, "CBT(2)", "Seleziona Percorso", {2640, 3480, 1575, 345}};
    Button Salva5{this, "Salva5", "Salva Dati", {4200, 3480, 1095, 345}};
};

} // namespace zuvora
