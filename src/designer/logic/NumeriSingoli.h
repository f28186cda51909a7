#pragma once

#include "shell/store/Valore.h"

#include <QString>
#include <optional>

namespace zuvora {

// The number in a value or a text (point or comma before the decimals); nothing when there is none or it exceeds single
// precision. Null is no number.
std::optional<double> numeroDa(const Valore &v);
std::optional<double> numeroDa(const QString &testo);
// A number as shown in a box: plain decimal, as few digits as single precision needs.
QString testoNumero(double valore);
// The number as a save hands it to the store.
Valore singolo(double valore);

} // namespace zuvora
