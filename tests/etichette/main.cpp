// Fonts need an application of the graphics module.
#include <QGuiApplication>
#include <gmock/gmock.h>

int main(int argc, char *argv[]) {
    QGuiApplication applicazione(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
