#include "shell/host/Attesa.h"

#include "shell/host/Form.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QProgressBar>
#include <QPromise>
#include <QTimer>
#include <chrono>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto primaDellaForm = 400ms; // a form that flashes up is worse than a short wait
constexpr auto intervallo = 100ms;     // between two looks at the progress

class Attesa : public Form {
public:
    Attesa(const Ambiente &contesto, const QString &testo, const Avanzamento &avanzamento, QWidget *padre)
        : Form(contesto, "Attesa", "Zuvora", {5400, 1560}, padre), m_avanzamento(avanzamento) {
        Label1.setCaption(testo);
        Barra.setAccessibleName(testo);
        Barra.setTextVisible(false);
        mostraParte();
        quando(m_orologio, &QTimer::timeout, [this] { mostraParte(); });
        m_orologio.start(intervallo);
        alClic(Annulla, [this] { scarica(); });
        Annulla.setFocus();
    }

private:
    void mostraParte() {
        const int percento = m_avanzamento.percento();
        Barra.setRange(0, percento == Avanzamento::sconosciuto ? 0 : 100);
        Barra.setValue(percento);
    }

    const Avanzamento &m_avanzamento;
    QTimer m_orologio;
    Label Label1{this, "Label1", "", {240, 180, 4920, 435}};
    Controllo<QProgressBar> Barra{this, "Barra", {240, 660, 4920, 255}};
    Button Annulla{this, "Annulla", "&Annulla", {4065, 1080, 1095, 330}};
};

QFuture<void> avvia(const std::shared_ptr<Avanzamento> &avanzamento, const std::function<void(Avanzamento &)> &lavoro) {
    QPromise<void> promessa;
    QFuture<void> futuro = promessa.future();
    // Not of the pool, which the program waits for at its end: a disk may never answer.
    std::thread([promessa = std::move(promessa), avanzamento, lavoro]() mutable {
        promessa.start();
        try {
            lavoro(*avanzamento);
        } catch (...) {
            promessa.setException(std::current_exception());
        }
        promessa.finish();
    }).detach();
    return futuro;
}

} // namespace

bool aspetta(const Ambiente &ambiente, QWidget *padre, const QString &testo,
             const std::function<void(Avanzamento &)> &lavoro) {
    const auto avanzamento = std::make_shared<Avanzamento>();
    QFuture<void> futuro = avvia(avanzamento, lavoro);
    QFutureWatcher<void> attesa;
    QEventLoop ciclo;
    QObject::connect(&attesa, &QFutureWatcherBase::finished, &ciclo, &QEventLoop::quit);
    attesa.setFuture(futuro);
    QTimer::singleShot(primaDellaForm, &ciclo, &QEventLoop::quit);
    ciclo.exec(QEventLoop::ExcludeUserInputEvents);
    if (!futuro.isFinished()) {
        Attesa form(ambiente, testo, *avanzamento, padre);
        QObject::connect(&attesa, &QFutureWatcherBase::finished, &form, &Form::scarica);
        form.mostraModale();
    }
    if (!futuro.isFinished()) {
        avanzamento->annulla();
        return false;
    }
    futuro.waitForFinished(); // throws what the work threw
    return true;
}

} // namespace zuvora
