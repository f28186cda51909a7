#pragma once

#include "content/logic/TipiPlaylist.h"

#include <QString>
#include <QStringList>

namespace zuvora {

class Percorsi;

// A playlist is a text file of full paths, one a line, in the platform's 8-bit code page: see leggiRighe, scriviRighe.

// True when the name ends like a playlist of this kind, case and all: only such a file is loaded or made the default.
bool haEstensione(const TipoPlaylist &tipo, const QString &percorso);
// The path with the kind's ending, unless it has that in any case.
QString conEstensione(const TipoPlaylist &tipo, const QString &percorso);
// True when a file's name matches the kind's patterns for what a playlist lists.
bool eContenuto(const TipoPlaylist &tipo, const QString &percorso);

// True when an entry's file is there and isn't a folder, in whatever form its path is written. May block as long as the
// disk does.
bool vocePresente(const Percorsi &percorsi, const QString &voce);

// The report of missing files in the current folder, each path in double quotes. Gives an Italian reason when it can't
// be written, else empty.
QString scriviRapporto(const TipoPlaylist &tipo, const QStringList &mancanti);
QString percorsoRapporto(const TipoPlaylist &tipo);

} // namespace zuvora
