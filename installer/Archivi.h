#pragma once

#include "installer/Contenuto.h"

namespace zuvora::installa {

struct Destinazione {
    QString cartella;     // where the installation will lie, absolute
    bool esempio = false; // tables that have sample rows get those
};

// Makes the database `file` (which must not exist) with its schema and start rows. Throws Guasto.
void creaArchivio(const Archivio &archivio, const QString &file, const Destinazione &destinazione);
// Sets the news source in the settings database `file`, for an installation that will lie in `cartella`. Throws Guasto.
void scegliNotizie(const QString &file, const QString &indirizzo, const QString &cartella);

} // namespace zuvora::installa
