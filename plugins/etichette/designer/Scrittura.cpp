#include "etichette/designer/Scrittura.h"

#include "etichette/logic/FileEtichetta.h"

#include <QEventLoop>
#include <QFile>
#include <QFutureWatcher>
#include <QProgressDialog>
#include <QPromise>
#include <QTimer>
#include <chrono>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto primaDellaFinestra = 400ms; // a window that flashes up is worse than a short wait

} // namespace

QFuture<QString> avviaScrittura(const QString &file, const Etichetta &etichetta,
                                std::shared_ptr<std::atomic<bool>> superata) {
    QPromise<QString> promessa;
    QFuture<QString> futuro = promessa.future();
    std::thread([promessa = std::move(promessa), file, etichetta, superata]() mutable {
        promessa.start();
        promessa.addResult(scriviEtichetta(file, etichetta));
        if (superata && *superata)
            QFile::remove(file);
        promessa.finish();
    }).detach();
    return futuro;
}

QString scriviAspettando(QWidget *padre, const QString &file, const Etichetta &etichetta) {
    const QFuture<QString> futuro = avviaScrittura(file, etichetta);
    QFutureWatcher<QString> attesa;
    QEventLoop ciclo;
    QObject::connect(&attesa, &QFutureWatcherBase::finished, &ciclo, &QEventLoop::quit);
    attesa.setFuture(futuro);
    QTimer::singleShot(primaDellaFinestra, &ciclo, &QEventLoop::quit);
    ciclo.exec(QEventLoop::ExcludeUserInputEvents);
    if (!futuro.isFinished()) {
        QProgressDialog finestra(u"La cartella non ha ancora risposto..."_s, u"&Non aspettare"_s, 0, 0, padre);
        finestra.setWindowTitle(u"Scrittura del biglietto"_s);
        QObject::connect(&attesa, &QFutureWatcherBase::finished, &finestra, &QDialog::accept);
        finestra.exec();
    }
    return futuro.isFinished() ? futuro.result()
                               : u"La cartella non risponde: non si sa se il biglietto sia stato scritto."_s;
}

} // namespace zuvora
