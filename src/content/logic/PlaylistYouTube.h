#pragma once

#include "shell/store/Recordset.h"

#include <QString>
#include <QStringView>

namespace zuvora {

// The table VideoYT: playlists of YouTube under their titles.
inline constexpr QStringView elencoYouTube = u"Select * from [VideoYT] order by[Titolo]";

// True when a stored title matches: without regard to case, and with "*" and "?" as wildcards.
bool titoloPresente(const QString &cartella, const QString &titolo);
void aggiungiYouTube(Recordset &elenco, const QString &titolo, const QString &url);
void salvaPredefinitaYouTube(const QString &cartella, const QString &url);

} // namespace zuvora
