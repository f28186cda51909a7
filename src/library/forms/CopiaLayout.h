#pragma once

#include "shell/host/Form.h"

namespace zuvora {

// Overwrites one layout with another.
class CopiaLayout : public Form {
public:
    CopiaLayout(const Ambiente &ambiente, QWidget *padre);

private:
    void ImpostaSorgente();
    void ImpostaDestinazione();
    void copia();

    int LayoutSorgente = 1; // 1 to 10, 0 for the base
    int LayoutDestinazione = 1;
    GroupBox GroupBox1{this, "GroupBox1", "", {120, 360, 2295, 3495}};
    GroupBox GroupBox2{this, "GroupBox2", "", {3960, 1200, 1695, 3195}};
    GroupBox GroupBox3{this, "GroupBox3", "", {120, 3960, 2775, 1455}};
    Label Label1_0{&GroupBox1, "Label1(0)", "Copia Layout ", {240, 360, 1815, 255}};
    Label Label1_1{&GroupBox2, "Label1(1)", "sul Layout", {240, 240, 1335, 255}};
    Schiera<RadioButton> L0;
    Schiera<RadioButton> L1;
    GruppoRadio m_sorgente{L0};
    GruppoRadio m_destinazione{L1};
    Schiera<Label> Label2{&GroupBox3,
                          "Label2",
                          {{0, "Copia del Layout", {120, 240, 1455, 255}}, {1, "sul Layout", {120, 840, 1455, 255}}}};
    Schiera<Label> Label3{
        &GroupBox3, "Label3", {{0, "Layout 1", {120, 480, 2415, 255}}, {1, "Layout 1", {120, 1080, 2415, 255}}}};
    Schiera<Button> Btn{
        this, "Btn", {{1, "Copia &Layout", {3120, 4920, 1455, 330}}, {0, "C&hiudi", {4560, 4920, 1095, 330}}}};
};

} // namespace zuvora
