// Pictograms on a square of 100 by 100.
#pragma once

#include "Pennello.h"

#include <span>

namespace zuvora::disegna {

// How a layer of a symbol is laid on: with ink, or as a cut through what lies below.
enum class Mano { Pieno, Tratto, Taglio, TaglioTratto };

struct Strato {
    Mano mano;
    double penna; // width of a line; unused for surfaces
    QStringView tracciato;
};

struct Simbolo {
    QStringView nome;
    std::span<const Strato> strati;
};

std::span<const Simbolo> simboliServizi();
std::span<const Simbolo> simboliSalute();

// Throws std::invalid_argument for a name in neither table.
const Simbolo &simbolo(QStringView nome);

void disegnaSimbolo(QPainter &p, QStringView nome, const QRectF &dove, const QColor &inchiostro);

} // namespace zuvora::disegna
