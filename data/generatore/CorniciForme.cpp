#include "CorniciForme.h"

#include "Tracciato.h"

#include <array>

namespace zuvora::disegna {

namespace {

constexpr QRgb bianco = 0xffffffff;

QPainterPath smusso(const QRectF &r, double taglio) {
    QPainterPath esito;
    esito.addPolygon(QPolygonF{{{r.left() + taglio, r.top()},
                                {r.right() - taglio, r.top()},
                                {r.right(), r.top() + taglio},
                                {r.right(), r.bottom() - taglio},
                                {r.right() - taglio, r.bottom()},
                                {r.left() + taglio, r.bottom()},
                                {r.left(), r.bottom() - taglio},
                                {r.left(), r.top() + taglio}}});
    esito.closeSubpath();
    return esito;
}

QBrush pieno(const Tono &t) {
    return sfumato(foglioCornice, misto(t.base, bianco, 0.18), misto(t.base, t.scuro, 0.45));
}

} // namespace

void sottile(QPainter &p, const Tono &t) {
    p.fillPath(anello(rientrato(foglioCornice, 4), 8, 8), QColor{t.base});
}

void doppia(QPainter &p, const Tono &t) {
    p.fillPath(anello(rientrato(foglioCornice, 4), 4, 10), QColor{t.base});
    p.fillPath(anello(rientrato(foglioCornice, 21), 2, 3.5), QColor{t.base});
}

void arrotondata(QPainter &p, const Tono &t) {
    const QRectF fuori = rientrato(foglioCornice, 4);
    p.fillPath(anello(fuori, 46, 20), pieno(t));
    p.fillPath(anello(rientrato(fuori, 20), 26, 3), velato(bianco, 0.9));
}

void ombreggiata(QPainter &p, const Tono &t) {
    const QPainterPath banda = anello(rientrato(foglioCornice, 18), 20, 16);
    ombra(p, banda, {0, 5}, 12, velato(0xff000000, 0.45));
    p.fillPath(banda, sfumato(foglioCornice, misto(t.base, bianco, 0.12), t.base));
    p.strokePath(arrotondato(rientrato(foglioCornice, 34), 4), QPen{QColor{t.scuro}, 1.5});
}

void angoli(QPainter &p, const Tono &t) {
    const QPainterPath squadra = tracciato(u"M 12 122 L 12 12 L 152 12");
    const QPainterPath filo = tracciato(u"M 28 84 L 28 28 L 114 28");
    for (const auto &[sx, sy] : std::array<std::pair<int, int>, 4>{{{1, 1}, {-1, 1}, {1, -1}, {-1, -1}}}) {
        QTransform specchio;
        specchio.translate(sx < 0 ? foglioCornice.width() : 0, sy < 0 ? foglioCornice.height() : 0);
        specchio.scale(sx, sy);
        p.strokePath(specchio.map(squadra), QPen{QColor{t.base}, 14, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin});
        p.strokePath(specchio.map(filo), QPen{velato(t.base, 0.55), 4, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin});
    }
}

void tratteggiata(QPainter &p, const Tono &t) {
    QPen penna{QColor{t.base}, 8, Qt::CustomDashLine, Qt::FlatCap};
    penna.setDashPattern({3.4, 1.9});
    p.strokePath(arrotondato(rientrato(foglioCornice, 10), 26), penna);
}

void puntinata(QPainter &p, const Tono &t) {
    QPen penna{QColor{t.base}, 10, Qt::CustomDashLine, Qt::RoundCap};
    penna.setDashPattern({0.01, 2.03});
    p.strokePath(arrotondato(rientrato(foglioCornice, 10), 30), penna);
}

void smussata(QPainter &p, const Tono &t) {
    QPainterPath banda = smusso(rientrato(foglioCornice, 4), 44);
    banda.addPath(smusso(rientrato(foglioCornice, 18), 38));
    p.fillPath(banda, pieno(t));
    p.strokePath(smusso(rientrato(foglioCornice, 26), 35), QPen{QColor{t.base}, 2.5});
}

void righe(QPainter &p, const Tono &t) {
    const double larghezza = foglioCornice.width();
    const double altezza = foglioCornice.height();
    for (const QRectF &barra : {QRectF{0, 6, larghezza, 14}, QRectF{0, altezza - 20, larghezza, 14}})
        p.fillRect(barra, QColor{t.base});
    for (const QRectF &filo : {QRectF{0, 26, larghezza, 3}, QRectF{0, altezza - 29, larghezza, 3}})
        p.fillRect(filo, velato(t.base, 0.5));
}

void laterale(QPainter &p, const Tono &t) {
    const QRectF fuori = rientrato(foglioCornice, 4);
    const QPainterPath filo = anello(fuori, 16, 4);
    p.fillPath(filo, QColor{t.base});
    p.save();
    p.setClipPath(arrotondato(fuori, 16));
    p.fillRect(QRectF{fuori.left(), fuori.top(), 26, fuori.height()}, pieno(t));
    p.restore();
}

} // namespace zuvora::disegna
