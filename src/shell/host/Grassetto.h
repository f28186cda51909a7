#pragma once

#include <QString>

class QFont;
class QPainter;
class QRect;

namespace zuvora {

// A bold face whose letters aren't: the font system thickens them up to a certain size only, and in no other.
bool grassettoApparente(const QFont &font);

// The painter's own text, in its font and its pen's colour, but of one weight at every size. `opzioni` are alignments
// and wrapping as for QPainter::drawText.
void scriviTesto(QPainter &p, const QRect &r, int opzioni, const QString &testo);

} // namespace zuvora
