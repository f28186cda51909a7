#pragma once

#include "installer/ControlloArchivio.h"

#include <optional>

namespace zuvora::installa {

// Looks for the files and folders that the rows of the settings database name, and at the catalogue of decorations,
// for the installation in `cartella` (absolute); what is wrong becomes a finding of `zuvora`.
void controllaRiferimenti(ControlloArchivio &zuvora, const QString &cartella);

// The kiosk's database by the folder that the settings database names, or that an installation begins with when the
// database can't tell. A folder that is not set is a finding, one on another machine a note; both give nothing.
std::optional<QString> archivioDelTotem(ControlloArchivio &zuvora, const QString &cartella);

} // namespace zuvora::installa
