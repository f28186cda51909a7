#include "etichette/logic/Gesti.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace zuvora {
namespace {

bool tiraSinistra(Presa p) {
    return p == Presa::AltoSinistra || p == Presa::Sinistra || p == Presa::BassoSinistra;
}
bool tiraDestra(Presa p) {
    return p == Presa::AltoDestra || p == Presa::Destra || p == Presa::BassoDestra;
}
bool tiraAlto(Presa p) {
    return p == Presa::AltoSinistra || p == Presa::Alto || p == Presa::AltoDestra;
}
bool tiraBasso(Presa p) {
    return p == Presa::BassoSinistra || p == Presa::Basso || p == Presa::BassoDestra;
}

std::array<int, 3> righe(int inizio, int lungo) {
    return {inizio, inizio + lungo / 2, inizio + lungo};
}

struct Vicino {
    int correzione = 0;
    QList<int> guide;
};

// One axis: the nearest line of the others to one of the moved rectangle's own three.
Vicino sulleRighe(const std::array<int, 3> &proprie, const QList<int> &altre, int vicino) {
    Vicino migliore;
    int distanza = vicino + 1;
    for (const int propria : proprie)
        for (const int altra : altre)
            if (std::abs(altra - propria) < distanza) {
                distanza = std::abs(altra - propria);
                migliore = {altra - propria, {altra}};
            }
    return migliore;
}

int allaGriglia(int dove, int griglia) {
    return griglia > 0 ? static_cast<int>(std::lround(double(dove) / griglia)) * griglia - dove : 0;
}

} // namespace

Presa presaIn(const QRect &area, const QPoint &punto, int tolleranza) {
    const QPoint fine(area.x() + area.width(), area.y() + area.height());
    if (punto.x() < area.x() - tolleranza || punto.x() > fine.x() + tolleranza || punto.y() < area.y() - tolleranza ||
        punto.y() > fine.y() + tolleranza)
        return Presa::Nessuna;
    const auto vicino = [&](int a, int b) { return std::abs(a - b) <= tolleranza; };
    // On each axis the edge that is near, or the middle; where an object is thin, its far edge.
    const int x = vicino(punto.x(), fine.x()) ? 1 : vicino(punto.x(), area.x()) ? -1 : 0;
    const int y = vicino(punto.y(), fine.y()) ? 1 : vicino(punto.y(), area.y()) ? -1 : 0;
    static constexpr Presa tavola[3][3] = {{Presa::AltoSinistra, Presa::Alto, Presa::AltoDestra},
                                           {Presa::Sinistra, Presa::Corpo, Presa::Destra},
                                           {Presa::BassoSinistra, Presa::Basso, Presa::BassoDestra}};
    return tavola[y + 1][x + 1];
}

QRect tira(const QRect &area, Presa presa, const QPoint &di) {
    if (presa == Presa::Corpo)
        return area.translated(di);
    int x = area.x();
    int y = area.y();
    int fineX = x + area.width();
    int fineY = y + area.height();
    if (tiraSinistra(presa))
        x = std::min(x + di.x(), fineX - 1);
    if (tiraDestra(presa))
        fineX = std::max(fineX + di.x(), x + 1);
    if (tiraAlto(presa))
        y = std::min(y + di.y(), fineY - 1);
    if (tiraBasso(presa))
        fineY = std::max(fineY + di.y(), y + 1);
    return {QPoint(x, y), QSize(fineX - x, fineY - y)};
}

Aggancio aggancia(const QRect &mosso, const QList<QRect> &altri, const QRect &carta, int griglia, int vicino) {
    QList<int> xs;
    QList<int> ys;
    for (const QRect &r : altri + QList<QRect>{carta}) {
        for (const int x : righe(r.x(), r.width()))
            xs << x;
        for (const int y : righe(r.y(), r.height()))
            ys << y;
    }
    const Vicino x = sulleRighe(righe(mosso.x(), mosso.width()), xs, vicino);
    const Vicino y = sulleRighe(righe(mosso.y(), mosso.height()), ys, vicino);
    return {QPoint(x.guide.isEmpty() ? allaGriglia(mosso.x(), griglia) : x.correzione,
                   y.guide.isEmpty() ? allaGriglia(mosso.y(), griglia) : y.correzione),
            x.guide, y.guide};
}

} // namespace zuvora
