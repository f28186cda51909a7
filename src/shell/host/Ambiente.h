#pragma once

#include "shell/logic/Percorsi.h"
#include "shell/logic/ValoriCondivisi.h"

namespace zuvora {

class Dialoghi;
class Piattaforma;

// What every form is given: the shared values, the dialogs, the platform and its paths. References live as long as the
// program.
struct Ambiente {
    ValoriCondivisi &valori;
    Dialoghi &dialoghi;
    Piattaforma &piattaforma;
    Percorsi percorsi = Percorsi();
};

} // namespace zuvora
