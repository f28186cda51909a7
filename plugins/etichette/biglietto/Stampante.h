#pragma once

#include "etichette/biglietto/Uscite.h"

namespace zuvora {

// Draws the ticket, moved as it is told for this printer, and hands it to its queue: without a reason the print system
// has taken the whole job. Copies, cutter and darkness are asked for where the printer's driver offers them.
EsitoStampa stampa(const QString &stampante, const Etichetta &etichetta, const Valori &valori);

struct Stampanti {
    QStringList nomi; // the default one first
    QString motivo;   // Italian: why the print system can't be asked
};
Stampanti stampanti();

} // namespace zuvora
