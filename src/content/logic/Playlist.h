#pragma once

#include "content/logic/TipiPlaylist.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace zuvora {

// A playlist is a text file of full paths, one a line, in the platform's 8-bit code page with CR LF.

// True when the path exists and isn't a folder; false too when it can't be read.
bool FileEsiste(const QString &percorso);

struct PlaylistLetta {
    QStringList righe;
    QString guasto; // an Italian reason when nothing was read, else empty
};
// Takes lines ended by LF alone, a last line without an end, and bytes that the code page doesn't define: all are
// written back as they came. Only a regular file is opened, and none larger than massimoPlaylist.
PlaylistLetta leggiPlaylist(const QString &percorso);
inline constexpr qint64 massimoPlaylist = 16 << 20; // bytes

// Replaces the file whole, or leaves it as it was and gives an Italian reason; a path that holds a character which
// can't be stored is such a reason.
QString scriviPlaylist(const QString &percorso, const QStringList &righe);

// True when the name ends like a playlist of this kind, case and all: only such a file is loaded or made the default.
bool haEstensione(const TipoPlaylist &tipo, const QString &percorso);
// The path with the kind's ending, unless it has that in any case.
QString conEstensione(const TipoPlaylist &tipo, const QString &percorso);
// True when a file's name matches the kind's patterns for contents.
bool eContenuto(const TipoPlaylist &tipo, const QString &percorso);

// The report of missing files in the current folder, each path in double quotes; an Italian reason when it can't be
// written, else empty.
QString scriviRapporto(const TipoPlaylist &tipo, const QStringList &mancanti);
QString percorsoRapporto(const TipoPlaylist &tipo);

} // namespace zuvora
