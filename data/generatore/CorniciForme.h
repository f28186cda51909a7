// The frame styles. Each paints on a transparent sheet and leaves its middle untouched.
#pragma once

#include "Pennello.h"

namespace zuvora::disegna {

inline constexpr QSize misuraCornice{600, 450};
inline constexpr QRectF foglioCornice{0, 0, 600, 450};

constexpr QRectF rientrato(const QRectF &r, double quanto) {
    return {r.x() + quanto, r.y() + quanto, r.width() - 2 * quanto, r.height() - 2 * quanto};
}

// Plain ones.
void sottile(QPainter &p, const Tono &t);
void doppia(QPainter &p, const Tono &t);
void arrotondata(QPainter &p, const Tono &t);
void ombreggiata(QPainter &p, const Tono &t);
void angoli(QPainter &p, const Tono &t);
void tratteggiata(QPainter &p, const Tono &t);
void puntinata(QPainter &p, const Tono &t);
void smussata(QPainter &p, const Tono &t);
void righe(QPainter &p, const Tono &t);
void laterale(QPainter &p, const Tono &t);

// With materials, tabs and ornaments.
void vetro(QPainter &p, const Tono &t);
void foto(QPainter &p, const Tono &t);
void ornamentale(QPainter &p, const Tono &t);
void conTitolo(QPainter &p, const Tono &t);
void intestata(QPainter &p, const Tono &t);
void quadro(QPainter &p, const Tono &t);
void luminosa(QPainter &p, const Tono &t);
void schermo(QPainter &p, const Tono &t);

} // namespace zuvora::disegna
