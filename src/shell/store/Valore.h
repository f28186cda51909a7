#pragma once

#include <QString>
#include <QVariant>
#include <optional>

namespace zuvora {

// What a column holds: bool, qlonglong, double, QString or Null. Null is the invalid QVariant; an empty text is not
// Null.
using Valore = QVariant;

// Null test, conversions with the engine's rules. None of them throws.
bool eNull(const Valore &v);
bool eVero(const Valore &v); // equals True: bool true, or a number other than 0; Null is not

// The number in a value, Null and booleans apart, or in a text: a sign, digits with a decimal comma or point, an
// exponent, blanks around it. Nothing when there is none. What is compared with a constant matches none then.
std::optional<double> numeroDi(const Valore &v);
std::optional<double> numeroDi(const QString &testo);

QString testoDi(const Valore &v, const QString &seNull); // the value as text; numbers plain decimal; seNull for Null

} // namespace zuvora
