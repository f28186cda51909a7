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

// Where the handles of a rectangle stand. All in twips on the canvas; twips per pixel across and down.
std::array<PostoManiglia, numeroManiglie> postiManiglie(const CRect &rettangolo, double twipsPerPixelX = 15,
                                                        double twipsPerPixelY = 15);
// The handle at a point of the canvas (twips), -1 when there is none. Later handles lie on top.
int manigliaSotto(const CRect &rettangolo, double x, double y, double twipsPerPixelX = 15, double twipsPerPixelY = 15);

} // namespace zuvora
