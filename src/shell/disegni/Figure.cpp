#include "shell/disegni/Figure.h"

#include <algorithm>

namespace zuvora {

const Figura &figura(Disegno d) {
    for (const auto gruppo : {figureStrumenti(), figureSegni(), figureIllustrazioni()}) {
        const auto trovata = std::ranges::find(gruppo, d, &Figura::nome);
        if (trovata != gruppo.end())
            return *trovata;
    }
    static constexpr Figura vuota{Disegno{}, 1, 1, {}};
    return vuota;
}

} // namespace zuvora
