#pragma once

#include "etichette/logic/Etichetta.h"

namespace zuvora {

// Hands a finished PDF to the printer's queue. Empty when the print system has taken the whole job, else the Italian
// reason. Copies, cutter and darkness are asked for where the printer's driver offers them.
QString stampaPdf(const QString &stampante, const QByteArray &pdf, const Stampa &stampa);

// The queues of this machine, the default one first.
QStringList stampanti();

} // namespace zuvora
