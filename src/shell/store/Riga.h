#pragma once

#include "shell/store/Valore.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace zuvora {

class Data;

// The one way to a row of settings: the first row of a table, as it stands in the file now. Columns are found without
// regard to case. Everything here throws EngineError; 3021 when the table has no row.

// A row that was read.
class Riga {
public:
    Riga(QString archivio, QStringList nomi, QList<Valore> valori);

    const Valore &operator[](QStringView colonna) const;                  // 3265 when there is no such column
    QString testo(QStringView colonna, const QString &seNull = {}) const; // as testoDi
    bool vero(QStringView colonna) const;                                 // as eVero
    bool ha(QStringView colonna) const { return posto(colonna) >= 0; }
    const QStringList &nomi() const { return m_nomi; }

private:
    qsizetype posto(QStringView colonna) const;
    QString m_archivio;
    QStringList m_nomi;
    QList<Valore> m_valori;
};

// What is written: a column and its value.
struct Assegno {
    QStringView colonna;
    Valore valore;
};

// The settings database in the application folder. `tabella` is a table name or SQL text.
Riga leggiRiga(const QString &cartella, const QString &tabella);
// Only the columns named, in one statement; nothing is written when one of them fails.
void scriviRiga(const QString &cartella, const QString &tabella, const QList<Assegno> &valori);

// Over a connection that stays open: for who reads several rows.
Riga leggiRiga(Data &dato, const QString &cartella, const QString &tabella);

// The same for any database file, as the kiosk's.
Riga leggiRigaDi(const QString &archivio, const QString &tabella);
void scriviRigaDi(const QString &archivio, const QString &tabella, const QList<Assegno> &valori);

} // namespace zuvora
