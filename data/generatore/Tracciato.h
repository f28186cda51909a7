// Shapes written as text, so that a symbol is a row of data.
#pragma once

#include <QPainterPath>
#include <QStringView>

namespace zuvora::disegna {

// Words apart by blanks, each command followed by its numbers:
//   M x y        start of a line            L x y           straight to
//   C x1 y1 x2 y2 x y  cubic curve to       Q x1 y1 x y     quadratic curve to
//   Z            close                      O x y r         circle
//   R x y w h r  rectangle, rounded by r    A x y r da per  arc in degrees, counter-clockwise from the right
// Shapes that overlap count as one. Throws std::invalid_argument on any other text: a fault of the table.
QPainterPath tracciato(QStringView testo);

} // namespace zuvora::disegna
