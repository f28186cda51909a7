#include "film/Motore.h"

#include "comune/Uscita.h"
#include "film/Stazione.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

// What has been decoded to its end sounds on for this time: the output holds it still.
constexpr auto coda = 150ms;

// Some films creep just before their end for seconds, until the decoder says that it is the end.
constexpr qint64 pressoLaFine = 1000; // milliseconds
constexpr auto fermoPressoLaFine = 1s;
constexpr qint64 passoMinimo = 50; // milliseconds

// Moved to its very end while it pauses, a film can't be played again at once: it is moved to this before.
constexpr qint64 ultimaImmagine = 100; // milliseconds

// The ear hears loudness by ratios.
float perOrecchio(int percento) {
    return QAudio::convertVolume(float(percento) / 100, QAudio::LogarithmicVolumeScale, QAudio::LinearVolumeScale);
}

} // namespace

Motore::Motore(std::shared_ptr<Passaggio> passaggio, int volume) : m_passaggio(std::move(passaggio)), m_volume(volume) {
    m_ultimo.setSingleShot(true);
    connect(&m_ultimo, &QTimer::timeout, this, &Motore::finisciSeFermo);
}

// Made on the engine's own thread: Qt's objects belong to the thread that makes them.
bool Motore::prepara() {
    const QAudioDevice uscita = uscitaPredefinita();
    m_notizia.haUscita = !uscita.isNull();
    m_film = std::make_unique<QVideoSink>();
    m_lettore = std::make_unique<QMediaPlayer>();
    if (m_notizia.haUscita) {
        m_audio = std::make_unique<QAudioOutput>(uscita);
        m_audio->setVolume(perOrecchio(m_volume));
        m_lettore->setAudioOutput(m_audio.get());
    }
    m_lettore->setVideoSink(m_film.get());
    connect(m_film.get(), &QVideoSink::videoFrameChanged, this, [this](const QVideoFrame &f) {
        if (m_passaggio->metti(f))
            Q_EMIT consegnato();
    });
    connect(m_lettore.get(), &QMediaPlayer::errorOccurred, this,
            [this](QMediaPlayer::Error, const QString &dettaglio) { sbaglia(dettaglio); });
    return m_lettore->isAvailable();
}

void Motore::apriFile(const QString &percorso) {
    const QFileInfo file(percorso);
    const QString nome = QDir::toNativeSeparators(percorso);
    if (!file.exists())
        guasta(GuastoLettore::FileMancante, u"Il file non si trova: %1"_s.arg(nome));
    else if (!file.isFile() || !file.isReadable()) // a pipe would be waited for
        guasta(GuastoLettore::Illeggibile, u"Il file non si può leggere: %1"_s.arg(nome));
    else
        apri(QUrl::fromLocalFile(file.absoluteFilePath()));
}

void Motore::apriFlusso(const QUrl &indirizzo) {
    m_flusso = true;
    auto *stazione = new Stazione(this);
    connect(stazione, &Stazione::trovato, this, &Motore::apri);
    connect(stazione, &Stazione::mancato, this, &Motore::guasta);
    stazione->cerca(indirizzo);
}

void Motore::apri(const QUrl &indirizzo) {
    if (!prepara()) {
        guasta(GuastoLettore::Illeggibile, u"Il decodificatore di filmati e suoni non è installato per intero."_s);
        return;
    }
    m_lettore->setSource(indirizzo); // waits
    if (m_notizia.stato == StatoLettore::Guasto || QThread::currentThread()->isInterruptionRequested())
        return;
    m_notizia.haFilm = m_lettore->hasVideo();
    if (!m_notizia.haFilm && !m_lettore->hasAudio()) {
        sbaglia(u"nessuna traccia"_s);
        return;
    }
    // Without an output a sound would never end.
    if (!m_notizia.haFilm && !m_notizia.haUscita) {
        guasta(GuastoLettore::SenzaUscita,
               u"Su questo computer non c'è un'uscita audio: il suono non si può sentire."_s);
        return;
    }
    m_aperto = true;
    connect(m_lettore.get(), &QMediaPlayer::playbackStateChanged, this, &Motore::aggiorna);
    connect(m_lettore.get(), &QMediaPlayer::mediaStatusChanged, this, &Motore::aggiorna);
    connect(m_lettore.get(), &QMediaPlayer::positionChanged, this, &Motore::aggiorna);
    connect(m_lettore.get(), &QMediaPlayer::durationChanged, this, &Motore::aggiorna);
    m_lettore->play();
}

