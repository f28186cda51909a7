#pragma once

#include "shell/logic/ValoriCondivisi.h"

namespace zuvora {

class Dialoghi;
class Piattaforma;

// What every form is given: the shared values, the dialogs and the platform. References live as long as the program.
struct Ambiente {
    ValoriCondivisi &valori;
    Dialoghi &dialoghi;
    Piattaforma &piattaforma;
};

} // namespace zuvora
