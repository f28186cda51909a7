// The pictures by category, in catalogue order.
#pragma once

#include "Pennello.h"

namespace zuvora::disegna {

Disegni cornici();  // 600 x 450, transparent in the middle
Disegni banner();   // 1200 x 200; side bars 200 x 900
Disegni elementi(); // 256 x 256
Disegni sfondi();   // 1920 x 1080 and 1080 x 1920, opaque

} // namespace zuvora::disegna
