#pragma once

#include <QRect>
#include <QSize>
#include <algorithm>
#include <cmath>

namespace zuvora {

// All places of the program are twips (1/1440 inch), 15 to the pixel on every screen; only the host converts.
inline constexpr int twipsPerPixel = 15;

constexpr int pixelDa(int twips) {
    return twips >= 0 ? (twips + twipsPerPixel / 2) / twipsPerPixel : -((-twips + twipsPerPixel / 2) / twipsPerPixel);
}
// The same for places that come from data: what lies far outside every screen is cut short, for a painter's own range
// is not much larger.
inline int pixelVicino(double twips) {
    constexpr double lontano = 15000; // pixels
    return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel, -lontano, lontano)));
}
constexpr int twipsDa(int pixel) {
    return pixel * twipsPerPixel;
}

struct Misura {
    int width = 0; // twips
    int height = 0;
};

// Place of a control inside its form or frame, twips.
struct Posto {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// Edges are rounded, not sizes: controls that touch in twips touch on the screen.
constexpr QRect pixelDa(const Posto &p) {
    const int x = pixelDa(p.left);
    const int y = pixelDa(p.top);
    return {x, y, pixelDa(p.left + p.width) - x, pixelDa(p.top + p.height) - y};
}
constexpr QSize pixelDa(const Misura &m) {
    return {pixelDa(m.width), pixelDa(m.height)};
}

} // namespace zuvora
