#include "comune/Fili.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <chrono>
#include <vector>

using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto attesaFine = 500ms; // for all threads together

std::vector<QThread *> &fili() {
    static std::vector<QThread *> elenco;
    return elenco;
}

void togliFiniti() {
    std::erase_if(fili(), [](QThread *filo) {
        if (!filo->isFinished())
            return false;
        delete filo;
        return true;
    });
}

void attendiFili() {
    const QDeadlineTimer fine(attesaFine);
    for (QThread *filo : fili())
        filo->wait(fine);
    togliFiniti();
}

} // namespace

QThread *nuovoFilo() {
    static const bool registrata = (qAddPostRoutine(attendiFili), true);
    Q_UNUSED(registrata)
    togliFiniti();
    fili().push_back(new QThread);
    return fili().back();
}

} // namespace zuvora
