#pragma once

#include "shell/host/Lettore.h"

namespace zuvora {

// The file of the component that plays films and sounds; it lies beside the executable.
inline constexpr const char *fileComponenteLettore = "libzuvora-film.so";

struct EsitoComponenteLettore {
    std::unique_ptr<Lettore> lettore; // null when the component can't be used
    QString motivo;                   // then an Italian text that says why
};

// Makes a player whose picture lies in `padre`; sound only without one. The first call loads the component from
// `cartella` and takes a moment; it stays loaded until the program ends.
EsitoComponenteLettore creaLettore(const QString &cartella, QWidget *padre);

} // namespace zuvora
