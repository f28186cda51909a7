#pragma once

#include <QImage>
#include <QString>
#include <functional>

namespace zuvora {

class Percorsi;

enum class EsitoSfondo {
    Nessuno, // no background is set
    Caricato,
    Inaccessibile, // no such folder, or not to be opened: the screen goes without it
    Mancante,      // no such file in the folder: the screen isn't arranged
    NonLeggibile   // no picture that can be read: the same
};

struct SfondoTotem {
    EsitoSfondo esito = EsitoSfondo::Nessuno;
    QImage immagine; // at its own size, as much of it as the window shows
    QString motivo;  // of NonLeggibile, an Italian sentence
};

// Reads the background picture for a window of so many pixels. `scritto` is the path as the row has it, empty for none.
// The disk is asked off the thread: one that doesn't answer holds the caller up for a bounded time only.
// `intanto` is called on the caller's thread while the picture is being decoded; not when it comes to no decoding.
SfondoTotem leggiSfondo(const Percorsi &percorsi, const QString &scritto, const QSize &finestra,
                        const std::function<void()> &intanto = {});

// What the user is told: empty when there is nothing to tell.
QString fraseSfondo(const SfondoTotem &sfondo, const QString &scritto);
// True when title, date and buttons stay as they were.
bool fermaDisposizione(EsitoSfondo esito);

} // namespace zuvora
