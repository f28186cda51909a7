#pragma once

#include <QStringList>

namespace zuvora::installa {

class PercorsiVecchi;

// Takes the user's files out of an old program's folder into a new installation: pictures, sounds, playlists (their
// paths turned to the new folder) and the spoken sentence. What the new installation has under the same name stays,
// but for the sentence. Gives notes on what was taken and what was not. Throws Guasto.
QStringList prendiCartella(const QString &vecchia, const QString &destinazione, const PercorsiVecchi &percorsi);

} // namespace zuvora::installa
