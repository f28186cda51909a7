#include "SfondiMotivi.h"

#include "Tracciato.h"

#include <array>

namespace zuvora::disegna {

namespace {

constexpr QRgb bianco = 0xffffffff;

struct Macchia {
    QStringView tracciato; // on a sheet of 100 by 100, stretched over the rectangle
    double velo;
    bool chiara; // white, else the accent colour
};

void macchie(QPainter &p, const QRectF &r, const Atmosfera &a, std::initializer_list<Macchia> quali) {
    QTransform posa;
    posa.translate(r.left(), r.top());
    posa.scale(r.width() / 100, r.height() / 100);
    for (const Macchia &m : quali)
        p.fillPath(posa.map(tracciato(m.tracciato)), velato(m.chiara ? bianco : a.accento, m.velo));
}

} // namespace

void fasce(QPainter &p, const QRectF &r, const Atmosfera &a) {
    macchie(p, r, a,
            {{u"M 0 0 L 34 0 L 0 62 Z", 0.30, true},
             {u"M 34 0 L 58 0 L 4 100 L 0 100 L 0 62 Z", 0.16, true},
             {u"M 100 28 L 100 100 L 61 100 Z", 0.10, false},
             {u"M 100 58 L 100 100 L 77 100 Z", 0.10, false}});
}

void onde(QPainter &p, const QRectF &r, const Atmosfera &a) {
    macchie(p, r, a,
            {{u"M 0 0 L 100 0 L 100 22 C 76 44 46 6 0 34 Z", 0.28, true},
             {u"M 0 62 C 26 44 62 84 100 54 L 100 100 L 0 100 Z", 0.10, false},
             {u"M 0 76 C 34 58 60 96 100 68 L 100 100 L 0 100 Z", 0.12, false},
             {u"M 0 90 C 30 76 66 104 100 84 L 100 100 L 0 100 Z", 0.14, false}});
}

void foglie(QPainter &p, const QRectF &r, const Atmosfera &a) {
    macchie(p, r, a,
            {{u"M 0 0 L 46 0 C 44 32 22 52 0 50 Z", 0.26, true},
             {u"M 100 100 L 100 42 C 74 46 58 72 60 100 Z", 0.11, false},
             {u"M 100 100 L 100 64 C 84 66 74 84 74 100 Z", 0.12, false},
             {u"M 0 100 C 0 82 12 70 28 68 C 30 84 20 98 4 100 Z", 0.09, false},
             {u"M 100 0 C 100 16 90 28 74 30 C 72 14 82 2 96 0 Z", 0.22, true}});
}

void dune(QPainter &p, const QRectF &r, const Atmosfera &a) {
    macchie(p, r, a,
            {{u"M 0 0 L 100 0 L 100 30 C 84 42 66 36 50 26 C 32 16 14 16 0 26 Z", 0.24, true},
             {u"M 0 58 C 22 48 40 60 58 66 C 76 72 88 60 100 52 L 100 100 L 0 100 Z", 0.12, false},
             {u"M 0 72 C 18 82 38 66 60 76 C 78 84 90 78 100 70 L 100 100 L 0 100 Z", 0.13, false},
             {u"M 0 92 C 24 78 50 96 100 86 L 100 100 L 0 100 Z", 0.14, false}});
}

} // namespace zuvora::disegna
