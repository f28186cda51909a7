#pragma once

#include "shell/store/Connessione.h"

#include <QList>
#include <optional>
#include <vector>

namespace zuvora {

struct Colonna {
    QString nome;          // as the record set shows it
    QByteArray origine;    // the table's column behind it
    QByteArray dichiarato; // declared type, in capitals
    TipoColonna tipo = TipoColonna::Libero;
};

using Valori = QList<Valore>;

// What a record source gave when it was opened: the columns, and either the keys of its rows in their order or, where
// the rows have no key, a read-only picture of their values.
struct Sorgente {
    QString testo;      // table name or SQL text
    QByteArray tabella; // the one table behind the rows; empty for a picture
    QByteArray chiave;  // what tells its rows apart, as SQL: the key column or the hidden row number
    std::vector<Colonna> colonne;
    int colonnaChiave = -1; // the column that is the key, -1 when none shows it
    std::vector<qint64> chiavi;
    std::vector<Valori> righe;   // the picture
    std::optional<Valori> prima; // the first row, read with its key; only of a table opened for one row

    bool aChiavi() const { return !tabella.isEmpty(); }
    int quante() const { return static_cast<int>(aChiavi() ? chiavi.size() : righe.size()); }
    QByteArray elencoColonne() const; // for a select on the table
};

// Takes at most `limite` rows. 3078, 3265 or 3075 when the text doesn't fit the database.
Sorgente apriSorgente(Connessione &c, const QString &testo, int limite = righeMassime);
// The place of the first row that matches the criterion, in the order of the source; -1 when none does.
int trovaPrimo(Connessione &c, const Sorgente &sorgente, const QString &criterio);

} // namespace zuvora
