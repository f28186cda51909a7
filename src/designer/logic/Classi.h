#pragma once

#include "designer/logic/DisplayLayout.h"

#include <array>
#include <optional>
#include <span>

namespace zuvora {

// The classes of elements that share a style: what Form2 edits.
enum class Classe {
    Numeri,
    Postazione,
    Servizio,
    Titolo,
    SottoTitolo,
    Data,
    Orario,
    TestoScorrevole,
    Pannello,
    ColoreSfondoSchermata
};

// One heading of Form2.
struct PaginaClasse {
    Classe classe;
    QStringView titolo;                        // Label1
    int altezza;                               // form height in twips, 0 = as stored
    std::span<const QStringView> disabilitati; // control names
    int indiceTesto;                           // IndiceTesto, the Text9 it edits; -1 for none

    // Title and subtitle: Label2(6) and Testo999 are enabled and filled.
    bool haTesto() const { return indiceTesto == 0 || indiceTesto == 1; }
};

const PaginaClasse &paginaClasse(Classe classe);
// The class of an element, by which a right click opens Form2; nothing for elements without a style.
std::optional<Classe> classeDi(const LayoutElement &e);

// The fields of Form2.
struct CampiForm2 {
    std::array<QString, 4> FE1{QString(), QString(), QStringLiteral("0"),
                               QStringLiteral("0")}; // font, size, back, text
    bool grassetto = false;                          // CB1(0)
    bool corsivo = false;                            // CB1(1)
    int RB1 = -1;                                    // radio button, -1 none
    bool trasparente = false;                        // CB2
    QString Testo999;                                // title and subtitle
    double Label4 = 0;                               // left of the clicked label, twips
};

// Radio button index <-> alignment: "A Sinistra", "Centrato", "A Destra".
Allineamento allineamentoDa(int RB1);
int bottoneDi(Allineamento a);

// The fields as the opener fills them from the element clicked (Tela for the screen colour).
CampiForm2 riempiCampi(const DisplayLayout &layout, int posto);
// "&Applica": gives the style to all elements of the class. False, and nothing changed, when a needed field is empty or
// no valid number.
bool applicaClasse(DisplayLayout &layout, Classe classe, const CampiForm2 &campi);

} // namespace zuvora