void Motore::aggiorna() {
    if (m_notizia.stato == StatoLettore::Guasto)
        return;
    m_notizia.posizione = m_lettore->position();
    m_notizia.durata = m_flusso ? 0 : m_lettore->duration();
    if (m_lettore->mediaStatus() == QMediaPlayer::EndOfMedia) {
        if (m_flusso) {
            guasta(GuastoLettore::Interrotto, u"La stazione ha smesso di trasmettere."_s);
            return;
        }
        QTimer::singleShot(m_notizia.haUscita ? coda : 0ms, this, &Motore::finisci);
        return;
    } else if (m_lettore->playbackState() == QMediaPlayer::PlayingState) {
        m_notizia.stato = StatoLettore::InCorso;
    } else if (m_lettore->playbackState() == QMediaPlayer::PausedState) {
        m_notizia.stato = StatoLettore::InPausa;
    } else {
        return; // stopped: the end follows
    }
    sorvegliaFine();
    Q_EMIT aggiornato(m_notizia);
}

void Motore::sorvegliaFine() {
    const bool vicina = m_notizia.durata > 0 && m_notizia.durata - m_notizia.posizione < pressoLaFine;
    if (m_notizia.stato != StatoLettore::InCorso || !vicina)
        m_ultimo.stop();
    else if (!m_ultimo.isActive() || std::abs(m_notizia.posizione - m_segno) > passoMinimo) {
        m_segno = m_notizia.posizione;
        m_ultimo.start(fermoPressoLaFine);
    }
}

void Motore::finisci() {
    if (m_notizia.stato == StatoLettore::Guasto || m_lettore->mediaStatus() != QMediaPlayer::EndOfMedia)
        return; // begun again meanwhile
    m_ultimo.stop();
    m_notizia.stato = StatoLettore::Finito;
    m_notizia.posizione = m_notizia.durata;
    Q_EMIT aggiornato(m_notizia);
}

// Stopped, it tells nothing more; played again, it begins from the start.
void Motore::finisciSeFermo() {
    if (m_notizia.stato != StatoLettore::InCorso)
        return;
    m_lettore->stop(); // tells of its way back to the start first
    m_notizia.stato = StatoLettore::Finito;
    m_notizia.posizione = m_notizia.durata;
    Q_EMIT aggiornato(m_notizia);
}

void Motore::guasta(GuastoLettore guasto, const QString &motivo) {
    m_notizia.stato = StatoLettore::Guasto;
    m_notizia.guasto = guasto;
    m_notizia.motivo = motivo;
    if (m_lettore != nullptr)
        m_lettore->pause();
    Q_EMIT aggiornato(m_notizia);
}

void Motore::sbaglia(const QString &dettaglio) {
    if (m_notizia.stato == StatoLettore::Guasto)
        return;
    if (m_aperto)
        guasta(GuastoLettore::Interrotto, u"La riproduzione si è interrotta (%1)."_s.arg(dettaglio));
    else if (m_flusso)
        guasta(GuastoLettore::Illeggibile, u"All'indirizzo non c'è un suono che si possa riprodurre."_s);
    else
        guasta(GuastoLettore::Illeggibile, u"Il file non è un filmato né un suono che si possa riprodurre."_s);
}

void Motore::riprendi() {
    if (!m_aperto || m_notizia.stato == StatoLettore::Guasto)
        return;
    const bool allaFine =
        m_lettore->duration() > 0 && m_lettore->duration() - m_lettore->position() <= 2 * ultimaImmagine;
    if (!m_flusso && m_notizia.stato == StatoLettore::InPausa && allaFine)
        m_lettore->setPosition(0);
    m_lettore->play();
}

void Motore::pausa() {
    if (m_aperto && m_notizia.stato == StatoLettore::InCorso)
        m_lettore->pause();
}

void Motore::setPosizione(qint64 millisecondi) {
    if (!m_aperto || m_flusso || m_notizia.stato == StatoLettore::Guasto)
        return;
    const bool finito = m_notizia.stato == StatoLettore::Finito;
    if (finito)
        m_lettore->play();                       // back to the beginning: the end can't be left otherwise
    const qint64 durata = m_lettore->duration(); // 0 while it isn't known
    m_lettore->setPosition(durata > 0 ? std::min(millisecondi, std::max<qint64>(durata - ultimaImmagine, 0))
                                      : millisecondi);
}

void Motore::setVolume(int percento) {
    m_volume = percento;
    if (m_audio != nullptr)
        m_audio->setVolume(perOrecchio(percento));
}

} // namespace zuvora
