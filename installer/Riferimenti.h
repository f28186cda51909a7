#pragma once

#include "installer/ControlloArchivio.h"

namespace zuvora::installa {

// Looks for the files and folders that the rows of the settings database name, and at the catalogue of decorations,
// for the installation in `cartella` (absolute); what is missing becomes a finding of `zuvora`.
void controllaRiferimenti(ControlloArchivio &zuvora, const QString &cartella);

// The folder of the kiosk as the settings database names it; the one that an installation begins with, when the
// database can't tell. A folder that is not set or lies on another machine is a finding, and gives nothing.
std::optional<QString> cartellaTotem(ControlloArchivio &zuvora, const QString &cartella);

} // namespace zuvora::installa
