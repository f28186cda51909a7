#pragma once

#include "shell/host/Etichette.h"

namespace zuvora {

// The file of the ticket designer; it lies beside the executable.
inline constexpr const char *fileComponenteEtichette = "libzuvora-etichette.so";

struct EsitoComponenteEtichette {
    std::unique_ptr<Etichette> etichette; // null when the component can't be used
    QString motivo;                       // then an Italian text that says why
};

// The first call loads the component from `cartella`; it stays loaded until the program ends. What the designer asks
// its user goes through `dialoghi`.
EsitoComponenteEtichette creaEtichette(const QString &cartella, Dialoghi &dialoghi);

} // namespace zuvora
