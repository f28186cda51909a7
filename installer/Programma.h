#pragma once

#include "installer/Crea.h"

#include <QStringList>

namespace zuvora::installa {

// What of `origine` (the folder of the program's executable) belongs to the program and goes into each installation:
// executables, components, the guide.
QStringList partiDelProgramma(const QString &origine);

// Brings the program of the installation in `cartella` to that of `origine` (empty: the folder of the running
// executable). Each file is replaced at once, so that a running program goes on with the old one; data are not touched.
// Refused: a folder that is no installation, and data of a version that this program doesn't know yet. Never throws.
Esito aggiornaInstallazione(const QString &cartella, const QString &origine = {});

} // namespace zuvora::installa
