#pragma once

#include "installer/Contenuto.h"

namespace zuvora::installa {

struct Destinazione {
    QString cartella;     // where the installation will lie, absolute
    bool esempio = false; // tables that have sample rows get those
    QString notizie;      // address of the news source; empty: that of the start rows
};

// Makes the database `file` (which must not exist) with its schema and start rows. Throws Guasto.
void creaArchivio(const Archivio &archivio, const QString &file, const Destinazione &destinazione);

} // namespace zuvora::installa
