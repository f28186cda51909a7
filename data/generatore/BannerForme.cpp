#include "BannerForme.h"

#include "Tracciato.h"

#include <QLinearGradient>

namespace zuvora::disegna {

namespace {

constexpr QRgb bianco = 0xffffffff;
constexpr QRgb nero = 0xff000000;
constexpr QRectF foglio{0, 0, 1200, 200};

QBrush piatto(const Tono &t, const QRectF &r = foglio) {
    return sfumato(r, misto(t.base, bianco, 0.12), misto(t.base, t.scuro, 0.40));
}

void conOmbra(QPainter &p, const QPainterPath &forma, const QBrush &tinta) {
    ombra(p, forma, {0, 5}, 10, velato(nero, 0.35));
    p.fillPath(forma, tinta);
}

} // namespace

void fascia(QPainter &p, const Tono &t) {
    const QRectF corpo{0, 14, 1200, 172};
    p.fillRect(corpo, piatto(t, corpo));
    p.fillRect(QRectF{0, 14, 1200, 8}, QColor{t.scuro});
    p.fillRect(QRectF{0, 178, 1200, 8}, QColor{t.scuro});
    p.fillRect(QRectF{0, 22, 1200, 2}, velato(bianco, 0.45));
}

void onda(QPainter &p, const Tono &t) {
    p.fillPath(tracciato(u"M 0 0 L 1200 0 L 1200 120 C 900 215 620 95 360 150 C 220 180 90 190 0 165 Z"),
               velato(t.base, 0.45));
    p.fillPath(tracciato(u"M 0 0 L 1200 0 L 1200 96 C 920 190 640 70 380 128 C 230 160 90 172 0 140 Z"), piatto(t));
    p.fillPath(tracciato(u"M 560 0 C 720 70 940 70 1200 20 L 1200 0 Z"), velato(bianco, 0.12));
}

void linguetta(QPainter &p, const Tono &t) {
    const QPainterPath forma = tracciato(u"M 20 200 C 70 200 70 12 140 12 L 1060 12 C 1130 12 1130 200 1180 200 Z");
    ombra(p, forma, {0, 0}, 8, velato(nero, 0.30));
    p.fillPath(forma, piatto(t));
    p.strokePath(tracciato(u"M 140 20 L 1060 20"), QPen{velato(bianco, 0.5), 3, Qt::SolidLine, Qt::RoundCap});
}

void obliqua(QPainter &p, const Tono &t) {
    p.fillPath(tracciato(u"M 90 20 L 1190 20 L 1110 180 L 10 180 Z"), piatto(t));
    p.fillPath(tracciato(u"M 90 20 L 130 20 L 50 180 L 10 180 Z M 150 20 L 166 20 L 86 180 L 70 180 Z"),
               velato(bianco, 0.35));
    p.fillPath(tracciato(u"M 1150 20 L 1190 20 L 1110 180 L 1070 180 Z M 1114 20 L 1130 20 L 1050 180 L 1034 180 Z"),
               velato(t.scuro, 0.75));
}

void aFreccia(QPainter &p, const Tono &t) {
    p.fillPath(tracciato(u"M 1000 16 L 1090 16 L 1180 100 L 1090 184 L 1000 184 L 1090 100 Z"), velato(t.base, 0.45));
    p.fillPath(tracciato(u"M 20 16 L 970 16 L 1060 100 L 970 184 L 20 184 L 90 100 Z"), piatto(t));
}

void fasciaVetro(QPainter &p, const Tono &t) {
    const QRectF corpo{12, 16, 1176, 168};
    QLinearGradient luce{corpo.topLeft(), corpo.bottomLeft()};
    luce.setColorAt(0.0, velato(misto(t.base, bianco, 0.45).rgb(), 0.72));
    luce.setColorAt(0.5, velato(t.base, 0.50));
    luce.setColorAt(0.52, velato(t.base, 0.60));
    luce.setColorAt(1.0, velato(t.scuro, 0.68));
    p.fillPath(arrotondato(corpo, 28), luce);
    p.fillPath(anello(corpo, 28, 2.5), velato(bianco, 0.8));
}

void divisorio(QPainter &p, const Tono &t) {
    QLinearGradient filo{0, 0, 1200, 0};
    for (const auto &[dove, velo] : {std::pair{0.0, 0.0}, {0.18, 1.0}, {0.82, 1.0}, {1.0, 0.0}})
        filo.setColorAt(dove, velato(t.base, velo));
    p.fillRect(QRectF{0, 96, 540, 8}, filo);
    p.fillRect(QRectF{660, 96, 540, 8}, filo);
    p.fillRect(QRectF{80, 114, 440, 3}, filo);
    p.fillRect(QRectF{680, 114, 440, 3}, filo);
    p.fillPath(stella({600, 100}, 4, 42, 20), QColor{t.base});
    p.fillPath(tracciato(u"O 600 100 9"), QColor{bianco});
    p.fillPath(tracciato(u"O 553 100 6 O 647 100 6"), QColor{t.scuro});
}

void nastro(QPainter &p, const Tono &t) {
    // Tails behind, the dark folds between, then the band.
    p.fillPath(
        tracciato(
            u"M 10 60 L 190 60 L 190 184 L 10 184 L 62 122 Z M 1190 60 L 1010 60 L 1010 184 L 1190 184 L 1138 122 Z"),
        QBrush{misto(t.base, t.scuro, 0.55)});
    p.fillPath(tracciato(u"M 120 152 L 190 152 L 190 184 Z M 1080 152 L 1010 152 L 1010 184 Z"),
               misto(t.scuro, nero, 0.35));
    const QRectF banda{120, 18, 960, 134};
    ombra(p, arrotondato(banda.adjusted(0, 0, 0, -4), 0), {0, 4}, 8, velato(nero, 0.25));
    p.fillRect(banda, piatto(t, banda));
    for (const double y : {28.0, 139.0})
        p.fillRect(QRectF{120, y, 960, 3}, velato(bianco, 0.5));
}

void etichetta(QPainter &p, const Tono &t) {
    const QRectF corpo{14, 14, 1172, 164};
    conOmbra(p, arrotondato(corpo, 82), piatto(t, corpo));
    p.fillPath(tracciato(u"O 96 96 70"), QColor{bianco});
}

void barraLaterale(QPainter &p, const Tono &t) {
    QLinearGradient g{0, 0, 0, 900};
    g.setColorAt(0, misto(t.base, bianco, 0.15));
    g.setColorAt(1, misto(t.base, t.scuro, 0.6));
    p.fillRect(QRectF{0, 0, 170, 900}, g);
    p.fillRect(QRectF{178, 0, 8, 900}, QColor{t.base});
    p.fillRect(QRectF{192, 0, 3, 900}, velato(t.base, 0.5));
    p.save();
    p.setClipRect(QRectF{0, 0, 170, 900});
    p.fillPath(tracciato(u"M 0 620 C 60 560 130 640 170 560 L 170 900 L 0 900 Z"), velato(t.scuro, 0.35));
    p.fillPath(tracciato(u"M 0 720 C 70 640 110 740 170 660 L 170 900 L 0 900 Z"), velato(t.scuro, 0.35));
    p.restore();
}

} // namespace zuvora::disegna
