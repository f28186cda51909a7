#include "shell/store/Connessione.h"

#include <sqlite3.h>
#include <utility>

namespace zuvora {

Istruzione::Istruzione(Connessione &c, sqlite3_stmt *s, Azione azione, QByteArray chiave)
    : m_c(&c), m_s(s), m_azione(azione), m_chiave(std::move(chiave)) {}

Istruzione::Istruzione(Istruzione &&altra) noexcept
    : m_c(altra.m_c), m_s(std::exchange(altra.m_s, nullptr)), m_azione(altra.m_azione),
      m_chiave(std::move(altra.m_chiave)) {}

Istruzione::~Istruzione() {
    if (m_s == nullptr)
        return;
    auto &pronte = m_c->m_pronte;
    if (m_chiave.isEmpty() || pronte.contains(m_chiave)) {
        sqlite3_finalize(m_s);
        return;
    }
    if (pronte.size() >= Connessione::pronteMassime) {
        sqlite3_finalize(*pronte.begin());
        pronte.erase(pronte.begin());
    }
    sqlite3_reset(m_s);
    sqlite3_clear_bindings(m_s);
    pronte.insert(m_chiave, m_s);
}

void Istruzione::lega(int posto, const Valore &v) {
    int rc = SQLITE_OK;
    if (eNull(v)) {
        rc = sqlite3_bind_null(m_s, posto);
    } else if (v.typeId() == QMetaType::QString) {
        const QByteArray testo = v.toString().toUtf8();
        rc = sqlite3_bind_text(m_s, posto, testo.constData(), static_cast<int>(testo.size()), SQLITE_TRANSIENT);
    } else if (v.typeId() == QMetaType::Double || v.typeId() == QMetaType::Float) {
        rc = sqlite3_bind_double(m_s, posto, v.toDouble());
    } else {
        rc = sqlite3_bind_int64(m_s, posto, v.toLongLong());
    }
    if (rc != SQLITE_OK)
        throw m_c->errore(rc, m_azione);
}

bool Istruzione::avanti() {
    m_c->m_giri = 0;
    const int rc = sqlite3_step(m_s);
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    throw m_c->errore(rc, m_azione);
}

qint64 Istruzione::intero(int colonna) const {
    return sqlite3_column_int64(m_s, colonna);
}

QString Istruzione::testo(int colonna) const {
    const auto *t = reinterpret_cast<const char *>(sqlite3_column_text(m_s, colonna));
    return t == nullptr ? QString() : QString::fromUtf8(t, sqlite3_column_bytes(m_s, colonna));
}

// The declared type decides; a content that is none of that type is given as it is.
Valore Istruzione::valore(int colonna, TipoColonna tipo) const {
    switch (sqlite3_column_type(m_s, colonna)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER: {
        const qlonglong n = intero(colonna);
        if (tipo == TipoColonna::Booleano && n >= -1 && n <= 1)
            return n != 0;
        if (tipo == TipoColonna::Reale)
            return static_cast<double>(n);
        return tipo == TipoColonna::Testo ? Valore(QString::number(n)) : Valore(n);
    }
    case SQLITE_FLOAT: {
        const Valore d = sqlite3_column_double(m_s, colonna);
        return tipo == TipoColonna::Testo ? Valore(testoDi(d, {})) : d;
    }
    default:
        return testo(colonna);
    }
}

} // namespace zuvora
