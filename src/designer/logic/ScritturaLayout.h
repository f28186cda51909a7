#pragma once

#include "designer/logic/DisplayLayout.h"
#include "shell/logic/Messaggio.h"
#include "shell/store/Recordset.h"

namespace zuvora {

// How far a walk over the rows of a layout table has come. Each row is stored by itself: what was written before a
// failure stays.
struct EsitoScrittura {
    int scritte = 0;   // rows written
    int cambiate = 0;  // those of them that held something else before
    int raggiunta = 0; // number of the last row begun, 0 when the table could not be opened
    QString errore;    // why the walk ended early, an Italian sentence; empty when it did not

    bool riuscito() const { return errore.isEmpty(); }
    bool completo() const { return riuscito() && scritte == righeLayout; }
};

// Writes the elements to the rows, one Update each, and sets WB1 to 6760 by 5055 twips first. A table with fewer rows
// gets only those it has. Nothing else in the layout changes, so it can be saved again after a failure.
EsitoScrittura scriviLayout(Recordset &rs, DisplayLayout &layout);
// Opens the layout's table and writes it. A table that can't be opened is an outcome with 0 rows.
EsitoScrittura SalvaLayout(DisplayLayout &layout, const QString &cartella);
// What the message form says after a save: "Memorizzazione effettuata !", or the row reached, how many rows are now
// different, and why it ended.
Messaggio messaggioSalva(const EsitoScrittura &esito);

// Copies the 16 columns of each row, Null included; rows correspond by position alone.
EsitoScrittura copiaRighe(Recordset &sorgente, Recordset &destinazione);
// As copiaRighe, but every element of the target becomes invisible.
EsitoScrittura cancellaRighe(Recordset &base, Recordset &destinazione);

// Tells an incomplete walk in two lines: `azione` as in "Copia", then the row reached or the number of rows written.
Messaggio messaggioIncompleto(QStringView azione, const EsitoScrittura &esito);

} // namespace zuvora
