#pragma once

#include "shell/host/Voce.h"

namespace zuvora {

// The file of the component that speaks; it lies beside the executable.
inline constexpr const char *fileComponenteVoce = "libzuvora-voce.so";

struct EsitoComponenteVoce {
    std::unique_ptr<Voce> voce; // null when the component can't be used
    QString motivo;             // then an Italian sentence that says why
};

// The program's own voice. The first call loads the component from `cartella`; it stays loaded until the program ends.
EsitoComponenteVoce creaVoce(const QString &cartella);

// The voice that the user has chosen on this desktop, through the platform's speech service. Whether there is one shows
// when it is to speak.
std::unique_ptr<Voce> creaVoceSistema();

} // namespace zuvora
