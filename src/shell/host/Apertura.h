#pragma once

#include "shell/host/Ambiente.h"

#include <functional>

class QWidget;

namespace zuvora {

// What the main panel gives to a form or page that one of its buttons opens.
struct Apertura {
    const Ambiente &ambiente;
    QWidget *padre;                             // the panel
    int risoluzione;                            // of the call display: 1 to 4, 0 while none is chosen
    bool principale;                            // this is the principal installation
    std::function<void(int)> cambiaRisoluzione; // tells the panel a new one, 1 to 4, once it is stored
    std::function<void()> apriSito = {};        // the vendor's, in the browser
};

} // namespace zuvora
