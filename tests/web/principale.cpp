#include "shell/host/Stile.h"

#include <QApplication>
#include <gmock/gmock.h>

// Read by AddressSanitizer, if it is there, before ASAN_OPTIONS. The web engine frees some of its own objects by the
// size of a base class; our own code has no such line.
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options() {
    return "new_delete_type_mismatch=0";
}

// Unlike elsewhere the application ends in order here: the web engine has threads to stop. Without a display also when
// only the tests' names are asked for.
int main(int argc, char *argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication applicazione(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    zuvora::preparaAspetto(applicazione);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
