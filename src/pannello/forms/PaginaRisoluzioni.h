#pragma once

#include "shell/host/Pagina.h"
#include "shell/host/PictureBox.h"

namespace zuvora {

// The resolution of the call display, and what monitors this machine has.
class PaginaRisoluzioni : public Pagina {
public:
    explicit PaginaRisoluzioni(const Apertura &apertura);

private:
    void riempi() override;
    void scegli(int indice);

    std::function<void(int)> m_scelta;
    int m_risoluzione;
    Label Label2_0{this,
                   "Label2(0)",
                   "Scegliere quali Risoluzione Video adoperare per lo schermo di FrontEnd della sala d'attesa",
                   {360, 240, 4815, 495}};
    Schiera<RadioButton> RB1;
    GruppoRadio m_scelte{RB1};
    PictureBox Image2{this, "Image2", {600, 1920, 1800, 1500}, Disegno::Schermo1};
    PictureBox Image3{this, "Image3", {2760, 1920, 1800, 1500}, Disegno::Schermo2};
    Schiera<Label> Label7{this,
                          "Label7",
                          {{0, "Nr di monitor presenti nel sistema :", {840, 3720, 2655, 255}},
                           {3, "Posizione", {4080, 3720, 1095, 255}},
                           {1, "Risoluzione monitor 1 :", {840, 4080, 1815, 255}},
                           {2, "Risoluzione monitor 2 :", {840, 4340, 1815, 255}}}};
    Label QMonitor{this, "QMonitor", "", {3480, 3720, 495, 255}};
    Label RisM1{this, "RisM1", "", {2640, 4080, 1335, 255}};
    Label L1{this, "L1", "", {3960, 4080, 1215, 255}};
    Label RisM2{this, "RisM2", "", {2640, 4320, 1335, 255}};
    Label L2{this, "L2", "", {3960, 4320, 1215, 255}};
};

} // namespace zuvora
