// Landscapes: photos and the film of the sample content.
#pragma once

#include "Pennello.h"

namespace zuvora::disegna {

inline constexpr QSize misuraFoto{1280, 720};
inline constexpr QSize misuraFilm{640, 360};
inline constexpr int fotogrammi = 200; // 8 seconds at 25 a second

Disegni foto(); // opaque

// A frame of the film: clouds, waves and a sail pass by, and at the end all is where it was at the beginning.
QImage fotogramma(int numero);

} // namespace zuvora::disegna
