#include <QApplication>
#include <csignal>
#include <gmock/gmock.h>

int main(int argc, char *argv[]) {
    std::signal(SIGXFSZ, SIG_IGN); // as the program does
    QApplication applicazione(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
