#pragma once

#include "etichette/logic/Etichetta.h"

#include <QFuture>
#include <atomic>
#include <memory>

class QWidget;

namespace zuvora {

// Writes a ticket on a thread of its own, which nobody has to wait for: a folder on the network may never answer. The
// result is empty, or the Italian reason. What turns out to be `superata` by the time it is written goes again.
QFuture<QString> avviaScrittura(const QString &file, const Etichetta &etichetta,
                                std::shared_ptr<std::atomic<bool>> superata = {});

// The same, waited for: the windows stay alive, and after a moment the user may give the waiting up.
QString scriviAspettando(QWidget *padre, const QString &file, const Etichetta &etichetta);

} // namespace zuvora
