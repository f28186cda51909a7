#include "shell/logic/Domanda.h"

#include <QEventLoop>
#include <QTimer>
#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>

namespace zuvora {
namespace {

constexpr int sospeseMassime = 128; // threads that may be stuck at a time; a further question is not answered
std::atomic<int> sospese = 0;

class Attesa;

// What thread and waiting side both hold: the way back, cut when nobody waits any more.
struct Ritorno {
    std::mutex chiave;
    Attesa *attesa = nullptr;
};

// The waiting side, a child of the receiver.
class Attesa : public QObject {
public:
    Attesa(QObject &ricevente, std::function<void(bool)> fine)
        : QObject(&ricevente), m_fine(std::move(fine)), m_ritorno(std::make_shared<Ritorno>()) {
        m_ritorno->attesa = this;
    }
    ~Attesa() override {
        const std::lock_guard chiuso(m_ritorno->chiave);
        m_ritorno->attesa = nullptr;
    }
    Attesa(const Attesa &) = delete;
    Attesa &operator=(const Attesa &) = delete;

    std::shared_ptr<Ritorno> ritorno() const { return m_ritorno; }
    void concludi(bool fatto) {
        const auto fine = std::exchange(m_fine, nullptr);
        deleteLater();
        if (fine)
            fine(fatto);
    }

private:
    std::function<void(bool)> m_fine;
    std::shared_ptr<Ritorno> m_ritorno;
};

void consegna(Ritorno &ritorno, bool fatto) {
    const std::lock_guard chiuso(ritorno.chiave);
    if (Attesa *attesa = ritorno.attesa)
        QMetaObject::invokeMethod(
            attesa, [attesa, fatto] { attesa->concludi(fatto); }, Qt::QueuedConnection);
}

void lavora(const std::function<void()> &lavoro, Ritorno &ritorno) {
    bool fatto = true;
    try {
        lavoro();
    } catch (...) {
        fatto = false; // a question that failed has no answer
    }
    consegna(ritorno, fatto);
}

} // namespace

void affida(std::function<void()> lavoro, QObject &ricevente, std::function<void(bool)> fine,
            std::chrono::milliseconds tempo) {
    auto *attesa = new Attesa(ricevente, std::move(fine));
    const auto ritorno = attesa->ritorno();
    if (++sospese > sospeseMassime) {
        --sospese;
        consegna(*ritorno, false);
        return;
    }
    try {
        std::thread([lavoro = std::move(lavoro), ritorno] {
            lavora(lavoro, *ritorno);
            --sospese;
        }).detach();
    } catch (const std::system_error &) { // no thread to be had
        --sospese;
        consegna(*ritorno, false);
        return;
    }
    QTimer::singleShot(tempo, attesa, [attesa] { attesa->concludi(false); });
}

bool affidaEAspetta(std::function<void()> lavoro, std::chrono::milliseconds tempo) {
    QObject ricevente;
    QEventLoop ciclo;
    bool esito = false;
    affida(
        std::move(lavoro), ricevente,
        [&](bool fatto) {
            esito = fatto;
            ciclo.quit();
        },
        tempo);
    ciclo.exec(QEventLoop::ExcludeUserInputEvents);
    return esito;
}

} // namespace zuvora
