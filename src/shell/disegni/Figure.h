#pragma once

#include "shell/disegni/Disegni.h"
#include "shell/disegni/Tavolozza.h"

#include <span>
#include <string_view>

namespace zuvora {

// One shape of a drawing: path data on the drawing's grid, filled and then outlined with round ends and joins.
struct Strato {
    std::string_view percorso;
    Tinta riempimento = Tinta::Nessuna;
    Tinta tratto = Tinta::Nessuna;
    double spessore = 2;
};

struct Figura {
    Disegno nome;
    double larghezza;
    double altezza;
    std::span<const Strato> strati; // painted in order, later ones on top
};

std::span<const Figura> figureStrumenti();
std::span<const Figura> figureSegni();
std::span<const Figura> figureIllustrazioni();

// A name without a drawing gives a figure without layers.
const Figura &figura(Disegno d);

} // namespace zuvora
