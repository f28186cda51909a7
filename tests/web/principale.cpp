#include "shell/host/Stile.h"

#include <QApplication>
#include <gmock/gmock.h>

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
