#include "installer/Percorsi.h"

#include "shell/logic/Percorsi.h"

#include <QDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

QString espandi(const QString &valore, const QString &cartella) {
    constexpr auto segnoCartella = "{CARTELLA}"_L1;
    constexpr auto segnoRete = "{RETE}"_L1;
    if (valore.startsWith(segnoCartella))
        return QDir::toNativeSeparators(cartella + valore.mid(segnoCartella.size()));
    if (valore.startsWith(segnoRete)) {
        const zuvora::Percorsi percorsi;
        return percorsi.diRete(percorsi.conUnita(cartella + valore.mid(segnoRete.size())));
    }
    return valore;
}

} // namespace zuvora::installa
