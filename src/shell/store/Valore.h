#pragma once

#include <QString>
#include <QVariant>

namespace zuvora {

// What a column holds: bool, qlonglong, double, QString or Null. Null is the invalid QVariant; an empty text is not
// Null.
using Valore = QVariant;

// Null test, conversions with the engine's rules. None of them throws.
bool eNull(const Valore &v);
bool eVero(const Valore &v); // equals True: bool true, or a number other than 0; Null is not
QString testoDi(const Valore &v, const QString &seNull); // the value as text; numbers plain decimal; seNull for Null

} // namespace zuvora
