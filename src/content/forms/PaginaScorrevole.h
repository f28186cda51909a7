#pragma once

#include "content/logic/TestoScorrevole.h"
#include "shell/host/Edit.h"
#include "shell/host/Pagina.h"

#include <QTimer>

namespace zuvora {

// The ticker text and its trial.
class PaginaScorrevole : public Pagina {
public:
    explicit PaginaScorrevole(const Apertura &apertura);

protected:
    void riempi() override;

private:
    void prova();
    void scorri();
    void salva();

    TestoScorrevole m_mobile;
    QTimer Timer1;
    Label Titolo{this, "Label1", "Inserire testo", {120, 210, 5175, 255}};
    EditMultilinea testo{this, "testo", {120, 480, 5175, 3015}};
    Edit Text1{this, "Text1", {120, 3600, 5175, 495}};
    Button PushButton3{this, "PushButton3", "Prova testo scorrevole", {120, 4200, 2055, 345}};
    Button salva6{this, "salva6", "Salva Dati", {3960, 4200, 1215, 345}};
};

} // namespace zuvora
