#pragma once

#include "etichette/logic/Etichetta.h"

#include <QFuture>
#include <QPromise>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>

class QWidget;

namespace zuvora {

// Work on a thread of its own, which nobody has to wait for: a folder on the network may never answer.
template <class T> QFuture<T> avvia(std::function<T()> lavoro) {
    QPromise<T> promessa;
    QFuture<T> futuro = promessa.future();
    std::thread([promessa = std::move(promessa), lavoro = std::move(lavoro)]() mutable {
        promessa.start();
        promessa.addResult(lavoro());
        promessa.finish();
    }).detach();
    return futuro;
}

// Waits with the windows alive. After a moment the user may give it up: then false.
bool attendi(QWidget *padre, const QFuture<void> &futuro);

// Writes a ticket in that way. The result is empty, or the Italian reason. What turns out to be `superata` by the time
// it is written goes again.
QFuture<QString> avviaScrittura(const QString &file, const Etichetta &etichetta,
                                std::shared_ptr<std::atomic<bool>> superata = {});

// The same, waited for.
QString scriviAspettando(QWidget *padre, const QString &file, const Etichetta &etichetta);

} // namespace zuvora
