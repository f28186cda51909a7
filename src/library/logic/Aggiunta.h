#pragma once

#include <QString>

namespace zuvora {

// How a picture gets into the catalogue. Its copy is prepared beside its later place, then the row is written, then the
// copy gets its name: whenever the program ends on the way, the copy's temporary place tells what is left to do.

// Where the copy waits. The place also names the last row there was: the copy's own row has a higher ID.
// No two copies get the same place.
QString postoTemporaneo(const QString &cartellaCategoria, qlonglong ultimoID, const QString &nome);
// The highest ID of the catalogue, 0 when it is empty. Throws EngineError.
qlonglong ultimoID(const QString &PercorsoApplicazione);

// Puts the waiting copies whose row was written in their place and removes the others. Throws EngineError.
void riparaAggiunte(const QString &PercorsoApplicazione);

} // namespace zuvora
