#pragma once

#include "installer/Contenuto.h"

namespace zuvora::installa {

// Makes the database `file` (which must not exist) with its schema and start rows, for an installation that will lie
// in `cartella` (absolute). With `esempio`, tables that have sample rows get those. Throws Guasto.
void creaArchivio(const Archivio &archivio, const QString &file, const QString &cartella, bool esempio);

} // namespace zuvora::installa
