#pragma once

#include "shell/store/Valore.h"

#include <QString>
#include <QStringView>
#include <optional>

namespace zuvora {

// Every apostrophe becomes a question mark: the wildcard for any one character in a `like`, so that the text can
// neither end the quotes of a criterion nor miss its row.
QString SostituisciApice(const QString &testo);

// The platform's numeric test: numeroDi finds a number in the text.
bool eNumerico(QStringView testo);
// The number that a text begins with, its decimals behind a point; 0 when it begins with none.
double Val(const QString &testo);

// The number when it fits into single precision.
std::optional<double> singoloDi(const Valore &v);
// The number as a save hands it to the store.
Valore singolo(double valore);
// A number as shown in a box: plain decimal, as few digits as single precision needs.
QString testoNumero(double valore);

} // namespace zuvora
