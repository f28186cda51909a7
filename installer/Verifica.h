#pragma once

#include <QString>
#include <QStringList>

namespace zuvora::installa {

// Checks the installation in `cartella`: both databases open and whole, every table and column there, the right number
// of rows, and the files that rows name. One Italian sentence a finding; empty when the installation is sound. Opens
// everything for reading only and changes nothing. The program itself is not looked for.
QStringList verificaInstallazione(const QString &cartella);

} // namespace zuvora::installa
