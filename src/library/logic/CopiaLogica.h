#pragma once

#include "designer/logic/ScritturaLayout.h"
#include "shell/logic/Messaggio.h"

#include <QString>

namespace zuvora {

// Radio buttons of the copy form to layout numbers: L0(0) to L0(9) are 1 to 10, L0(10) is 0, the base; L1(n) is n + 1.
int layoutSorgente(int L0);
int layoutDestinazione(int L1);

// What the message form says, and whether the walk went through all rows.
struct EsitoCopia {
    bool completo = false;
    Messaggio messaggio;
};

// Overwrites layout `destinazione` (1 to 10) with `sorgente` (0 to 10). Never throws: a failure on the way ends the
// walk and the message tells how many rows were written. A layout onto itself, and the base as target, are refused.
EsitoCopia copiaLayout(const QString &cartella, int sorgente, int destinazione);
// Clears layout `numero` ("1" to "10"): a copy of the base with every element invisible.
EsitoCopia RipristinaLayout(const QString &cartella, const QString &numero);

} // namespace zuvora
