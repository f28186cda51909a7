#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <ostream>
#include <sqlite3.h>
#include <stdexcept>

// Readable failures.
inline void PrintTo(const QString &s, std::ostream *os) {
    *os << '"' << s.toStdString() << '"';
}

namespace zuvora {

// Another program with a connection of its own: what it writes and holds is written and held behind the program's back.
// SQL that is wrong throws; what the file refuses is a result code. A new file is made where there is none.
class Fratello {
public:
    explicit Fratello(const QString &archivio) {
        sqlite3_open(archivio.toUtf8().constData(), &m_db);
        sqlite3_exec(m_db, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr); // a test's file needs no safety
    }
    ~Fratello() { sqlite3_close(m_db); }
    Fratello(const Fratello &) = delete;
    Fratello &operator=(const Fratello &) = delete;

    // Any number of statements.
    int esegui(const QString &sql) {
        const int esito = sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, nullptr);
        controlla(esito);
        return esito;
    }
    // First column of the first row; invalid for Null or no row.
    QVariant valore(const QString &sql) {
        QVariant primo;
        percorri(sql, [&](sqlite3_stmt *s) {
            primo = colonna(s, 0);
            return false;
        });
        return primo;
    }
    // All rows, their columns parted by a bar; Null is NULL.
    QStringList righe(const QString &sql) {
        QStringList tutte;
        percorri(sql, [&](sqlite3_stmt *s) {
            QStringList riga;
            for (int i = 0; i < sqlite3_column_count(s); ++i) {
                const QVariant v = colonna(s, i);
                riga << (v.isValid() ? v.toString() : QStringLiteral("NULL"));
            }
            tutte << riga.join(u'|');
            return true;
        });
        return tutte;
    }

private:
    void controlla(int esito) const {
        if ((esito & 0xFF) == SQLITE_ERROR)
            throw std::runtime_error(sqlite3_errmsg(m_db));
    }
    template <class F> void percorri(const QString &sql, F riga) {
        sqlite3_stmt *s = nullptr;
        controlla(sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &s, nullptr));
        while (sqlite3_step(s) == SQLITE_ROW && riga(s)) {
        }
        sqlite3_finalize(s);
    }
    static QVariant colonna(sqlite3_stmt *s, int i) {
        switch (sqlite3_column_type(s, i)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
            return QVariant::fromValue<qlonglong>(sqlite3_column_int64(s, i));
        case SQLITE_FLOAT:
            return sqlite3_column_double(s, i);
        default:
            return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(s, i)));
        }
    }
    sqlite3 *m_db = nullptr;
};

} // namespace zuvora
