#pragma once

#include "installer/Crea.h"

namespace zuvora::installa {

struct OpzioniRipristina {
    QString file;       // the copy
    bool sopra = false; // in place of an installation that is there; it is saved first
    OpzioniCrea crea;   // the folder, and the product's own files
};

// Makes the installation of a copy anew, its paths turned to the new folder; whole or not at all. In place of another
// one the databases are replaced through the engine, with the program open too; files that the copy doesn't hold stay.
// A damaged copy is refused before anything is touched. Never throws.
Esito ripristinaInstallazione(const OpzioniRipristina &opzioni);

} // namespace zuvora::installa
