#include "shell/host/Testo.h"

#include "shell/host/Controllo.h"

#include <QFontMetrics>
#include <algorithm>

namespace zuvora {
namespace {

constexpr int StrettoMinimo = 75; // per cent of the regular width

} // namespace

QSize misuraDidascalia(const QString &testo, const QFont &font, int larghezza) {
    const QFontMetrics metrica(font);
    const int opzioni = Qt::TextShowMnemonic | (larghezza > 0 ? int(Qt::TextWordWrap) : int(Qt::TextSingleLine));
    return metrica.boundingRect(QRect(0, 0, larghezza > 0 ? larghezza : 100000, 100000), opzioni, testo).size();
}

QFont fontAdatto(const QString &testo, const QFont &base, const QSize &spazio, bool aCapo) {
    QFont font = base;
    for (int stretto = 100; stretto >= StrettoMinimo; stretto -= 5) {
        font.setStretch(stretto);
        const QSize serve = misuraDidascalia(testo, font, aCapo ? spazio.width() : 0);
        if (serve.width() <= spazio.width() && (!aCapo || serve.height() <= spazio.height()))
            break;
    }
    return font;
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
