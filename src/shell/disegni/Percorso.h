#pragma once

#include <QPainterPath>

#include <string_view>

namespace zuvora {

// Reads path data in the notation of SVG: M L H V C Q A Z, absolute and relative, coordinates of a command may repeat.
// Malformed data gives an empty path, never half of one. Coordinates beyond +-100000 count as malformed.
QPainterPath leggiPercorso(std::string_view dati);

} // namespace zuvora
