#include "etichette/designer/Scrittura.h"

#include "etichette/logic/FileEtichetta.h"

#include <QEventLoop>
#include <QFile>
#include <QFutureWatcher>
#include <QProgressDialog>
#include <QTimer>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto primaDellaFinestra = 400ms; // a window that flashes up is worse than a short wait

} // namespace

bool attendi(QWidget *padre, const QFuture<void> &futuro) {
    QFutureWatcher<void> attesa;
    QEventLoop ciclo;
    QObject::connect(&attesa, &QFutureWatcherBase::finished, &ciclo, &QEventLoop::quit);
    attesa.setFuture(futuro);
    QTimer::singleShot(primaDellaFinestra, &ciclo, &QEventLoop::quit);
    ciclo.exec(QEventLoop::ExcludeUserInputEvents);
    if (!futuro.isFinished()) {
        QProgressDialog finestra(u"La cartella del totem non ha ancora risposto..."_s, u"&Non aspettare"_s, 0, 0,
                                 padre);
        finestra.setWindowTitle(u"Zuvora"_s);
        QObject::connect(&attesa, &QFutureWatcherBase::finished, &finestra, &QDialog::accept);
        finestra.exec();
    }
    return futuro.isFinished();
}

QFuture<QString> avviaScrittura(const QString &file, const Etichetta &etichetta,
                                std::shared_ptr<std::atomic<bool>> superata) {
    return avvia<QString>([file, etichetta, superata = std::move(superata)] {
        const QString motivo = scriviEtichetta(file, etichetta);
        if (superata && *superata)
            QFile::remove(file);
        return motivo;
    });
}

QString scriviAspettando(QWidget *padre, const QString &file, const Etichetta &etichetta) {
    const QFuture<QString> futuro = avviaScrittura(file, etichetta);
    return attendi(padre, QFuture<void>(futuro))
               ? futuro.result()
               : u"La cartella non risponde: non si sa se il biglietto sia stato scritto."_s;
}

} // namespace zuvora
