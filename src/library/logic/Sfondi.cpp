#include "library/logic/Sfondi.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int LunghezzaUnita = 3; // the drive and ":\"

bool conUnita(const QString &percorso) {
    return percorso.size() >= LunghezzaUnita && percorso.at(0).isLetter() && percorso.at(1) == u':' &&
           percorso.at(2) == u'\\';
}

} // namespace

QString percorsoDiRete(const QString &percorso, const QString &nomeHost) {
    QString resto = percorso;
    resto.replace(u'/', u'\\');
    if (resto.isEmpty() || resto.startsWith(u"\\\\"_s))
        return resto;
    // On a platform without drives the root is the one drive.
    if (resto.startsWith(u'\\'))
        resto.prepend(u"C:"_s);
    if (conUnita(resto))
        resto.remove(0, LunghezzaUnita);
    return u"\\\\"_s + nomeHost + u'\\' + resto;
}

} // namespace zuvora
