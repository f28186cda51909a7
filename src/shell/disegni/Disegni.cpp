#include "shell/disegni/Disegni.h"

#include "shell/disegni/Figure.h"
#include "shell/disegni/Percorso.h"

#include <QIconEngine>
#include <QPainter>

#include <algorithm>

namespace zuvora {
namespace {

QColor tinta(Tinta t, Aspetto aspetto) {
    const QColor c = tavolozza::colore(t);
    if (aspetto == Aspetto::Normale || !c.isValid())
        return c;
    constexpr double forza = 0.5; // dark parts become mid grey, white stays white
    const int grigio = 255 - static_cast<int>((255 - qGray(c.rgb())) * forza);
    return {grigio, grigio, grigio};
}

QPen penna(const Strato &s, Aspetto aspetto) {
    if (s.tratto == Tinta::Nessuna)
        return Qt::NoPen;
    return {tinta(s.tratto, aspetto), s.spessore, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QBrush pennello(const Strato &s, Aspetto aspetto) {
    return s.riempimento == Tinta::Nessuna ? QBrush{Qt::NoBrush} : QBrush{tinta(s.riempimento, aspetto)};
}

class MotoreIcona final : public QIconEngine {
public:
    explicit MotoreIcona(Disegno d) : disegno(d) {}

    void paint(QPainter *p, const QRect &area, QIcon::Mode modo, QIcon::State) override {
        dipingi(*p, disegno, QRectF{area}, modo == QIcon::Disabled ? Aspetto::Spento : Aspetto::Normale);
    }

    QPixmap pixmap(const QSize &misura, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap tela{misura};
        tela.fill(Qt::transparent);
        QPainter p{&tela};
        if (p.isActive())
            paint(&p, {QPoint{}, misura}, modo, stato);
        return tela;
    }

    QIconEngine *clone() const override { return new MotoreIcona{disegno}; }
    QString key() const override { return QStringLiteral("zuvora"); }

private:
    Disegno disegno;
};

} // namespace

QSizeF misura(Disegno d) {
    const Figura &f = figura(d);
    return {f.larghezza, f.altezza};
}

void dipingi(QPainter &p, Disegno d, const QRectF &area, Aspetto aspetto) {
    if (!(area.width() > 0 && area.height() > 0))
        return;
    const Figura &f = figura(d);
    const double scala = std::min(area.width() / f.larghezza, area.height() / f.altezza);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(area.center());
    p.scale(scala, scala);
    p.translate(-f.larghezza / 2, -f.altezza / 2);
    for (const Strato &s : f.strati) {
        p.setPen(penna(s, aspetto));
        p.setBrush(pennello(s, aspetto));
        p.drawPath(leggiPercorso(s.percorso));
    }
    p.restore();
}

QIcon icona(Disegno d) {
    return QIcon{new MotoreIcona{d}};
}

QImage immagineRaster(Disegno d, QSize logica, qreal dpr) {
    QImage tela{logica * dpr, QImage::Format_ARGB32_Premultiplied};
    if (tela.isNull())
        return tela;
    tela.setDevicePixelRatio(dpr);
    tela.fill(Qt::transparent);
    QPainter p{&tela};
    dipingi(p, d, {QPointF{}, QSizeF{logica}});
    return tela;
}

QPixmap immagine(Disegno d, QSize logica, qreal dpr) {
    return QPixmap::fromImage(immagineRaster(d, logica, dpr));
}

} // namespace zuvora
