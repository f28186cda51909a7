#include "designer/logic/Maniglie.h"

#include <algorithm>
#include <cstdint>

namespace zuvora {

namespace {

constexpr std::array<Maniglia, numeroManiglie> tabella{{
    {true, true, false, false, Qt::SizeFDiagCursor},
    {false, true, false, false, Qt::SizeVerCursor},
    {false, true, true, false, Qt::SizeBDiagCursor},
    {false, false, true, false, Qt::SizeHorCursor},
    {false, false, true, true, Qt::SizeFDiagCursor},
    {false, false, false, true, Qt::SizeVerCursor},
    {true, false, false, true, Qt::SizeBDiagCursor},
    {true, false, false, false, Qt::SizeHorCursor},
}};

struct Lato {
    int primo;
    int meta;
    int ultimo;
};

// Where handles stand along one side of the rectangle: at its first edge, half-way, and at its last edge. Those at the
// edges are drawn half a pixel towards the inside.
Lato lungo(int inizio, int misura, double twipsPerPixel) {
    const int meta = interoVicino(latoManiglia * twipsPerPixel) / 2;
    const int mezzoPixel = interoVicino(0.5 * twipsPerPixel);
    const std::int64_t da = inizio;
    const auto intero = [](std::int64_t v) { return interoVicino(static_cast<double>(v)); };
    return {intero(da - meta + mezzoPixel), intero(da + misura / 2 - meta), intero(da + misura - meta - mezzoPixel)};
}

int scegli(const Lato &lato, bool primo, bool ultimo) {
    if (primo)
        return lato.primo;
    return ultimo ? lato.ultimo : lato.meta;
}

} // namespace

const std::array<Maniglia, numeroManiglie> &maniglie() {
    return tabella;
}

std::array<PostoManiglia, numeroManiglie> postiManiglie(const CRect &rettangolo, double twipsPerPixel) {
    const Lato x = lungo(rettangolo.left(), rettangolo.Width(), twipsPerPixel);
    const Lato y = lungo(rettangolo.top(), rettangolo.Height(), twipsPerPixel);
    std::array<PostoManiglia, numeroManiglie> posti{};
    for (std::size_t i = 0; i < tabella.size(); ++i) {
        const Maniglia &m = tabella[i];
        posti[i] = {scegli(x, m.sinistra, m.destra), scegli(y, m.alto, m.basso)};
    }
    return posti;
}

int ampiezzaPresa(int lato) {
    return std::clamp(lato / 3, latoManiglia, latoPresa);
}

} // namespace zuvora
