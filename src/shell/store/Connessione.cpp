#include "shell/store/Connessione.h"

#include "shell/store/Disco.h"
#include "shell/store/Like.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <csignal>
#include <sqlite3.h>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int istruzioniGiro = 1'000'000; // of the engine's machine
constexpr int giriMassimi = 100;          // for one row: some seconds, and far beyond what any table of ours takes

// A write over a file size limit must fail, not kill the program.
void ignoraLimiteFile() {
#ifdef SIGXFSZ
    static const bool fatto = [] { return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR; }();
    (void)fatto;
#endif
}

// The path as the disk spells it; as given when nothing is there.
QString trovaFile(const QString &percorso) {
    if (percorso.isEmpty())
        return percorso;
    const QString assoluto = QFileInfo(percorso).absoluteFilePath();
    const QString trovato = trovaSenzaCaso(DiscoLocale(), assoluto);
    return trovato.isEmpty() ? assoluto : trovato;
}

} // namespace

Connessione::Connessione(const QString &percorso, std::chrono::milliseconds attesa, Modo modo)
    : m_richiesto(percorso), m_percorso(modo == Modo::Nuovo ? percorso : trovaFile(percorso)), m_attesa(attesa) {
    try {
        apri(modo);
        controlla();
        if (modo == Modo::Esistente)
            scegliGiornale();
    } catch (...) {
        chiudi();
        throw;
    }
}

Connessione::~Connessione() {
    chiudi();
}

EngineError Connessione::mancante(Azione azione) const {
    const QFileInfo cartella(QFileInfo(m_percorso).path());
    if (!m_percorso.isEmpty() && !cartella.isDir())
        return errore(Errore::PercorsoNonValido, azione);
    const bool chiusa = !m_percorso.isEmpty() && !cartella.isExecutable(); // nothing in it can be seen
    return errore(chiusa ? Errore::Accesso : Errore::FileNonTrovato, azione);
}

void Connessione::controllaFile() const {
    const QFileInfo file(m_percorso);
    if (m_percorso.isEmpty() || !file.exists())
        throw mancante(Azione::Apertura);
    // An empty file would pass for an empty database, and one of a single byte counts as empty; a pipe would block for
    // ever.
    if (!file.isFile() || file.size() <= 1)
        throw errore(Errore::NonDatabase, Azione::Apertura);
}

void Connessione::apri(Modo modo) {
    if (modo != Modo::Nuovo)
        controllaFile();
    else if (QFileInfo::exists(m_percorso))
        throw errore(Errore::PercorsoFile, Azione::Apertura);
    ignoraLimiteFile();
    // Without CREATE nothing is made; a write-protected file is opened for reading by the engine itself.
    int opzioni = SQLITE_OPEN_READWRITE;
    if (modo == Modo::Nuovo)
        opzioni |= SQLITE_OPEN_CREATE;
    else if (modo == Modo::SolaLettura)
        opzioni = SQLITE_OPEN_READONLY;
    opzioni |= SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    const int rc = sqlite3_open_v2(m_percorso.toUtf8().constData(), &m_db, opzioni, nullptr);
    if (rc != SQLITE_OK)
        throw errore(rc, Azione::Apertura);
    attendi(m_attesa);
    // A view that searches for ever would hold the window. Counted, not timed: a wait for a lock is no work.
    sqlite3_progress_handler(
        m_db, istruzioniGiro, [](void *giri) { return ++*static_cast<int *>(giri) > giriMassimi ? 1 : 0; }, &m_giri);
    if (const int esito = installaLike(m_db); esito != SQLITE_OK)
        throw errore(esito, Azione::Apertura);
}

void Connessione::controlla() {
    prepara("SELECT 1 FROM sqlite_master LIMIT 1", Azione::Apertura).avanti();
}

