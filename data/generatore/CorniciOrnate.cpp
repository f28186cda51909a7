#include "CorniciForme.h"

#include "Tracciato.h"

#include <QLinearGradient>

#include <array>

namespace zuvora::disegna {

namespace {

constexpr QRgb bianco = 0xffffffff;
constexpr QRgb nero = 0xff000000;

// A rectangle whose corners are hollowed by a quarter of a circle.
QPainterPath incavato(const QRectF &r, double raggio) {
    const double d = 2 * raggio;
    QPainterPath esito;
    esito.moveTo(r.left() + raggio, r.top());
    esito.arcTo(QRectF{r.right() - raggio, r.top() - raggio, d, d}, 180, 90);
    esito.arcTo(QRectF{r.right() - raggio, r.bottom() - raggio, d, d}, 90, 90);
    esito.arcTo(QRectF{r.left() - raggio, r.bottom() - raggio, d, d}, 0, 90);
    esito.arcTo(QRectF{r.left() - raggio, r.top() - raggio, d, d}, -90, 90);
    esito.closeSubpath();
    return esito;
}

void rombo(QPainter &p, QPointF centro, double mezzo, const QColor &colore) {
    p.fillPath(stella(centro, 4, mezzo, mezzo * 0.45), colore);
}

// The four mitred sides of a picture frame, top, right, bottom, left.
std::array<QPolygonF, 4> lati(const QRectF &f, double s) {
    const QRectF d = rientrato(f, s);
    return {QPolygonF{{f.topLeft(), f.topRight(), d.topRight(), d.topLeft()}},
            QPolygonF{{f.topRight(), f.bottomRight(), d.bottomRight(), d.topRight()}},
            QPolygonF{{f.bottomRight(), f.bottomLeft(), d.bottomLeft(), d.bottomRight()}},
            QPolygonF{{f.bottomLeft(), f.topLeft(), d.topLeft(), d.bottomLeft()}}};
}

QBrush piatto(const Tono &t, const QRectF &r) {
    return sfumato(r, misto(t.base, bianco, 0.14), misto(t.base, t.scuro, 0.35));
}

} // namespace

void vetro(QPainter &p, const Tono &t) {
    const QRectF fuori = rientrato(foglioCornice, 4);
    const QPainterPath banda = anello(fuori, 22, 36);
    QLinearGradient luce{fuori.topLeft(), fuori.bottomRight()};
    luce.setColorAt(0.0, velato(misto(t.base, bianco, 0.55).rgb(), 0.66));
    luce.setColorAt(0.5, velato(t.base, 0.42));
    luce.setColorAt(1.0, velato(t.scuro, 0.60));
    p.fillPath(banda, luce);
    p.fillPath(anello(fuori, 22, 2), velato(bianco, 0.85));
    p.fillPath(anello(rientrato(fuori, 34), 6, 2), velato(bianco, 0.75));
}

void foto(QPainter &p, const Tono &t) {
    const QRectF fuori{16, 12, 568, 422};
    const QRectF dentro{44, 40, 512, 322};
    QPainterPath banda = arrotondato(fuori, 4);
    banda.addPath(arrotondato(dentro, 2));
    ombra(p, banda, {0, 4}, 12, velato(nero, 0.5));
    p.fillPath(banda, sfumato(fuori, misto(t.chiaro, bianco, 0.5), misto(t.chiaro, t.scuro, 0.06)));
    p.strokePath(arrotondato(dentro, 2), QPen{velato(nero, 0.22), 2});
}

void ornamentale(QPainter &p, const Tono &t) {
    const QRectF fuori = rientrato(foglioCornice, 8);
    p.strokePath(incavato(fuori, 44), QPen{QColor{t.base}, 8, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    p.strokePath(incavato(rientrato(fuori, 13), 42),
                 QPen{QColor{t.base}, 2.5, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    const QRectF perni = rientrato(foglioCornice, 19);
    for (const QPointF &angolo : {perni.topLeft(), perni.topRight(), perni.bottomLeft(), perni.bottomRight()})
        rombo(p, angolo, 19, t.base);
    const QRectF mezzi = rientrato(fuori, 6);
    const QPointF c = mezzi.center();
    for (const QPointF &mezzo : {QPointF{c.x(), mezzi.top()}, QPointF{c.x(), mezzi.bottom()}}) {
        rombo(p, mezzo, 13, t.scuro);
        rombo(p, mezzo + QPointF{-26, 0}, 8, t.base);
        rombo(p, mezzo + QPointF{26, 0}, 8, t.base);
    }
}

void conTitolo(QPainter &p, const Tono &t) {
    constexpr double bordo = 62; // the tab ends within the body's upper line
    const QRectF linguetta{6, 4, 300, 90};
    p.fillPath(anello(QRectF{6, 56, 588, 390}, 16, 8), QColor{t.base});
    p.save();
    p.setClipRect(QRectF{0, 0, foglioCornice.width(), bordo});
    p.fillPath(arrotondato(linguetta, 16),
               sfumato(QRectF{6, 4, 300, bordo - 4}, misto(t.base, bianco, 0.16), QColor{t.base}));
    p.restore();
    p.fillRect(QRectF{6, bordo - 1, 8, 20}, QColor{t.base}); // squares the corner under the tab
}

void intestata(QPainter &p, const Tono &t) {
    const QRectF fuori = rientrato(foglioCornice, 4);
    const QRectF testa{fuori.left(), fuori.top(), fuori.width(), 68};
    p.save();
    p.setClipPath(arrotondato(fuori, 18));
    p.fillRect(testa, piatto(t, testa));
    p.fillRect(QRectF{fuori.left(), testa.bottom(), fuori.width(), 4}, velato(t.base, 0.35));
    p.restore();
    p.fillPath(anello(fuori, 18, 6), QColor{t.base});
}

void quadro(QPainter &p, const Tono &t) {
    const QRectF fuori = rientrato(foglioCornice, 8);
    constexpr double spessore = 44;
    QPainterPath banda;
    banda.addRect(fuori);
    banda.addRect(rientrato(fuori, spessore));
    ombra(p, banda, {0, 3}, 8, velato(nero, 0.4));
    constexpr std::array<double, 4> luci{0.26, 0.02, -0.30, 0.12}; // light falls from above left
    const auto tinta = [&t](double luce) {
        return luce >= 0 ? misto(t.base, bianco, luce) : misto(t.base, t.scuro, -luce * 2);
    };
    const auto lato = lati(fuori, spessore);
    const auto gola = lati(rientrato(fuori, 14), 10);
    const auto labbro = lati(rientrato(fuori, spessore - 8), 8);
    p.setRenderHint(QPainter::Antialiasing, false); // sides meet without a seam
    for (std::size_t i = 0; i < lato.size(); ++i) {
        p.setBrush(tinta(luci[i]));
        p.drawPolygon(lato[i]);
        p.setBrush(tinta(-luci[i] * 0.9 - 0.05));
        p.drawPolygon(gola[i]);
        p.setBrush(misto(t.chiaro, t.scuro, 0.25 - luci[i] * 0.6));
        p.drawPolygon(labbro[i]);
    }
    p.setRenderHint(QPainter::Antialiasing, true);
}

void luminosa(QPainter &p, const Tono &t) {
    const QPainterPath linea = anello(rientrato(foglioCornice, 24), 26, 7);
    for (int giro = 0; giro < 2; ++giro)
        ombra(p, anello(rientrato(foglioCornice, 18), 30, 19), {0, 0}, 14, velato(t.base, 0.85));
    p.fillPath(linea, misto(t.chiaro, bianco, 0.7));
}

void schermo(QPainter &p, const Tono &t) {
    const QRectF fuori = rientrato(foglioCornice, 4);
    const QRectF dentro{fuori.left() + 20, fuori.top() + 20, fuori.width() - 40, fuori.height() - 56};
    QPainterPath banda = arrotondato(fuori, 20);
    banda.addPath(arrotondato(dentro, 4));
    p.fillPath(banda, piatto(t, fuori));
    p.fillPath(anello(fuori, 20, 2), velato(bianco, 0.35));
    p.strokePath(arrotondato(dentro, 4), QPen{velato(nero, 0.5), 2});
    p.fillPath(tracciato(u"O 300 428 5"), QColor{tono(Tinta::Azzurro).base});
    p.fillPath(tracciato(u"R 250 425 32 6 3 R 318 425 32 6 3"), velato(bianco, 0.18));
}

} // namespace zuvora::disegna
