#include <QApplication>
#include <gmock/gmock.h>

// The application ends in order here: the players' threads are waited for.
int main(int argc, char *argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication applicazione(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
