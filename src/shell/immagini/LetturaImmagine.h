#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace zuvora {

// Picture files are told by their content, whatever the name says. Only regular files are opened: a pipe would block.

// Size in pixels as the file's header tells it. Empty when the file is missing, is no picture, or doesn't say.
QSize misuraImmagine(const QString &percorso);
// True when the file begins like a picture that can be shown; its pixels are not decoded.
bool pareImmagine(const QString &percorso);

enum class Riduzione {
    Proporzioni, // to fit into the room, proportions kept
    Riempi       // to exactly the room
};
// The picture, reduced when it is larger than `massimo` (pixels) in either direction, never enlarged. Null when it
// can't be read.
QImage leggiImmagine(const QString &percorso, const QSize &massimo, Riduzione riduzione = Riduzione::Proporzioni);

// The picture's top left corner at the picture's own size, at most `misura` (pixels) of it. Null when it can't be read.
QImage leggiRitaglio(const QString &percorso, const QSize &misura);

} // namespace zuvora
