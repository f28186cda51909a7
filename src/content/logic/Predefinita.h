#pragma once

#include "content/logic/TipiPlaylist.h"
#include "shell/store/Valore.h"

#include <QString>
#include <optional>

namespace zuvora {

// The default playlist, as the settings row keeps it.
inline constexpr qsizetype massimoPercorsoPlaylist = 254; // characters

enum class Predefinibile {
    No, // nothing to make the default: no playlist, or a file that doesn't end like one
    TroppoLunga,
    Si
};
Predefinibile predefinibile(const TipoPlaylist &tipo, const QString &percorso);

// `tempo` in milliseconds; nothing for a kind without a time. Stored as whole milliseconds.
void salvaPredefinita(const QString &cartella, const TipoPlaylist &tipo, const QString &percorso,
                      std::optional<double> tempo);

// Seconds an image stays on the screen, as the box shows them: "0" for Null.
QString secondiDaTempo(const Valore &tempo);
// Milliseconds of the box's text; nothing unless it is above 0 and at most 60 seconds.
std::optional<double> tempoDaSecondi(const QString &secondi);
QString leggiSecondi(const QString &cartella);

} // namespace zuvora
