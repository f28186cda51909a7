#include "voce/VoceEspeak.h"

#include "comune/Fili.h"
#include "voce/MotoreVoce.h"

#include <QThread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto limiteAvvio = 5s;

} // namespace

VoceEspeak::VoceEspeak() {
    m_limite.setSingleShot(true);
    connect(&m_limite, &QTimer::timeout, this, [this] {
        congeda();
        passa(StatoVoce::Guasto, u"il servizio audio non risponde."_s);
    });
}

VoceEspeak::~VoceEspeak() {
    congeda();
}

void VoceEspeak::parla(const QString &testo, std::optional<Timbro> timbro) {
    congeda();
    m_motore = new MotoreVoce;
    QThread *filo = nuovoFilo();
    m_motore->moveToThread(filo);
    // What an engine sent before it was let go still arrives.
    connect(m_motore, &MotoreVoce::cambiato, this, [this, quale = m_quale](StatoVoce stato, const QString &motivo) {
        if (quale == m_quale)
            passa(stato, motivo);
    });
    filo->start();
    QMetaObject::invokeMethod(
        m_motore, [motore = m_motore, testo, timbro] { motore->parla(testo, timbro); }, Qt::QueuedConnection);
    m_limite.start(limiteAvvio);
    passa(StatoVoce::Prepara, {});
}

void VoceEspeak::taci() {
    congeda();
    passa(StatoVoce::Tace, {});
}

void VoceEspeak::congeda() {
    m_limite.stop();
    ++m_quale;
    if (m_motore == nullptr)
        return;
    QMetaObject::invokeMethod(
        m_motore,
        [motore = m_motore] {
            QThread *filo = motore->thread();
            delete motore;
            filo->quit();
        },
        Qt::QueuedConnection);
    m_motore = nullptr;
}

void VoceEspeak::passa(StatoVoce stato, const QString &motivo) {
    m_stato = stato;
    m_motivo = motivo;
    if (stato != StatoVoce::Prepara)
        m_limite.stop();
    if (m_alCambio)
        m_alCambio();
}

} // namespace zuvora
