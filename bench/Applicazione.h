#pragma once

#include "shell/host/Stile.h"

#include <QApplication>

namespace misura {

// The one application of all benchmarks that show something; never torn down, for the process ends with them. Offscreen
// unless the environment names a platform or a display.
inline void preparaApplicazione() {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char nome[] = "zuvora-bench";
    static char *argv[] = {nome, nullptr};
    static auto *const applicazione = [] {
        auto *nuova = new QApplication(argc, argv);
        zuvora::preparaAspetto(*nuova);
        return nuova;
    }();
    Q_UNUSED(applicazione)
}

} // namespace misura
