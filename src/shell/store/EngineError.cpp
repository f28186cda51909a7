#include "shell/store/EngineError.h"

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

} // namespace zuvora
