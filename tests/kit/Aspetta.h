#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace zuvora {

// Runs the event loop until the condition holds; false when the time is over. QTest::qWaitFor sleeps 10 ms after each
// look at the events: the web engine, which lays its work on the loop piece by piece, takes seconds for a page then.
template <class Condizione> bool aspetta(Condizione condizione, int massimo_ms = 20000) {
    const QDeadlineTimer fine(massimo_ms);
    QTimer battito; // looks at the condition when nothing else happens
    battito.start(5);
    while (!condizione()) {
        if (fine.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

} // namespace zuvora
