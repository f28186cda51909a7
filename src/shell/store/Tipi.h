#pragma once

#include "shell/store/Valore.h"

#include <QByteArray>
#include <optional>

namespace zuvora {

// What a column's declared type makes of a value.
enum class TipoColonna { Booleano, Intero, Reale, Testo, Libero };

TipoColonna tipoColonna(const QByteArray &dichiarato);
// The value as the column keeps it; nothing when it doesn't convert. Null stays Null.
std::optional<Valore> perColonna(const Valore &v, TipoColonna tipo);

} // namespace zuvora
