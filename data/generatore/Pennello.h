// What every picture is painted with.
#pragma once

#include "Tavolozza.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <functional>
#include <vector>

namespace zuvora::disegna {

// One picture of the catalogue: file name with extension, and who paints it.
struct Disegno {
    QString file;
    std::function<QImage()> dipingi; // none: the file is there already and stays
};
using Disegni = std::vector<Disegno>;

// A transparent picture of that size in pixels, painted smoothly by `mano`.
QImage dipinto(QSize misura, const std::function<void(QPainter &)> &mano);

// The band between a rounded rectangle and the same one narrowed by `spessore` pixels.
QPainterPath anello(const QRectF &fuori, double raggio, double spessore);
QPainterPath arrotondato(const QRectF &r, double raggio);

// Regular star, or cogged disc, with `punte` points.
QPainterPath stella(QPointF centro, int punte, double fuori, double dentro);

// Letters as a shape, centred on the rectangle (or at its left edge), at most as wide as it. `altezza` is the font's
// size in pixels.
QPainterPath scritta(const QString &testo, const QRectF &r, double altezza, Qt::Alignment dove = Qt::AlignHCenter);

// Top to bottom in the rectangle.
QBrush sfumato(const QRectF &r, const QColor &alto, const QColor &basso);

// The shape's blurred shadow; it fades over about `raggio` pixels.
void ombra(QPainter &p, const QPainterPath &forma, QPointF scarto, int raggio, const QColor &colore);

// False when the font all captions are set in is missing on this machine.
bool carattereDisponibile();

} // namespace zuvora::disegna
