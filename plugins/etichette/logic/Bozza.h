#pragma once

#include "etichette/logic/Etichetta.h"

#include <optional>

namespace zuvora {

// The unsaved state that lies beside a ticket's file while it is being designed, so that a crash costs seconds.
class Bozza {
public:
    explicit Bozza(QString fileBiglietto);

    // What an earlier session left behind; nothing when it ended in order or left something that can't be read.
    std::optional<Etichetta> lasciata() const;
    void togli() const;
    QString percorso() const;

private:
    QString m_file;
};

} // namespace zuvora
