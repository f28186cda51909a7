#pragma once

#include "designer/logic/CRect.h"

#include <Qt>
#include <array>

namespace zuvora {

inline constexpr int numeroManiglie = 8;
inline constexpr int latoManiglia = 5; // pixels

// A size handle: which edges it moves, how the mouse pointer looks over it.
struct Maniglia {
    bool sinistra;
    bool alto;
    bool destra;
    bool basso;
    Qt::CursorShape cursore;
};

// In the order of their indices: top left, top centre, and so on clockwise.
const std::array<Maniglia, numeroManiglie> &maniglie();

struct PostoManiglia {
    int left; // twips
    int top;

    friend bool operator==(const PostoManiglia &, const PostoManiglia &) = default;
};

// Where the handles of a rectangle stand. All in twips on the canvas.
std::array<PostoManiglia, numeroManiglie> postiManiglie(const CRect &rettangolo, double twipsPerPixel);

// How far a handle reacts to the mouse, pixels: beyond its own side, but never over more than a third of a side of the
// rectangle, so that a small element can still be taken itself.
inline constexpr int latoPresa = 11;
int ampiezzaPresa(int lato);

} // namespace zuvora
