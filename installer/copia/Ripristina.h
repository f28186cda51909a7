#pragma once

#include "installer/Crea.h"
#include "installer/Interruzione.h"

#include <functional>

namespace zuvora::installa {

struct OpzioniRipristina {
    QString file;       // the copy
    bool sopra = false; // in place of an installation that is there; it is saved first
    OpzioniCrea crea;   // the folder, and the product's own files
    // Asked before each step that puts a file in another's place; throws to stop, which takes all of them back; and
    // before each that takes one back that a killed process left.
    std::function<void()> passo = fermaSeInterrotto;
};

// Makes the installation of a copy anew, its paths turned to the new folder; whole or not at all. In place of another
// one the databases are replaced through the engine, with the program open too; files that the copy doesn't hold stay.
// A process that is killed meanwhile leaves what the next call undoes first. A damaged copy is refused before anything
// is touched. Never throws.
Esito ripristinaInstallazione(const OpzioniRipristina &opzioni);

} // namespace zuvora::installa
