#pragma once

#include "etichette/logic/Etichetta.h"

#include <utility>

namespace zuvora {

// What of the ticket's paper and print options a printer's driver offers, in its own words: option and value. `ppd` is
// the driver's description; drivers of label printers call one thing by many names. `carta` is in tenths of a
// millimetre.
QList<std::pair<QByteArray, QByteArray>> opzioniDriver(const QByteArray &ppd, const Stampa &stampa, const QSize &carta);

} // namespace zuvora
