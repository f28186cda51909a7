#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace zuvora {

// Every apostrophe becomes a question mark: the wildcard for any one character in a `like`, so that the text can
// neither end the quotes of a criterion nor miss its row.
QString SostituisciApice(const QString &testo);

// The platform's numeric test: an optional sign, digits with an optional decimal comma or point, blanks around it.
bool eNumerico(QStringView testo);
// The value of a numeric text, or nothing.
std::optional<double> numeroDi(QStringView testo);

} // namespace zuvora
