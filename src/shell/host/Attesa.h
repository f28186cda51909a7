#pragma once

#include "shell/host/Ambiente.h"
#include "shell/logic/Avanzamento.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace zuvora {

// Runs `lavoro` on a thread of its own and returns when it is done; what it throws is thrown on here. The windows stay
// alive: the user's input waits, and after a moment a form over `padre` says `testo`, shows how far the work is and
// offers to call it off. False when the user did: nobody waits for the work any more, so it must own what it uses.
bool aspetta(const Ambiente &ambiente, QWidget *padre, const QString &testo,
             const std::function<void(Avanzamento &)> &lavoro);

// The same for a work with a result; nothing when it was called off.
template <class T>
std::optional<T> aspettaEsito(const Ambiente &ambiente, QWidget *padre, const QString &testo,
                              std::function<T(Avanzamento &)> lavoro) {
    const auto esito = std::make_shared<std::optional<T>>();
    const bool fatto =
        aspetta(ambiente, padre, testo, [esito, lavoro = std::move(lavoro)](Avanzamento &a) { *esito = lavoro(a); });
    return fatto ? std::move(*esito) : std::optional<T>();
}

} // namespace zuvora
