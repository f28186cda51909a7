#pragma once

#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <memory>
#include <vector>

namespace zuvora {

// A save of a form or page to the settings database.
struct Salvataggio {
    const char *nome;
    const char *tabella;                                                // that it writes
    std::function<std::unique_ptr<QWidget>(InstallazioneProva &)> apri; // the window, filled in as a user would
    std::function<void(QWidget &)> salva;
    int domande = 0; // to confirm before it is done
    int avvisi = 0;  // when it is done
};
// Clicks the button where the user would.
std::function<void(QWidget &)> preme(const char *bottone);

// Locks the database, makes it read-only, and takes the table away, one after the other: each save must say in one
// message that it was not done, keep what was typed, change no row; and be done once the obstacle is gone. The
// installation is a secondary one. No caption may be cut, and each field must have a name.
void provaSalvataggi(const std::vector<Salvataggio> &tutti);

} // namespace zuvora
