#pragma once

#include "shell/store/Limiti.h"
#include "shell/store/Valore.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

namespace zuvora {

class Connessione; // one open SQLite connection; private to the store

// Types of a new column, by the engine's number.
enum class TipoCampo : int { Booleano = 1, Intero = 4, Singolo = 6, Doppio = 7, Testo = 10 };

struct Campo {
    QString Name;
    TipoCampo Type = TipoCampo::Testo;
};

// A database file opened for what a record set can't do. Every operation throws EngineError.
class Database {
public:
    // Opens the file at `percorso`, and never makes one. Throws 3024 when it is missing, 3044 when its folder is, 3343
    // when it is no database (an empty file included), 3049 when it is damaged.
    static Database OpenDatabase(const QString &percorso, std::chrono::milliseconds attesa = attesaBlocco);
    // Opens the file without ever changing it, and tells a write that was left half done (3027).
    static Database apriInLettura(const QString &percorso, std::chrono::milliseconds attesa = attesaBlocco);
    // Makes a new file; 75 when there is one.
    static Database crea(const QString &percorso);
    static Database inMemoria();
    ~Database();
    Database(Database &&) noexcept;
    Database &operator=(Database &&) noexcept;

    class ElencoCampi {
    public:
        // Adds a column; 3380 when the table has one of that name (in any case).
        void Append(const Campo &campo);
        QStringList Names() const;

    private:
        friend class Database;
        friend class Tabella;
        ElencoCampi(Connessione &c, QString tabella);
        Connessione *m_connessione;
        QString m_tabella;
    };
    class Tabella {
    public:
        ElencoCampi Fields() const;

    private:
        friend class Database;
        Tabella(Connessione &c, QString tabella);
        Connessione *m_connessione;
        QString m_tabella;
    };
    class ElencoTabelle {
    public:
        Tabella Item(const QString &tabella) const; // 3265 when there is no such table
        QStringList Names() const;

    private:
        friend class Database;
        explicit ElencoTabelle(Connessione &c);
        Connessione *m_connessione;
    };

    ElencoTabelle TableDefs();
    // Runs one SQL statement that changes something. A select is refused with 3065, as the engine does.
    void Execute(const QString &sql);
    // Any number of statements, their results dropped.
    void esegui(const QString &sql);
    // Runs the statement once for each row, with its texts bound in their order; a null text is Null.
    void eseguiPerRighe(const QString &sql, const QList<QStringList> &righe);
    // All rows of one select, each value as it is stored.
    QList<QList<Valore>> leggi(const QString &sql);
    QList<QStringList> leggiTesti(const QString &sql); // Null as a null text
    // Takes the whole content of `origine` in place of its own, in one piece, while other programs have either open.
    void copiaDa(Database &origine);
    // The engine's quick check of the file.
    bool integro();
    void Close();

private:
    explicit Database(std::unique_ptr<Connessione> c);
    std::unique_ptr<Connessione> m_connessione;
};

} // namespace zuvora
