#pragma once

#include "shell/store/Riga.h"

namespace zuvora {

class Recordset;

// One record of an open list, in one statement: the current one is changed, or one is added. Throws EngineError; a
// write that fails leaves nothing pending, so that what is read next is what is stored.
enum class Record { Corrente, Nuovo };
void scriviRecord(Recordset &elenco, Record quale, const QList<Assegno> &valori);

} // namespace zuvora
