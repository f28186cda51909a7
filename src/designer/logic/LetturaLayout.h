#pragma once

#include "designer/logic/DisplayLayout.h"
#include "designer/logic/ImmaginiQt.h"
#include "shell/store/Recordset.h"

#include <QStringList>

namespace zuvora {

// What the user should know after a layout was read. The layout is usable in every case.
struct EsitoLettura {
    int righe = 0;      // rows found, at most 70
    QStringList avvisi; // Italian sentences, empty when all went well

    // All sentences for one message, at most `massimo` of them.
    QString testo(int massimo = 8) const;
};

// Reads the rows into a layout that stands at its start values. `cartella` is the application folder.
// Rows 1 to 31: a value that is missing or no good leaves that property, silently. Row 32: a background that can't be
// loaded ends the row, silently, and its path doesn't reach Label2. Rows 33 to 70: a bad value leaves that property, a
// picture that can't be loaded leaves the decoration marked as missing with its path kept; both add a sentence. Fewer
// rows than 70 leave the other elements at their start values and add a sentence.
// Throws EngineError when the table itself can't be read (locked, damaged): such a layout must not be edited, for a
// save would replace what wasn't read.
EsitoLettura leggiLayout(Recordset &rs, DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella);

// Opens the layout's table in the application folder and reads it. Throws EngineError.
EsitoLettura CaricaLayout(DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella);

} // namespace zuvora
