#pragma once

#include "installer/Crea.h"

#include <functional>

namespace zuvora::installa {

struct OpzioniImporta {
    QString archivio; // the old settings database
    QString totem;    // the old kiosk's database; empty: the new one begins as in a new installation
    QString vecchia;  // the old program's folder, for the user's files; empty: only what the databases hold
    OpzioniCrea crea; // the new installation
    QString lettore;  // program that reads the old databases; empty: the running one
};

// Makes a complete installation out of the databases of an old one, which are only read. It appears whole or not at
// all. `progresso` gets a line for each table and, at the end, the report. Never throws.
Esito importaInstallazione(const OpzioniImporta &opzioni, const std::function<void(const QString &)> &progresso);

} // namespace zuvora::installa
