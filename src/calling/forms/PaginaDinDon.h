#pragma once

#include "shell/host/Grid.h"
#include "shell/host/Pagina.h"
#include "shell/store/Data.h"

namespace zuvora {

// The page of the call sounds: the list, the one in use, whether it is used.
class PaginaDinDon : public Pagina {
public:
    explicit PaginaDinDon(const Apertura &apertura);

private:
    void riempi() override;
    QWidget *fuocoIniziale() override { return &gridDD; }
    bool vuoto() { return gridDD.Rows() == 0; }
    void nuovo();
    void cancella();
    void predefinito();
    void prova();
    void salvaUso();

    Data Data3;
    Grid gridDD{this, "gridDD", {120, 240, 5295, 3900}, {{"Percorso del suono di DinDon", "DinDon", 0}}};
    Schiera<Button> btnDD{this,
                          "btnDD",
                          {{3, "Nuovo", {240, 4320, 735, 330}},
                           {2, "Cancella", {960, 4320, 975, 330}},
                           {1, "Predefinito !", {1920, 4320, 1455, 330}},
                           {4, "Prova", {3360, 4320, 735, 330}}}};
    CheckBox CheckBox1{this, "CheckBox1", " Utilizza", {4320, 4360, 1095, 255}};
};

} // namespace zuvora
