#pragma once

#include "etichette/logic/Etichetta.h"

namespace zuvora {

// The mouse on the canvas, without the canvas: where things are grasped, how far they go.

enum class Presa {
    Nessuna,
    Corpo,
    AltoSinistra,
    Alto,
    AltoDestra,
    Destra,
    BassoDestra,
    Basso,
    BassoSinistra,
    Sinistra
};

// What a point grasps of a selected object; `tolleranza` in tenths of a millimetre.
Presa presaIn(const QRect &area, const QPoint &punto, int tolleranza);
// The rectangle after pulling the grip by `di`; never smaller than one tenth, never turned inside out.
QRect tira(const QRect &area, Presa presa, const QPoint &di);

struct Aggancio {
    QPoint correzione;    // what to add to the moved rectangle
    QList<int> verticali; // guide lines met, x
    QList<int> orizzontali;
};
// Pulls a moved rectangle to edges and centres of the others and of the paper within `vicino`; where nothing is near,
// to the grid (0: none).
Aggancio aggancia(const QRect &mosso, const QList<QRect> &altri, const QRect &carta, int griglia, int vicino);

} // namespace zuvora
