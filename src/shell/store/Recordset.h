#pragma once

#include "shell/store/Valore.h"

#include <QStringList>
#include <QStringView>
#include <memory>

namespace zuvora {

class Connessione;

// The rows that a Data object is open on: a key set. The keys are read once, in the order of the source; the current
// row is read from the file when it is asked for, so a change made by another program is seen. A source whose rows have
// no key (a select without the table's key column) is a read-only snapshot.
// Columns are found without regard to case. Every operation throws EngineError.
class Recordset {
public:
    ~Recordset();
    Recordset(const Recordset &) = delete;
    Recordset &operator=(const Recordset &) = delete;

    // One column of the current record, or of the record being added.
    class Field {
    public:
        Valore Value() const;           // 3021 without a current record, 3265 when there is no such column
        void SetValue(const Valore &v); // kept until Update; 3020 outside Edit/AddNew; 3421 when it does not convert
        QString Name() const;
        QString TipoDichiarato() const; // the column's type as the table declares it, in capitals ("BOOLEAN", "DATE")

    private:
        friend class Recordset;
        Field(Recordset &rs, int colonna) : m_rs(&rs), m_colonna(colonna) {}
        Recordset *m_rs;
        int m_colonna;
    };
    class Campi {
    public:
        int Count() const;
        Field Item(QStringView nome) const; // 3265
        Field Item(int indice) const;       // 3265
        QStringList Names() const;

    private:
        friend class Recordset;
        explicit Campi(Recordset &rs) : m_rs(&rs) {}
        Recordset *m_rs;
    };
    Campi Fields();
    Field operator[](QStringView nome); // Fields().Item(nome)

    int RecordCount() const;              // 0 when empty; exact from the start
    bool Eof() const;                     // behind the last record (also when empty)
    void MoveFirst();                     // 3021 when empty
    void MoveLast();                      // 3021 when empty
    void MoveNext();                      // from the last record to Eof; 3021 at Eof
    int AbsolutePosition() const;         // 0-based place of the current record, -1 without one
    void SetAbsolutePosition(int indice); // 3021 when out of range

    void Edit();   // opens the current record for change
    void AddNew(); // opens a new record
    void Update(); // one atomic statement with the stored columns only; after AddNew the new record is the last
    void CancelUpdate();
    void Delete(); // deletes the current record; a next MoveNext goes on behind it

    // Goes to the first record that matches the criterion ("[nomeradio]like'...'"), else stays and sets NoMatch.
    void FindFirst(const QString &criterio);
    bool NoMatch() const;

    // Reads a record's columns without moving, for lists: Null where the row is gone. `riga` is 0-based. A screenful of
    // rows is read at once and kept until the record set moves or writes.
    Valore leggi(int riga, int colonna) const;

private:
    friend class Data;
    struct Stato;
    explicit Recordset(std::unique_ptr<Stato> stato);
    Stato &stato() const; // 3021 when nothing is open
    std::unique_ptr<Stato> m_stato;
};

} // namespace zuvora
