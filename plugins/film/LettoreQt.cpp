#include "film/LettoreQt.h"

#include "comune/Fili.h"

#include <QThread>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto limiteFile = 8s;
constexpr auto limiteFlusso = 12s;
constexpr auto limiteSilenzio = 10s; // of a station that was playing

} // namespace

LettoreQt::LettoreQt(QWidget *padre) : m_schermo(padre == nullptr ? nullptr : new Schermo(padre)) {
    m_limite.setSingleShot(true);
    connect(&m_limite, &QTimer::timeout, this, &LettoreQt::scade);
}

LettoreQt::~LettoreQt() {
    congeda();
    delete m_schermo;
}

QWidget *LettoreQt::widget() {
    return m_schermo;
}

template <class F> void LettoreQt::aMotore(F &&azione) {
    if (m_motore != nullptr)
        QMetaObject::invokeMethod(m_motore, std::forward<F>(azione), Qt::QueuedConnection);
}

void LettoreQt::avvia(std::chrono::milliseconds limite) {
    congeda();
    m_notizia = {};
    m_notizia.stato = StatoLettore::Apertura;
    m_passaggio = std::make_shared<Passaggio>();
    m_motore = new Motore(m_passaggio, m_volume);
    QThread *filo = nuovoFilo();
    m_motore->moveToThread(filo);
    // What an engine sent before it was let go still arrives.
    connect(m_motore, &Motore::aggiornato, this, [this, quale = m_quale](const Notizia &n) {
        if (quale == m_quale)
            ricevi(n);
    });
    connect(m_motore, &Motore::consegnato, this, [this, quale = m_quale] {
        if (quale == m_quale && m_schermo != nullptr)
            m_schermo->mostra(m_passaggio->prendi());
    });
    filo->start();
    m_limite.start(limite);
    if (m_schermo != nullptr)
        m_schermo->spegni();
}

void LettoreQt::congeda() {
    m_limite.stop();
    ++m_quale;
    if (m_motore == nullptr)
        return;
    m_motore->thread()->requestInterruption(); // one that still opens must not begin to play
    aMotore([motore = m_motore] {
        QThread *filo = motore->thread();
        delete motore;
        filo->quit();
    });
    m_motore = nullptr;
}

void LettoreQt::apriFile(const QString &percorso) {
    m_flusso = false;
    avvia(limiteFile);
    aMotore([motore = m_motore, percorso] { motore->apriFile(percorso); });
    annuncia();
}

void LettoreQt::apriFlusso(const QUrl &indirizzo) {
    m_flusso = true;
    avvia(limiteFlusso);
    aMotore([motore = m_motore, indirizzo] { motore->apriFlusso(indirizzo); });
    annuncia();
}

void LettoreQt::chiudi() {
    congeda();
    m_notizia = {};
    if (m_schermo != nullptr)
        m_schermo->spegni();
    annuncia();
}

void LettoreQt::riprendi() {
    aMotore([motore = m_motore] { motore->riprendi(); });
}

void LettoreQt::pausa() {
    aMotore([motore = m_motore] { motore->pausa(); });
}

void LettoreQt::setPosizione(Tempo posizione) {
    aMotore([motore = m_motore, ms = posizione.count()] { motore->setPosizione(ms); });
}

void LettoreQt::setVolume(int percento) {
    m_volume = std::clamp(percento, 0, 100);
    aMotore([motore = m_motore, v = m_volume] { motore->setVolume(v); });
}

void LettoreQt::ricevi(const Notizia &notizia) {
    m_notizia = notizia;
    if (m_flusso && notizia.stato == StatoLettore::InCorso)
        m_limite.start(limiteSilenzio);
    else
        m_limite.stop();
    annuncia();
}

void LettoreQt::scade() {
    const bool apertura = m_notizia.stato == StatoLettore::Apertura;
    congeda();
    m_notizia.stato = StatoLettore::Guasto;
    m_notizia.guasto = apertura ? GuastoLettore::Scaduto : GuastoLettore::Interrotto;
    if (!apertura)
        m_notizia.motivo = u"La stazione non trasmette più."_s;
    else if (m_flusso)
        m_notizia.motivo = u"La stazione non ha risposto in tempo."_s;
    else
        m_notizia.motivo = u"Il file non si lascia aprire: il disco o la rete su cui si trova non risponde."_s;
    annuncia();
}

// Last of all: whoever is told may end this player.
void LettoreQt::annuncia() {
    if (const AlCambio azione = m_alCambio)
        azione();
}

} // namespace zuvora
