#include "etichette/logic/Testi.h"

#include <QFont>
#include <QPainter>
#include <QTextLayout>
#include <cmath>
#include <memory>
#include <vector>

namespace zuvora {
namespace {

// Every text is laid out in letters of one size, so fine that rounding can't be seen on any printer, and scaled into
// its own: a font is loaded once, however many sizes a ticket has, and smaller letters cost no new one.
constexpr int quadrato = 1000; // layout units to the letters' size
constexpr double decimiPerPunto = 254.0 / 72.0;
constexpr double puntiMinimi = 3;
constexpr qsizetype caratteriMassimi = 4000;    // more than any paper shows
constexpr double larghezzaIllimitata = 1 << 24; // layout units; beyond twice that the layout's numbers end

// Tenths of a millimetre to a layout unit.
double scala(double punti) {
    return punti * decimiPerPunto / quadrato;
}

QFont fontDi(const StileTesto &stile) {
    QFont font(stile.famiglia);
    font.setPixelSize(quadrato);
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

// Measures in tenths of a millimetre.
struct Composto {
    std::unique_ptr<QTextLayout> testo;
    double scala = 1;
    double larghezza = 0;
    double altezza = 0;
};

// `spezza`: a word that is wider than its line goes on in the next.
Composto componi(const QString &testo, const StileTesto &stile, double punti, double larghezza, bool spezza = true) {
    Composto c{std::make_unique<QTextLayout>(testo, fontDi(stile)), scala(punti), 0, 0};
    QTextOption opzione;
    opzione.setWrapMode(!stile.aCapo ? QTextOption::ManualWrap
                        : spezza     ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                     : QTextOption::WordWrap);
    c.testo->setTextOption(opzione);
    c.testo->setCacheEnabled(true);
    c.testo->beginLayout();
    double alto = 0;
    for (QTextLine riga = c.testo->createLine(); riga.isValid(); riga = c.testo->createLine()) {
        riga.setLineWidth(stile.aCapo ? std::min(larghezza / c.scala, larghezzaIllimitata) : larghezzaIllimitata);
        riga.setPosition(QPointF(0, alto));
        alto += riga.height();
        c.larghezza = std::max(c.larghezza, riga.naturalTextWidth() * c.scala);
    }
    c.testo->endLayout();
    c.altezza = alto * c.scala;
    return c;
}

bool sta(const Composto &c, const QSize &misura) {
    return c.altezza <= misura.height() + 0.1 && c.larghezza <= misura.width() + 0.1;
}

// Letters become smaller before a word is broken: a number must not be.
Composto nellaMisura(const QString &testo, const StileTesto &stile, const QSize &misura) {
    const auto prova = [&](double punti) { return componi(testo, stile, punti, misura.width(), !stile.riduci); };
    Composto c = prova(stile.punti);
    if (!stile.riduci || sta(c, misura))
        return c;
    double piccoli = std::min(puntiMinimi, stile.punti);
    double grandi = stile.punti;
    while (grandi - piccoli > 0.25) {
        const double mezzo = (piccoli + grandi) / 2;
        (sta(prova(mezzo), misura) ? piccoli : grandi) = mezzo;
    }
    c = prova(piccoli);
    return sta(c, misura) ? std::move(c) : componi(testo, stile, piccoli, misura.width());
}

double scarto(Lato lato, double libero) {
    return lato == Lato::Centro ? libero / 2 : lato == Lato::Fine ? libero : 0;
}

} // namespace

int altezzaTesto(const QString &testo, const StileTesto &stile, int larghezza) {
    return static_cast<int>(std::ceil(componi(pulito(testo), stile, stile.punti, larghezza).altezza));
}

bool disegnaTesto(QPainter &pittore, const QString &testo, const StileTesto &stile, const QSize &misura) {
    if (misura.isEmpty())
        return testo.isEmpty();
    const Composto c = nellaMisura(pulito(testo), stile, misura);
    pittore.save();
    pittore.setClipRect(QRect(QPoint(0, 0), misura), Qt::IntersectClip);
    pittore.translate(0, scarto(stile.verticale, misura.height() - c.altezza));
    pittore.scale(c.scala, c.scala);
    for (int i = 0; i < c.testo->lineCount(); ++i) {
        const QTextLine riga = c.testo->lineAt(i);
        riga.draw(&pittore, QPointF(scarto(stile.orizzontale, misura.width() / c.scala - riga.naturalTextWidth()), 0));
    }
    pittore.restore();
    return sta(c, misura) && testo.size() <= caratteriMassimi;
}

} // namespace zuvora
