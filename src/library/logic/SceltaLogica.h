#pragma once

#include "designer/logic/DisplayLayout.h"
#include "shell/logic/Messaggio.h"
#include "shell/store/Recordset.h"

#include <array>
#include <optional>

namespace zuvora {

// Lines of the layout selection: line 0 is LayoutBase, line i the table Layout followed by i (tabellaLayout).

// The line of the default layout: 99 gives line 0, 1 to 10 that line; nothing for Null or any other value.
std::optional<int> lineaPredefinita(const Valore &qualelayout);
// What Label2 shows: "Layout Base", "Layout 7", and "n.d." without a valid default.
QString testoPredefinito(std::optional<int> linea);
// The names as shown beside line i or on the copy form: "Layout Base", "Layout 3".
QString nomeLinea(int linea);

struct LineaLayout {
    QString nome;
    QString descrizione;
    bool presente = true; // the table has a row for it

    friend bool operator==(const LineaLayout &, const LineaLayout &) = default;
};
using LineeLayout = std::array<LineaLayout, numeroLayout>;

// The lines as the form's definition holds them.
LineeLayout lineeIniziali();
// Reads names and descriptions of lines 1 to 10; row 1 isn't read and line 0 keeps its texts. A line without a row is
// empty and not `presente`. Throws EngineError.
LineeLayout leggiLinee(Recordset &descrizioni);
// The sentence for lines without a row, empty when all eleven are there.
QString avvisoLinee(const LineeLayout &linee);
// Writes all lines that have a row, line 0 included, one Update each. The message: "Salvataggio effettuato !", or how
// many rows were written and why no more. Never throws.
Messaggio salvaLinee(Recordset &descrizioni, const LineeLayout &linee);

// qualelayout of the first row of Configurazione, Null when there is none.
Valore leggiQualeLayout(Recordset &configurazione);
// Stores line 1 to 10 as the default. Line 0 and no line at all are refused and nothing is stored: see the message.
// `salvato` tells. Throws EngineError.
struct EsitoPredefinito {
    bool salvato = false;
    Messaggio messaggio;
};
EsitoPredefinito impostaPredefinito(const QString &cartella, std::optional<int> linea);
// For "Carica Layout selezionato" without a line.
Messaggio messaggioNessunaLinea();

} // namespace zuvora
