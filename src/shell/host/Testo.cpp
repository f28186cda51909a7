#include "shell/host/Testo.h"

#include "shell/host/Controllo.h"

#include <QFontMetrics>
#include <algorithm>

namespace zuvora {
namespace {

constexpr int strettoMinimo = 75; // per cent of the regular width

} // namespace

QSize misuraDidascalia(const QString &testo, const QFont &font, int larghezza) {
    const QFontMetrics metrica(font);
    const int opzioni = Qt::TextShowMnemonic | (larghezza > 0 ? int(Qt::TextWordWrap) : int(Qt::TextSingleLine));
    return metrica.boundingRect(QRect(0, 0, larghezza > 0 ? larghezza : 100000, 100000), opzioni, testo).size();
}

// Asks the font system as little as it can: each further width of a font costs as much as another font.
QFont fontAdatto(const QString &testo, const QFont &base, const QSize &spazio, bool aCapo) {
    if (testo.isEmpty())
        return base;
    const QSize serve = misuraDidascalia(testo, base, aCapo ? spazio.width() : 0);
    if (serve.width() <= spazio.width() && (!aCapo || serve.height() <= spazio.height()))
        return base;
    QFont font = base;
    int stretto = 95;
    if (!aCapo && serve.width() > 0)
        stretto = std::clamp(100 * spazio.width() / serve.width() / 5 * 5, strettoMinimo, 95);
    for (; stretto >= strettoMinimo; stretto -= 5) {
        font.setStretch(stretto);
        const QSize ora = misuraDidascalia(testo, font, aCapo ? spazio.width() : 0);
        if (ora.width() <= spazio.width() && (!aCapo || ora.height() <= spazio.height()))
            break;
    }
    return font;
}

QString abbreviata(const QString &testo, const QFont &font, int larghezza) {
    if (misuraDidascalia(testo, font).width() <= larghezza)
        return testo;
    return QFontMetrics(font).elidedText(QString(testo).remove(QLatin1Char('&')), Qt::ElideRight, larghezza);
}

bool didascaliaTagliata(const QWidget *w) {
    const auto *controllo = dynamic_cast<const ConDidascalia *>(w);
    if (controllo == nullptr || w->isHidden())
        return false;
    const QString testo = controllo->didascaliaMostrata();
    if (testo.isEmpty())
        return false;
    const QSize spazio = controllo->spazioDidascalia();
    const bool aCapo = controllo->vaACapo();
    const QSize serve = misuraDidascalia(testo, w->font(), aCapo ? spazio.width() : 0);
    return serve.width() > spazio.width() || serve.height() > spazio.height() + 1;
}

} // namespace zuvora
