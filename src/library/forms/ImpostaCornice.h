#pragma once

#include "designer/forms/ApritoriTela.h"
#include "shell/host/AnteprimaImmagine.h"
#include "shell/host/Form.h"
#include "shell/host/Grid.h"
#include "shell/store/Data.h"

#include <optional>

namespace zuvora {

// Picks a picture of the catalogue for one decoration of a layout.
class ImpostaCornice : public Form {
public:
    // `i` is the decoration's number, 1 to 25.
    ImpostaCornice(const Ambiente &ambiente, int i, QWidget *padre);
    // What was applied; nothing when the form was closed without a choice.
    const std::optional<SceltaDecorazione> &applicata() const { return m_applicata; }

private:
    void scegliCategoria(int indice);
    void mostraRiga();
    void applica();

    Data Data1;
    int m_categoria = 0;
    QString DecorazioneScelta; // full path of the last row clicked
    std::optional<SceltaDecorazione> m_applicata;

    Label Label1{this, "Label1", "", {120, 0, 5655, 615}};
    GroupBox Gruppo{this, "GroupBox1", "Categoria Decorazioni", {120, 960, 3855, 735}};
    Schiera<RadioButton> RB1{&Gruppo,
                             "RB1",
                             {{0, " Cornici", {120, 360, 1095, 285}},
                              {1, " Banner", {1320, 360, 1095, 285}},
                              {2, " Elementi", {2520, 360, 1215, 285}}}};
    GruppoRadio m_gruppo{RB1};
    Label Label3{this, "Label3", "Immagini Decorazioni", {4080, 840, 2415, 255}};
    Grid grid{this, "grid", {4080, 1080, 4740, 5220}, {{"File", "File", 0}}};
    AnteprimaImmagine Image1{this, "Image1", {120, 2040, 3855, 2895}, ambiente().percorsi};
    CheckBox SecondoPiano{this, "SecondoPiano", " Porta in secondo piano", {840, 5520, 2295, 375}};
    Schiera<Button> Btn{
        this, "Btn", {{0, "&Applica", {840, 6000, 1215, 330}}, {1, "C&hiudi", {2040, 6000, 1215, 330}}}};
    Label Label2{this, "Label2", "", {120, 6960, 8775, 255}}; // the picked path, below the inner area
};

// Shows the form over its opener and gives what was applied to decoration `i`.
std::optional<SceltaDecorazione> apriImpostaCornice(const Ambiente &ambiente, int i, QWidget *padre);

} // namespace zuvora
