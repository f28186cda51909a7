#include "Pennello.h"

#include <QFont>
#include <QFontDatabase>
#include <QLinearGradient>

#include <array>
#include <cmath>
#include <numbers>

namespace zuvora::disegna {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString carattere = u"Liberation Sans"_s;

// One pass of a running mean over a row or column of premultiplied pixels.
void media(const QRgb *da, QRgb *verso, qsizetype quanti, qsizetype passo, int raggio) {
    const int finestra = 2 * raggio + 1;
    std::array<int, 4> somma{};
    const auto aggiungi = [&](qsizetype indice, int segno) {
        if (indice < 0 || indice >= quanti)
            return;
        const QRgb punto = da[indice * passo];
        somma[0] += segno * qAlpha(punto);
        somma[1] += segno * qRed(punto);
        somma[2] += segno * qGreen(punto);
        somma[3] += segno * qBlue(punto);
    };
    for (qsizetype i = -raggio; i < raggio; ++i)
        aggiungi(i, 1);
    for (qsizetype i = 0; i < quanti; ++i) {
        aggiungi(i + raggio, 1);
        verso[i * passo] = qRgba(somma[1] / finestra, somma[2] / finestra, somma[3] / finestra, somma[0] / finestra);
        aggiungi(i - raggio, -1);
    }
}

// Three running means are close to a Gaussian.
void sfoca(QImage &immagine, int raggio) {
    QImage altra = immagine.copy();
    const qsizetype larghezza = immagine.width();
    const qsizetype altezza = immagine.height();
    for (int giro = 0; giro < 3; ++giro) {
        auto *prima = reinterpret_cast<QRgb *>(immagine.bits());
        auto *dopo = reinterpret_cast<QRgb *>(altra.bits());
        for (qsizetype y = 0; y < altezza; ++y)
            media(prima + y * larghezza, dopo + y * larghezza, larghezza, 1, raggio);
        for (qsizetype x = 0; x < larghezza; ++x)
            media(dopo + x, prima + x, altezza, larghezza, raggio);
    }
}

} // namespace

QImage dipinto(QSize misura, const std::function<void(QPainter &)> &mano) {
    QImage immagine{misura, QImage::Format_ARGB32_Premultiplied};
    immagine.fill(Qt::transparent);
    QPainter p{&immagine};
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.setPen(Qt::NoPen);
    mano(p);
    return immagine;
}

QPainterPath arrotondato(const QRectF &r, double raggio) {
    QPainterPath esito;
    esito.addRoundedRect(r, raggio, raggio);
    return esito;
}

QPainterPath anello(const QRectF &fuori, double raggio, double spessore) {
    QPainterPath esito = arrotondato(fuori, raggio);
    esito.addPath(
        arrotondato(fuori.adjusted(spessore, spessore, -spessore, -spessore), std::max(0.0, raggio - spessore)));
    return esito;
}

QPainterPath stella(QPointF centro, int punte, double fuori, double dentro) {
    QPolygonF punti;
    for (int i = 0; i < 2 * punte; ++i) {
        const double angolo = std::numbers::pi * i / punte;
        const double raggio = i % 2 == 0 ? fuori : dentro;
        punti << centro + QPointF{raggio * std::sin(angolo), -raggio * std::cos(angolo)};
    }
    QPainterPath esito;
    esito.addPolygon(punti);
    esito.closeSubpath();
    return esito;
}

QPainterPath scritta(const QString &testo, const QRectF &r, double altezza, Qt::Alignment dove) {
    QFont font{carattere};
    font.setPixelSize(qRound(altezza));
    font.setBold(true);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath lettere;
    lettere.addText(0, 0, font, testo);
    QRectF ingombro = lettere.boundingRect();
    // The height of a capital keeps captions with and without descenders on one line.
    QPainterPath maiuscola;
    maiuscola.addText(0, 0, font, u"H"_s);
    const double scala = std::min(1.0, r.width() / ingombro.width());
    const double x = dove.testFlag(Qt::AlignLeft) ? r.left() : r.center().x() - ingombro.width() * scala / 2;
    const double y = r.center().y() + maiuscola.boundingRect().height() * scala / 2;
    QTransform posa;
    posa.translate(x - ingombro.left() * scala, y);
    posa.scale(scala, scala);
    return posa.map(lettere);
}

QBrush sfumato(const QRectF &r, const QColor &alto, const QColor &basso) {
    QLinearGradient g{r.topLeft(), r.bottomLeft()};
    g.setColorAt(0, alto);
    g.setColorAt(1, basso);
    return g;
}

void ombra(QPainter &p, const QPainterPath &forma, QPointF scarto, int raggio, const QColor &colore) {
    const QPainterPath sagoma = forma.translated(scarto);
    const int orlo = 2 * raggio;
    const QRect area = sagoma.boundingRect().toAlignedRect().adjusted(-orlo, -orlo, orlo, orlo);
    QImage macchia = dipinto(area.size(), [&](QPainter &q) {
        q.translate(-area.topLeft());
        q.fillPath(sagoma, colore);
    });
    sfoca(macchia, std::max(1, raggio / 2));
    p.drawImage(area.topLeft(), macchia);
}

bool carattereDisponibile() {
    return QFontDatabase::families().contains(carattere);
}

} // namespace zuvora::disegna
