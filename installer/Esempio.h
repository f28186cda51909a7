#pragma once

#include <QString>

namespace zuvora::installa {

// Writes the sample's pictures, film, music and playlists into `destinazione`, for an installation that will lie in
// `cartella` (absolute). Throws Guasto.
void scriviEsempio(const QString &destinazione, const QString &cartella);

} // namespace zuvora::installa
