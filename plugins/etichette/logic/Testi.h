#pragma once

#include "etichette/logic/Etichetta.h"

class QPainter;

namespace zuvora {

// A text laid out in a box, the same on every device: sizes are tenths of a millimetre, glyphs are never hinted.

// Height that the text needs at that width with its own letters.
int altezzaTesto(const QString &testo, const StileTesto &stile, int larghezza);
// Draws it into `misura` from the painter's origin, with smaller letters where the style asks for it; what doesn't fit
// is cut at the box's edge. True when all of it is there.
bool disegnaTesto(QPainter &pittore, const QString &testo, const StileTesto &stile, const QSize &misura);

} // namespace zuvora
