#include "installer/Sqlite.h"

#include <sqlite3.h>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int attesaBloccoMs = 2000;

void verifica(sqlite3 *db, int esito) {
    if (esito != SQLITE_OK && esito != SQLITE_ROW && esito != SQLITE_DONE)
        throw ErroreSqlite{sqlite3_extended_errcode(db), QString::fromUtf8(sqlite3_errmsg(db))};
}
} // namespace

void Istruzione::Fine::operator()(sqlite3_stmt *s) const {
    sqlite3_finalize(s);
}

void Sqlite::Fine::operator()(sqlite3 *db) const {
    sqlite3_close(db);
}

Istruzione::Istruzione(sqlite3 *db, const QString &sql) : m_db(db) {
    sqlite3_stmt *s = nullptr;
    verifica(db, sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &s, nullptr));
    m_istruzione.reset(s);
}

void Istruzione::esegui(const QStringList &valori) {
    sqlite3_stmt *s = m_istruzione.get();
    sqlite3_reset(s);
    int posto = 0;
    for (const QString &valore : valori) {
        const QByteArray utf8 = valore.toUtf8();
        ++posto;
        verifica(m_db, valore.isNull() ? sqlite3_bind_null(s, posto)
                                       : sqlite3_bind_text(s, posto, utf8.constData(), static_cast<int>(utf8.size()),
                                                           SQLITE_TRANSIENT));
    }
    while (avanza()) {
    }
}

bool Istruzione::avanza() {
    const int esito = sqlite3_step(m_istruzione.get());
    verifica(m_db, esito);
    return esito == SQLITE_ROW;
}

QStringList Istruzione::riga() const {
    sqlite3_stmt *s = m_istruzione.get();
    QStringList campi;
    for (int i = 0; i < sqlite3_column_count(s); ++i) {
        const auto *testo = reinterpret_cast<const char *>(sqlite3_column_text(s, i));
        campi += testo ? QString::fromUtf8(testo, sqlite3_column_bytes(s, i)) : QString();
    }
    return campi;
}

Sqlite::Sqlite(const QByteArray &file, int modo) {
    sqlite3 *db = nullptr;
    const int esito = sqlite3_open_v2(file.constData(), &db, modo | SQLITE_OPEN_EXRESCODE, nullptr);
    m_db.reset(db);
    verifica(db, esito);
    sqlite3_busy_timeout(db, attesaBloccoMs);
}

Sqlite Sqlite::nuovo(const QString &file) {
    return {file.toUtf8(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE};
}

Sqlite Sqlite::inMemoria() {
    return {":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE};
}

Sqlite Sqlite::solaLettura(const QString &file) {
    return {file.toUtf8(), SQLITE_OPEN_READONLY};
}

void Sqlite::esegui(const QByteArray &sql) {
    verifica(m_db.get(), sqlite3_exec(m_db.get(), sql.constData(), nullptr, nullptr, nullptr));
}

QList<QStringList> Sqlite::leggi(const QString &sql) {
    QList<QStringList> righe;
    Istruzione istruzione = prepara(sql);
    while (istruzione.avanza())
        righe += istruzione.riga();
    return righe;
}

bool Sqlite::integro() {
    return leggi(u"PRAGMA quick_check(1)"_s).value(0).value(0) == u"ok"_s;
}

} // namespace zuvora::installa
