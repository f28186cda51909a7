#include "installer/Interruzione.h"

#include "installer/Guasto.h"

#include <csignal>

namespace zuvora::installa {

namespace {
volatile std::sig_atomic_t interrotto = 0;

void annota(int) {
    interrotto = 1;
}
} // namespace

void ascoltaInterruzioni() {
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP})
        std::signal(segnale, annota);
}

void fermaSeInterrotto() {
    if (interrotto != 0)
        throw Guasto{QStringLiteral("Interrotto: nulla è stato modificato.")};
}

} // namespace zuvora::installa
