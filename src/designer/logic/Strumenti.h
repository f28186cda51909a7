#pragma once

#include "designer/logic/DisplayLayout.h"
#include "designer/logic/ImmaginiQt.h"
#include "shell/disegni/Disegni.h"
#include "shell/logic/Messaggio.h"

#include <optional>
#include <span>

namespace zuvora {

// What a toolbox button does.
enum class Comando {
    PiazzaElemento, // the single element of the button
    PiazzaPannello,
    PiazzaDecorazione,
    ApriSfondo,
    ApriColoreSfondo,
    SecondoSchermo,
    SalvaPosizione,
    Salva,
    Chiudi
};

// A button of the toolbox: Btn(indice), places in twips within GroupBox2.
struct BottoneStrumenti {
    int indice;
    QStringView suggerimento; // tool tip
    QStringView didascalia;   // empty but for Btn(1)
    int left;
    int top;
    int width;
    Disegno disegno;
    Comando comando;
    TipoElemento tipo = TipoElemento::Tela; // for PiazzaElemento
    int indiceElemento = 0;
};
inline constexpr int altezzaBottone = 585;

std::span<const BottoneStrumenti> bottoniStrumenti();
// The button of an index, null where the indices have a gap.
const BottoneStrumenti *bottoneStrumenti(int indice);

// How many of the elements that the button places are on the canvas; 0 for the other buttons.
int piazzati(const DisplayLayout &layout, const BottoneStrumenti &bottone);

// Puts a single element that isn't visible at the top left corner and shows it. False when it was visible already.
bool piazzaElemento(DisplayLayout &layout, TipoElemento tipo, int indice = 0);
// The same for the first free panel: its index, or nothing when all eight are used.
std::optional<int> piazzaPannello(DisplayLayout &layout);
// The same for the first free decoration, at 1905 by 1305 twips: its index 1 to 25.
std::optional<int> piazzaDecorazione(DisplayLayout &layout);
Messaggio messaggioPannelliFiniti();
Messaggio messaggioDecorazioniFinite();

// What the decoration form gives back: picture, plane and path of Image1(i); an empty path clears the picture. False,
// and nothing changed, when the file isn't a picture that can be loaded.
bool applicaDecorazione(DisplayLayout &layout, int i, const QString &percorso, bool secondoPiano,
                        CaricatoreImmagini &immagini);
// What the background form gives back: the canvas picture and Label2; an empty path empties both. False, and nothing
// changed, when the file isn't a picture that can be loaded.
bool applicaSfondo(DisplayLayout &layout, const QString &percorso, CaricatoreImmagini &immagini);

} // namespace zuvora
