#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace zuvora::installa {

// A failure of the engine: its result code and its own text.
struct ErroreSqlite {
    int codice;
    QString testo;
};

// A prepared statement.
class Istruzione {
public:
    Istruzione(sqlite3 *db, const QString &sql);

    // Binds the values as text (a null QString as Null) and runs the statement to its end.
    void esegui(const QStringList &valori);
    // Goes to the next row; false behind the last.
    bool avanza();
    QStringList riga() const; // the current row as text; Null as a null QString

private:
    struct Fine {
        void operator()(sqlite3_stmt *s) const;
    };
    sqlite3 *m_db;
    std::unique_ptr<sqlite3_stmt, Fine> m_istruzione;
};

// A connection for making and for checking a database: unlike the program's store it makes new files, and it opens
// existing ones without ever changing them. Every operation throws ErroreSqlite.
class Sqlite {
public:
    static Sqlite nuovo(const QString &file); // the file must not exist
    static Sqlite inMemoria();
    static Sqlite solaLettura(const QString &file);

    void esegui(const QByteArray &sql); // any number of statements, without results
    Istruzione prepara(const QString &sql) { return {m_db.get(), sql}; }
    QList<QStringList> leggi(const QString &sql); // all rows as text
    bool integro();                               // the engine's own check of the file

private:
    struct Fine {
        void operator()(sqlite3 *db) const;
    };
    Sqlite(const QByteArray &file, int modo);
    std::unique_ptr<sqlite3, Fine> m_db;
};

} // namespace zuvora::installa
