#pragma once

#include "shell/host/VistaWeb.h"

namespace zuvora {

// The file of the component that shows web pages; it lies beside the executable.
inline constexpr const char *fileComponenteWeb = "libzuvora-web.so";

struct EsitoComponenteWeb {
    std::unique_ptr<VistaWeb> vista; // null when the component can't be used
    QString motivo;                  // then an Italian text that says why
};

// Makes a web view in `padre`. The first call loads the component from `cartella` and blocks for some tenths of a
// second; it stays loaded until the program ends.
EsitoComponenteWeb creaVistaWeb(const QString &cartella, QWidget *padre);

} // namespace zuvora
