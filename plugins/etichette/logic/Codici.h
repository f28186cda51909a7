#pragma once

#include "etichette/logic/Etichetta.h"

#include <QBitArray>

namespace zuvora {

// A bar code as its dark and light modules: one row for bars, a square of them for the others.
struct Codice {
    int colonne = 0;
    int righe = 0;
    int margine = 0; // light modules that the code needs on each side
    QBitArray scuri; // row by row
    QString errore;  // Italian; then there are no modules

    bool bidimensionale() const { return righe > 1; }
    bool scuro(int colonna, int riga) const { return scuri.testBit(riga * colonne + colonna); }
};

// Makes the code for the contents, or says in Italian why they don't fit it.
Codice codifica(Simbologia simbologia, const QString &contenuto);

// "Code 128" and so on, for the user.
QString nomeSimbologia(Simbologia simbologia);

} // namespace zuvora
