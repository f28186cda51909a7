#include "comune/Uscita.h"

#include <QMediaDevices>
#include <QThread>
#include <mutex>

namespace zuvora {
namespace {

// Never ended: a sound server that hangs would hold the program's end up.
QObject &custode() {
    static std::once_flag una;
    static QObject *oggetto = nullptr;
    std::call_once(una, [] {
        auto *filo = new QThread;
        filo->setObjectName(QStringLiteral("uscita audio"));
        oggetto = new QObject;
        oggetto->moveToThread(filo);
        filo->start();
    });
    return *oggetto;
}

} // namespace

QAudioDevice uscitaPredefinita() {
    QAudioDevice uscita;
    QMetaObject::invokeMethod(
        &custode(), [&uscita] { uscita = QMediaDevices::defaultAudioOutput(); }, Qt::BlockingQueuedConnection);
    return uscita;
}

} // namespace zuvora
