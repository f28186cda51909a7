#pragma once

#include "shell/store/Valore.h"

#include <QDateTime>
#include <optional>

namespace zuvora {

// What the ticket designer is told about the contents of a variable.
enum class TipoEtichetta : int {
    Logico = 0x02000000, // "True" or "False"
    Data = 0x04000002,   // a count of days, with a fraction for the time; day 0 is 30 December 1899
    Numero = 0x08000000, // plain decimal, with a point
    Testo = 0x10000000
};

// The kind of what a column holds; an amount of money, a decimal and a byte are texts. Null has the kind that the
// column is declared with.
TipoEtichetta tipoEtichetta(const QString &tipoDichiarato, const Valore &valore);

// 30 December 1899: a time of day alone lies on it.
QDate giornoZero();
// A date, a time or both, as databases and people write them. Nothing for any other text.
std::optional<QDateTime> momentoDa(const QString &testo);

} // namespace zuvora