void Connessione::scegliGiornale() {
    // A rollback journal: other programs read the file and it may lie on a network share, where WAL doesn't work. The
    // same statement takes a file out of WAL; that fails while somebody else has it open, and is tried again at the
    // next opening. Of the three journals, measured with 70 single updates and 700 single reads:
    //   DELETE   145 ms, 13 us a read; a power cut can take back the last update (EXTRA mends that: 168 ms)
    //   TRUNCATE 142 ms, 13 us a read; the end of an update is synced, no file is made and removed each time
    //   PERSIST  118 ms, 28 us a read: every reader, sibling or not, opens and reads the journal each time
    // Siblings read far more than this program writes, over the network, so TRUNCATE. FULL: a decision that was
    // confirmed survives a power cut.
    sqlite3_busy_timeout(m_db, 0);
    sqlite3_exec(m_db, "PRAGMA journal_mode=TRUNCATE", nullptr, nullptr, nullptr);
    sqlite3_exec(m_db, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    attendi(m_attesa);
}

void Connessione::attendi(std::chrono::milliseconds attesa) {
    m_attesa = attesa;
    sqlite3_busy_timeout(db(), static_cast<int>(attesa.count()));
}

void Connessione::chiudi() {
    for (sqlite3_stmt *s : std::as_const(m_pronte))
        sqlite3_finalize(s);
    m_pronte.clear();
    sqlite3_close_v2(m_db);
    m_db = nullptr;
}

sqlite3 *Connessione::db() const {
    if (m_db == nullptr)
        throw zuvora::errore(Errore::Altro, {m_percorso, Azione::Lettura, {}}, u"the database is closed"_s);
    return m_db;
}

bool Connessione::spostato() const {
    int spostato = 0;
    return sqlite3_file_control(db(), "main", SQLITE_FCNTL_HAS_MOVED, &spostato) == SQLITE_OK && spostato != 0;
}

bool Connessione::vale(const QString &percorso) const {
    return m_db != nullptr && percorso == m_richiesto && !spostato() && QFileInfo(m_percorso).size() > 1;
}

bool Connessione::soloLettura() const {
    return sqlite3_db_readonly(db(), "main") == 1;
}

qint64 Connessione::ultimaChiave() const {
    return sqlite3_last_insert_rowid(db());
}

sqlite3_stmt *Connessione::compila(const QByteArray &sql, unsigned opzioni, Azione azione, bool sola) {
    sqlite3_stmt *s = nullptr;
    const char *resto = nullptr;
    const int rc = sqlite3_prepare_v3(db(), sql.constData(), static_cast<int>(sql.size()) + 1, opzioni, &s, &resto);
    if (rc != SQLITE_OK)
        throw errore(rc, azione);
    const bool altro = resto != nullptr && QByteArray(resto).trimmed().size() > 0;
    if (sola && (s == nullptr || altro)) {
        sqlite3_finalize(s);
        throw errore(Errore::Sintassi, azione);
    }
    return s;
}

Istruzione Connessione::prepara(const QByteArray &sql, Azione azione) {
    sqlite3_stmt *s = m_pronte.take(sql);
    if (s == nullptr)
        s = compila(sql, SQLITE_PREPARE_PERSISTENT, azione, false);
    return {*this, s, azione, sql};
}

Istruzione Connessione::preparaUnica(const QString &sql, Azione azione) {
    return {*this, compila(sql.toUtf8(), 0, azione, true), azione, {}};
}

void Connessione::eseguiTutto(const QByteArray &sql) {
    m_giri = 0;
    if (const int rc = sqlite3_exec(db(), sql.constData(), nullptr, nullptr, nullptr); rc != SQLITE_OK)
        throw errore(rc, Azione::Scrittura);
}

void Connessione::copiaDa(Connessione &origine) {
    sqlite3_backup *copia = sqlite3_backup_init(db(), "main", origine.db(), "main");
    if (copia == nullptr)
        throw errore(sqlite3_extended_errcode(m_db), Azione::Scrittura);
    // All pages at one go; the busy timeout doesn't hold for what the backup waits for.
    QDeadlineTimer fine(m_attesa);
    int rc = sqlite3_backup_step(copia, -1);
    while ((rc == SQLITE_BUSY || rc == SQLITE_LOCKED) && !fine.hasExpired()) {
        sqlite3_sleep(20);
        rc = sqlite3_backup_step(copia, -1);
    }
    sqlite3_backup_finish(copia);
    if (rc != SQLITE_DONE)
        throw errore(rc, Azione::Scrittura);
}

int Connessione::scrivi(const QByteArray &sql, const QList<Valore> &valori) {
    Istruzione i = prepara(sql, Azione::Scrittura);
    for (int n = 0; n < valori.size(); ++n)
        i.lega(n + 1, valori[n]);
    i.avanti();
    return sqlite3_changes(db());
}

QByteArray nomeSql(const QByteArray &nome) {
    return '`' + QByteArray(nome).replace('`', "``") + '`';
}

} // namespace zuvora
