#pragma once

#include "designer/logic/DisplayLayout.h"

#include <QString>
#include <Qt>
#include <span>

namespace zuvora {

// What the designer does at a press of the mouse.
enum class AzionePressione {
    RipristinaDidascalia, // the form caption goes back to DidascaliaBase
    TestoDecorazione,     // the form caption names the decoration
    Seleziona,            // ElementoSelezionato becomes the element's name
    Trascina,             // begin the outline drag
    TrascinaPannello,     // begin the live drag of the label's panel
    Lampo,                // disable the element for one pass of the event loop
    ApriForm2,            // open Form2 on the element's class
    ApriDecorazione,      // open ImpostaCornice on the decoration
    ApriAnteprimaTG,      // open AnteprimaTGOnline
    MenuChiudi,           // pop up M2
    ScorriSchermata,      // the form follows the mouse over a screen smaller than itself
    NascondiManiglie
};

// The actions of a press, in order; none for a press that does nothing. TipoElemento::Tela stands for the bare canvas.
std::span<const AzionePressione> azioniPressione(TipoElemento tipo, Qt::MouseButton bottone, bool layoutBase);

// The form caption: "Impostazione Modulo : " and the table, and the same naming decoration i.
QString didascaliaForm(QStringView tabella);
QString testoStato(const QString &didascaliaBase, int decorazione);

// Delete: parks the element of that name, invisible, below the screen. False when the name is none of an element that
// can be removed (or empty). A Text1 label removes its panel.
bool parcheggia(DisplayLayout &layout, QStringView elementoSelezionato);

} // namespace zuvora
