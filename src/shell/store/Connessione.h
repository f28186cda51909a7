#pragma once

#include "shell/store/Frasi.h"
#include "shell/store/Limiti.h"
#include "shell/store/Tipi.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace zuvora {

class Istruzione;

enum class Modo { Esistente, Nuovo, SolaLettura };

// One open SQLite connection. Between two operations no statement is active, so no lock is held.
class Connessione {
public:
    // Opens an existing file and reads its schema, so that whatever is no sound database fails here. A file name that
    // differs only by case serves when the exact one is not there. Only in the mode Nuovo a file is made, which must
    // not be there; SolaLettura leaves the file as it is, its journal too.
    Connessione(const QString &percorso, std::chrono::milliseconds attesa, Modo modo = Modo::Esistente);
    ~Connessione();
    Connessione(const Connessione &) = delete;
    Connessione &operator=(const Connessione &) = delete;

    // Still the right connection for `percorso`: the same path, and the file at it the one that was opened.
    bool vale(const QString &percorso) const;
    void attendi(std::chrono::milliseconds attesa);
    void chiudi();
    bool soloLettura() const;

    // A statement from the cache, for the store's own texts.
    Istruzione prepara(const QByteArray &sql, Azione azione);
    // A statement of the program or the user, used once. 3075 unless it is exactly one statement.
    Istruzione preparaUnica(const QString &sql, Azione azione);
    // Any number of statements, their results dropped.
    void eseguiTutto(const QByteArray &sql);
    // The content of `origine` in place of its own, through the engine's backup.
    void copiaDa(Connessione &origine);
    // Runs one of the store's own changing statements. Gives the number of rows changed.
    int scrivi(const QByteArray &sql, const QList<Valore> &valori);
    qint64 ultimaChiave() const;

    EngineError errore(int rc, Azione azione, const QString &oggetto = {}) const;
    EngineError errore(Errore numero, Azione azione, const QString &oggetto = {}) const;

private:
    friend class Istruzione;
    static constexpr qsizetype pronteMassime = 24;
    void apri(Modo modo);
    void controllaFile() const;
    void controlla();
    void scegliGiornale();
    bool spostato() const;
    EngineError mancante(Azione azione) const; // why the file can't be found: 3024, 3044 or 3051
    sqlite3 *db() const;                       // throws when closed
    sqlite3_stmt *compila(const QByteArray &sql, unsigned opzioni, Azione azione, bool sola);

    QString m_richiesto; // the path as it was given
    QString m_percorso;  // the file that was opened
    std::chrono::milliseconds m_attesa;
    sqlite3 *m_db = nullptr;
    int m_giri = 0; // the engine's work on the row under way
    QHash<QByteArray, sqlite3_stmt *> m_pronte;
};

// A table or column name inside SQL. The back quote, unlike the double quote, never turns an unknown name into a text.
QByteArray nomeSql(const QByteArray &nome);

// The use of a prepared statement. At its end the statement is reset (and with it every lock gone).
class Istruzione {
public:
    Istruzione(Connessione &c, sqlite3_stmt *s, Azione azione, QByteArray chiave);
    Istruzione(Istruzione &&altra) noexcept;
    Istruzione &operator=(Istruzione &&) = delete;
    ~Istruzione();

    void lega(int posto, const Valore &v); // places count from 1
    bool avanti();                         // on the next row; false behind the last
    qint64 intero(int colonna) const;
    Valore valore(int colonna, TipoColonna tipo) const;
    QString testo(int colonna) const;
    sqlite3_stmt *grezza() const { return m_s; }

private:
    Connessione *m_c;
    sqlite3_stmt *m_s;
    Azione m_azione;
    QByteArray m_chiave; // text in the cache; empty for a statement used once
};

} // namespace zuvora
