#pragma once

#include "installer/Crea.h"

#include <functional>

namespace zuvora::installa {

struct OpzioniSalva {
    QString cartella; // of the installation
    QString file;     // the copy
    int tieni = 0;    // above 0: the copy's name gets date and time, and only the last so many stay
};

// Saves an installation into one file, with the program open too. The file is whole and read back when success is told;
// until then an older one of its name stays. `progresso` gets what the copy doesn't hold. Never throws.
Esito salvaInstallazione(const OpzioniSalva &opzioni, const std::function<void(const QString &)> &progresso);

// Tells what a copy holds, after checking all of it. Never throws.
Esito elencaCopia(const QString &file);

} // namespace zuvora::installa
