#pragma once

#include "pannello/logic/Configurazione.h"
#include "shell/host/Pagina.h"
#include "shell/host/PictureBox.h"

namespace zuvora {

// The screen on which the designer opens.
class PaginaPosizione : public Pagina {
public:
    explicit PaginaPosizione(const Apertura &apertura);

private:
    void riempi() override;
    void scegli(Schermo schermo);
    void segna(Schermo schermo);

    PictureBox Image5{this, "Image5", {60, 840, 5040, 2250}, Disegno::DueSchermi};
    LabelLink Label1_4{this, "Label1(4)", "1", {1020, 1470, 375, 420}};
    LabelLink Label1_3{this, "Label1(3)", "2", {3780, 1470, 375, 420}};
    PictureBox Image4{this, "Image4", {840, 240, 735, 600}, Disegno::Marcatore};
    Label Label2_4{this, "Label2(4)", "Porta la schermata impostazioni sul :", {240, 3120, 4815, 255}};
    Schiera<Button> PosSchermo{
        this,
        "PosSchermo",
        {{0, "Primo Schermo", {480, 3720, 1455, 345}}, {1, "Secondo Schermo", {3120, 3720, 1455, 345}}}};
    Label Avviso{this, "Avviso", "", {240, 4200, 5055, 495}};
};

} // namespace zuvora
