#include "etichette/logic/Testi.h"

#include <QFont>
#include <QPainter>
#include <QTextLayout>
#include <cmath>
#include <memory>
#include <vector>

namespace zuvora {
namespace {

// Letters are placed on a grid of hundredths of a millimetre, so fine that rounding can't be seen on any printer.
constexpr double finezza = 10; // grid units to a tenth of a millimetre
constexpr double decimiPerPunto = 254.0 / 72.0;
constexpr double puntiMinimi = 3;
constexpr qsizetype caratteriMassimi = 4000; // more than any paper shows
constexpr double larghezzaIllimitata = 1e6;

QFont fontDi(const StileTesto &stile, double punti) {
    QFont font(stile.famiglia);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(punti * decimiPerPunto * finezza))));
    font.setBold(stile.grassetto);
    font.setItalic(stile.corsivo);
    font.setUnderline(stile.sottolineato);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferOutline);
    return font;
}

QString pulito(const QString &testo) {
    QString righe = testo.left(caratteriMassimi);
    righe.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &c : righe)
        if (c == u'\n' || c == u'\r')
            c = QChar::LineSeparator;
        else if (c.category() == QChar::Other_Control)
            c = u' ';
    return righe;
}

struct Composto {
    std::unique_ptr<QTextLayout> testo;
    double larghezza = 0;
    double altezza = 0;
};

Composto componi(const QString &testo, const StileTesto &stile, double punti, double larghezza) {
    Composto c{std::make_unique<QTextLayout>(testo, fontDi(stile, punti)), 0, 0};
    QTextOption opzione;
    opzione.setWrapMode(stile.aCapo ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::ManualWrap);
    c.testo->setTextOption(opzione);
    c.testo->setCacheEnabled(true);
    c.testo->beginLayout();
    for (QTextLine riga = c.testo->createLine(); riga.isValid(); riga = c.testo->createLine()) {
        riga.setLineWidth(stile.aCapo ? larghezza : larghezzaIllimitata);
        riga.setPosition(QPointF(0, c.altezza));
        c.altezza += riga.height();
        c.larghezza = std::max(c.larghezza, riga.naturalTextWidth());
    }
    c.testo->endLayout();
    return c;
}

bool sta(const Composto &c, const QSizeF &misura) {
    return c.altezza <= misura.height() + 1 && c.larghezza <= misura.width() + 1;
}

Composto nellaMisura(const QString &testo, const StileTesto &stile, const QSizeF &misura) {
    Composto c = componi(testo, stile, stile.punti, misura.width());
    if (!stile.riduci || sta(c, misura))
        return c;
    double piccoli = puntiMinimi;
    double grandi = stile.punti;
    while (grandi - piccoli > 0.25) {
        const double mezzo = (piccoli + grandi) / 2;
        (sta(componi(testo, stile, mezzo, misura.width()), misura) ? piccoli : grandi) = mezzo;
    }
    return componi(testo, stile, piccoli, misura.width());
}

double scarto(Lato lato, double libero) {
    return lato == Lato::Centro ? libero / 2 : lato == Lato::Fine ? libero : 0;
}

} // namespace

int altezzaTesto(const QString &testo, const StileTesto &stile, int larghezza) {
    return static_cast<int>(
        std::ceil(componi(pulito(testo), stile, stile.punti, larghezza * finezza).altezza / finezza));
}

bool disegnaTesto(QPainter &pittore, const QString &testo, const StileTesto &stile, const QSize &misura) {
    if (misura.isEmpty())
        return testo.isEmpty();
    const QSizeF spazio = QSizeF(misura) * finezza;
    const Composto c = nellaMisura(pulito(testo), stile, spazio);
    pittore.save();
    pittore.scale(1 / finezza, 1 / finezza);
    pittore.setClipRect(QRectF(QPointF(0, 0), spazio), Qt::IntersectClip);
    const double alto = scarto(stile.verticale, spazio.height() - c.altezza);
    for (int i = 0; i < c.testo->lineCount(); ++i) {
        const QTextLine riga = c.testo->lineAt(i);
        const double sinistra = scarto(stile.orizzontale, spazio.width() - riga.naturalTextWidth());
        riga.draw(&pittore, QPointF(sinistra, alto));
    }
    pittore.restore();
    return sta(c, spazio) && testo.size() <= caratteriMassimi;
}

} // namespace zuvora
