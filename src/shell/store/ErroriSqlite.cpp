// The engine's result codes and messages as the numbers that the program tells apart.
#include "shell/store/Connessione.h"

#include <array>
#include <cerrno>
#include <sqlite3.h>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Messaggio {
    QStringView inizio; // how the engine's message begins; the object's name follows
    Errore numero;
};

constexpr std::array messaggi{Messaggio{u"no such table: ", Errore::TabellaNonTrovata},
                              Messaggio{u"no such column: ", Errore::ColonnaNonTrovata},
                              Messaggio{u"duplicate column name: ", Errore::ColonnaGiaPresente}};

Errore daCodice(int rc, Azione azione, int errnoSistema) {
    const bool scrittura = azione == Azione::Scrittura;
    switch (rc & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        return azione == Azione::Apertura ? Errore::GiaAperto : Errore::Bloccato;
    case SQLITE_READONLY:
        return Errore::SolaLettura;
    case SQLITE_CANTOPEN: // in a write: the journal can't be made, the folder is protected
        return scrittura ? Errore::SolaLettura : Errore::Accesso;
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return Errore::Accesso;
    case SQLITE_FULL:
        return Errore::DiscoPieno;
    case SQLITE_IOERR: {
        const bool pieno = errnoSistema == EFBIG || errnoSistema == ENOSPC
#ifdef EDQUOT
                           || errnoSistema == EDQUOT
#endif
            ;
        return pieno ? Errore::DiscoPieno : Errore::DiscoRete;
    }
    case SQLITE_CORRUPT:
        return Errore::FileDanneggiato;
    case SQLITE_NOTADB:
        return Errore::NonDatabase;
    case SQLITE_MISMATCH:
        return Errore::TipoNonValido;
    default:
        return Errore::Altro;
    }
}

} // namespace

EngineError Connessione::errore(int rc, Azione azione, const QString &oggetto) const {
    // The file was removed or replaced while open: the engine refuses to write where nobody would find it.
    if (rc == SQLITE_READONLY_DBMOVED)
        return mancante(azione);
    const QString dettaglio =
        m_db == nullptr ? QString::fromUtf8(sqlite3_errstr(rc)) : QString::fromUtf8(sqlite3_errmsg(m_db));
    Contesto contesto{m_percorso, azione, oggetto};
    Errore numero = daCodice(rc, azione, m_db == nullptr ? 0 : sqlite3_system_errno(m_db));
    if ((rc & 0xFF) == SQLITE_ERROR) {
        numero = Errore::Sintassi;
        for (const Messaggio &m : messaggi)
            if (dettaglio.startsWith(m.inizio)) {
                numero = m.numero;
                contesto.oggetto = dettaglio.mid(m.inizio.size());
            }
    }
    return zuvora::errore(numero, contesto, u"%1: %2"_s.arg(QString::number(rc), dettaglio));
}

EngineError Connessione::errore(Errore numero, Azione azione, const QString &oggetto) const {
    return zuvora::errore(numero, {m_percorso, azione, oggetto});
}

} // namespace zuvora
