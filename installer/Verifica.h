#pragma once

#include <QString>
#include <QStringList>

namespace zuvora::installa {

struct Rapporto {
    QStringList difetti; // one Italian sentence each
    QStringList note;    // what is no fault but should be known

    Rapporto &operator+=(const Rapporto &altro) {
        difetti += altro.difetti;
        note += altro.note;
        return *this;
    }
};

// Checks the installation in `cartella`: both databases open and whole, every table and column there, the right number
// of rows, values in their range, the files that rows name, the rights. Opens everything for reading only and changes
// nothing. The program itself is looked at only where it is there.
Rapporto verificaInstallazione(const QString &cartella);

} // namespace zuvora::installa
