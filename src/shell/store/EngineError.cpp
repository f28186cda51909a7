#include "shell/store/EngineError.h"

#include <QStringList>
#include <utility>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

EngineError::EngineError(Errore numero, QString frase, QString dettaglio)
    : m_numero(numero), m_frase(std::move(frase)), m_dettaglio(std::move(dettaglio)) {
    m_what = m_frase.toUtf8();
    if (!m_dettaglio.isEmpty())
        m_what += " (" + m_dettaglio.toUtf8() + ")";
}

EngineError::~EngineError() = default;

QString testoErrore(const EngineError &errore, const QString &aggiunta) {
    QStringList parti{errore.frase()};
    if (!aggiunta.isEmpty())
        parti += aggiunta;
    if (!errore.dettaglio().isEmpty())
        parti += u"(Errore %1: %2)"_s.arg(errore.Number()).arg(errore.dettaglio());
    return parti.join(u"\n\n"_s);
}

QString accorciato(const QString &testo, int massimo) {
    if (testo.size() <= massimo)
        return testo;
    const qsizetype coda = massimo / 3; // of a path the end tells most
    return testo.left(massimo - coda - 1) + u'…' + testo.right(coda);
}

} // namespace zuvora
