#pragma once

#include "shell/logic/Avanzamento.h"

#include <QImage>
#include <QSize>
#include <QString>

namespace zuvora {

// Picture files are told by their content, whatever the name says, and turned as the camera was held. A picture counts
// as readable only when its file is whole. Only regular files are opened: a pipe would block. Every function may run on
// any thread.

inline constexpr qint64 fileImmagineMassimo = 200LL * 1024 * 1024; // bytes

enum class Riduzione {
    Proporzioni, // to fit into the room, proportions kept
    Riempi       // to exactly the room
};

// How much of a picture must be held in memory depends on what becomes of it.
enum class Lettura {
    Ridotta, // leggi
    Ritaglio // leggiRitaglio
};

struct ImmagineLetta {
    QImage immagine; // null when it can't be read
    QString motivo;  // why it can't, an Italian sentence; empty also after a cancel
    bool annullata = false;
};
// The picture decoded whole, reduced when it is larger than `massimo` (pixels) in either direction, never enlarged.
// Ends at once when it is called off.
ImmagineLetta leggi(const QString &percorso, const QSize &massimo, Riduzione riduzione = Riduzione::Proporzioni,
                    Avanzamento *avanzamento = nullptr);
QImage leggiImmagine(const QString &percorso, const QSize &massimo, Riduzione riduzione = Riduzione::Proporzioni);

// The picture's top left corner at the picture's own size, at most `misura` (pixels) of it.
ImmagineLetta leggiRitaglio(const QString &percorso, const QSize &misura);

// Size in pixels as the file's header tells it. Empty when the file is missing, is no picture, or doesn't say.
QSize misuraImmagine(const QString &percorso);

// Why the file can't be used as a picture, an Italian sentence, as far as that is told without decoding it: missing, no
// picture, cut off, too large for that way of reading. Empty when nothing speaks against it.
QString difettoImmagine(const QString &percorso, Lettura lettura = Lettura::Ridotta);

} // namespace zuvora
