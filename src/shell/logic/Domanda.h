#pragma once

#include <QObject>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace zuvora {

// Questions to a disk or a network that may not answer. Each runs on a thread of its own, which nobody waits for: one
// that is stuck stays behind and keeps neither a form nor the program from ending. The question must own what it uses.

inline constexpr std::chrono::milliseconds attesaRisposta{2000}; // a path silent for longer counts as missing

// Runs `lavoro` on a thread, then `fine` once on the caller's: true when the work is done, false when the time is over.
// Nothing is called any more when `ricevente`, of the caller's thread, is gone.
void affida(std::function<void()> lavoro, QObject &ricevente, std::function<void(bool)> fine,
            std::chrono::milliseconds tempo = attesaRisposta);
// The same, and returns when one of the two has happened. The windows paint themselves meanwhile, but take no input.
bool affidaEAspetta(std::function<void()> lavoro, std::chrono::milliseconds tempo = attesaRisposta);

// Asks, and hands the answer over on the caller's thread; nothing when there was none in time.
template <class T>
void chiedi(std::function<T()> domanda, QObject &ricevente, std::function<void(std::optional<T>)> risposta,
            std::chrono::milliseconds tempo = attesaRisposta) {
    const auto esito = std::make_shared<std::optional<T>>();
    affida([esito, domanda = std::move(domanda)] { *esito = domanda(); }, ricevente,
           [esito, risposta = std::move(risposta)](bool fatto) {
               risposta(fatto ? std::move(*esito) : std::optional<T>());
           },
           tempo);
}

// Asks and waits for the answer.
template <class T>
std::optional<T> chiediEAspetta(std::function<T()> domanda, std::chrono::milliseconds tempo = attesaRisposta) {
    const auto esito = std::make_shared<std::optional<T>>();
    const bool fatto = affidaEAspetta([esito, domanda = std::move(domanda)] { *esito = domanda(); }, tempo);
    return fatto ? std::move(*esito) : std::optional<T>();
}

} // namespace zuvora
