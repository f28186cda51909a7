// The backgrounds' soft shapes, one motif a mood.
#pragma once

#include "Pennello.h"

namespace zuvora::disegna {

// The colours of one mood.
struct Atmosfera {
    QStringView nome;
    QRgb alto;    // the ground, top
    QRgb basso;   // the ground, bottom
    QRgb testata; // header and footer bands
    QRgb accento;
    void (*motivo)(QPainter &, const QRectF &, const Atmosfera &);
};

void fasce(QPainter &p, const QRectF &r, const Atmosfera &a);
void onde(QPainter &p, const QRectF &r, const Atmosfera &a);
void foglie(QPainter &p, const QRectF &r, const Atmosfera &a);
void dune(QPainter &p, const QRectF &r, const Atmosfera &a);

} // namespace zuvora::disegna
