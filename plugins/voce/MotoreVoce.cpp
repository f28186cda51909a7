#include "voce/MotoreVoce.h"

#include "comune/Uscita.h"
#include "voce/Sintesi.h"

#include <algorithm>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qint64 pocoResto = 128 * 1024; // bytes, some three seconds

} // namespace

Coda::Coda() {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 Coda::readData(char *dove, qint64 massimo) {
    const qint64 quanti = std::min<qint64>(massimo, m_campioni.size());
    std::memcpy(dove, m_campioni.constData(), std::size_t(quanti));
    m_campioni.remove(0, quanti);
    if (m_campioni.size() < pocoResto)
        Q_EMIT consumato();
    return quanti;
}

void MotoreVoce::parla(const QString &testo, std::optional<Timbro> timbro) {
    const QAudioDevice uscita = uscitaPredefinita();
    if (uscita.isNull()) {
        guasta(u"su questo computer non c'è un'uscita audio."_s);
        return;
    }
    QAudioFormat formato;
    formato.setSampleRate(frequenzaVoce());
    formato.setChannelCount(1);
    formato.setSampleFormat(QAudioFormat::Int16);
    if (formato.sampleRate() == 0) {
        guasta(u"il motore vocale espeak-ng non è installato per intero."_s);
        return;
    }
    m_pezzi = pezziDaDire(testo);
    m_timbro = timbro;
    if (m_pezzi.isEmpty()) {
        Q_EMIT cambiato(StatoVoce::Finito, {});
        return;
    }
    prossimoPezzo();
    if (m_coda.bytesAvailable() == 0) {
        guasta(u"la voce italiana non è installata."_s);
        return;
    }
    m_uscita = std::make_unique<QAudioSink>(uscita, formato);
    connect(m_uscita.get(), &QAudioSink::stateChanged, this, &MotoreVoce::segui);
    // Queued: the queue is being read when it tells that it runs low.
    connect(&m_coda, &Coda::consumato, this, &MotoreVoce::prossimoPezzo, Qt::QueuedConnection);
    m_uscita->start(&m_coda);
}

void MotoreVoce::prossimoPezzo() {
    if (!m_pezzi.isEmpty() && m_coda.bytesAvailable() < pocoResto)
        m_coda.metti(sintetizza(m_pezzi.takeFirst(), m_timbro));
}

void MotoreVoce::segui(QAudio::State stato) {
    if (stato == QAudio::ActiveState)
        Q_EMIT cambiato(StatoVoce::Parla, {});
    else if (m_uscita->error() != QAudio::NoError && m_uscita->error() != QAudio::UnderrunError)
        guasta(u"il servizio audio ha rifiutato il suono."_s);
    else if (stato == QAudio::IdleState && m_pezzi.isEmpty() && m_coda.bytesAvailable() == 0)
        Q_EMIT cambiato(StatoVoce::Finito, {});
}

void MotoreVoce::guasta(const QString &motivo) {
    m_pezzi.clear();
    Q_EMIT cambiato(StatoVoce::Guasto, motivo);
}

} // namespace zuvora
