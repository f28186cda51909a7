#include "installer/Percorsi.h"

#include <QDir>
#include <QSysInfo>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
bool conUnita(QStringView percorso) {
    return percorso.size() > 1 && percorso[1] == u':' && percorso[0].isLetter() && percorso[0].unicode() < 0x80;
}

QString senzaUnita(const QString &percorso) {
    return conUnita(percorso) ? percorso.mid(2) : percorso;
}

QString conBarre(QString percorso) {
    return percorso.replace(u'\\', u'/');
}

bool sistemaConUnita() {
    return QDir::separator() == u'\\';
}
} // namespace

QString espandi(const QString &valore, const QString &cartella) {
    constexpr auto segnoCartella = "{CARTELLA}"_L1;
    constexpr auto segnoRete = "{RETE}"_L1;
    if (valore.startsWith(segnoCartella))
        return QDir::toNativeSeparators(cartella + valore.mid(segnoCartella.size()));
    if (valore.startsWith(segnoRete)) {
        QString percorso = senzaUnita(cartella) + valore.mid(segnoRete.size());
        return u"\\\\"_s + QSysInfo::machineHostName() + percorso.replace(u'/', u'\\');
    }
    return valore;
}

std::optional<QString> fileLocale(const QString &percorso) {
    if (percorso.startsWith(u"\\\\"_s) || percorso.startsWith(u"//"_s)) {
        const QString resto = conBarre(percorso.mid(2));
        const qsizetype fine = resto.indexOf(u'/');
        const bool questaMacchina = resto.left(fine).compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
        // With drives, the form has lost the letter and only the network can resolve it.
        if (fine < 0 || !questaMacchina || sistemaConUnita())
            return std::nullopt;
        return resto.mid(fine);
    }
    if (conUnita(percorso) && !sistemaConUnita())
        return conBarre(senzaUnita(percorso));
    return QDir::fromNativeSeparators(percorso);
}

} // namespace zuvora::installa
