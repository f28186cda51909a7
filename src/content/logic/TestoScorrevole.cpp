#include "content/logic/TestoScorrevole.h"

#include "shell/store/Riga.h"

#include <QTextBoundaryFinder>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int bianchiIniziali = 30;

} // namespace

void TestoScorrevole::prepara(const QString &testo) {
    m_mobile = QString(bianchiIniziali, u' ') + testo;
}

const QString &TestoScorrevole::passo() {
    if (m_mobile.isEmpty())
        return m_mobile;
    // What reads as one character may be several units; torn apart it would show as boxes.
    QTextBoundaryFinder confine(QTextBoundaryFinder::Grapheme, m_mobile);
    const qsizetype primo = confine.toNextBoundary();
    if (primo > 0 && primo < m_mobile.size())
        m_mobile = m_mobile.mid(primo) + m_mobile.first(primo);
    return m_mobile;
}

QString leggiTestoScorrevole(const QString &cartella) {
    return leggiRiga(cartella, u"Configurazione"_s).testo(u"StringaScorrevole");
}

void salvaTestoScorrevole(const QString &cartella, const QString &testo) {
    scriviRiga(cartella, u"Configurazione"_s, {{u"StringaScorrevole", testo}});
}

QString leggiCartellaMusica(const QString &cartella) {
    return leggiRiga(cartella, u"Configurazione"_s).testo(u"cartellamp3");
}

bool salvaCartellaMusica(const QString &cartella, const QString &musica) {
    if (musica.isEmpty())
        return false;
    scriviRiga(cartella, u"Configurazione"_s, {{u"cartellamp3", musica}});
    return true;
}

} // namespace zuvora
