#pragma once

#include "installer/importa/Flusso.h"

#include <functional>

namespace zuvora::installa {

struct AscoltoAccess {
    std::function<void(const TabellaAccess &)> tabella;
    std::function<void(const QStringList &)> riga; // of the table told last
    std::function<void(const QString &)> collegata;
};

// Has a process of our own read the old database and tells its contents as they come. Throws Guasto when the file is
// refused, damaged, or its reader crashes or falls silent. `lettore` is the program to run; empty: this one.
void ascoltaAccess(const QString &file, const AscoltoAccess &ascolto, const QString &lettore = {});

// The word after which this program is that reader.
inline constexpr QLatin1StringView parolaLettore{"--leggi-access"};

} // namespace zuvora::installa
