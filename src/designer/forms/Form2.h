#pragma once

#include "designer/logic/Classi.h"
#include "shell/host/ColorPicker.h"
#include "shell/host/Form.h"

#include <functional>

namespace zuvora {

// Style of a class of elements: the heading says which. What is applied shows on the canvas at once; nothing is stored.
class Form2 : public Form {
public:
    // For the class of the element `posto`. `applicata` runs after each change of the layout.
    Form2(const Ambiente &ambiente, DisplayLayout &layout, int posto, std::function<void()> applicata, QWidget *padre);

protected:
    void attivata() override;

private:
    void disponi(const PaginaClasse &pagina);
    void riempi(const CampiForm2 &campi);
    CampiForm2 campi() const;
    void scegliFont();
    void applica();

    DisplayLayout &m_layout;
    Classe m_classe;
    std::function<void()> m_applicata;

    Label Label1{this, "Label1", "", {120, 0, 5655, 615}};
    GroupBox box1{this, "box1", "", {120, 720, 5655, 2895}};
    Schiera<Label> Label2{&box1,
                          "Label2",
                          {{0, "Font", {120, 240, 615, 255}},
                           {1, "Colore Sfondo", {120, 1440, 1215, 255}},
                           {2, "Colore Testo", {120, 1800, 1215, 255}},
                           {3, "Allineamento", {120, 2160, 1215, 255}},
                           {6, "Testo", {120, 2500, 1215, 255}}}};
    Schiera<Edit> FE1;
    Button PB1_0{&box1, "PB1(0)", "...", {4800, 240, 495, 285}};
    Schiera<CheckBox> CB1{
        &box1, "CB1", {{0, "Grassetto", {1320, 600, 1160, 255}}, {1, "Italico", {2520, 600, 1335, 255}}}};
    CheckBox CB2{&box1, "CB2", " Sfondo Trasparente", {1320, 1080, 1815, 255}};
    ColorPicker CP1;
    ColorPicker CP2;
    Schiera<RadioButton> RB1{&box1,
                             "RB1",
                             {{0, "A Sinistra", {1320, 2160, 1095, 255}},
                              {1, "Centrato", {2520, 2160, 975, 255}},
                              {2, "A Destra", {3600, 2160, 1335, 255}}}};
    GruppoRadio allineamento{RB1};
    Edit Testo999{&box1, "Testo999", {1320, 2520, 4095, 255}};
    Label Label4{this, "Label4", "", {120, 3825, 975, 255}}; // never shown
    Schiera<Button> Btn{
        this, "Btn", {{0, "&Applica", {3120, 3825, 1215, 330}}, {1, "C&hiudi", {4320, 3825, 1215, 330}}}};
};

} // namespace zuvora
