#pragma once

#include "film/Schermo.h"
#include "shell/host/Lettore.h"

#include <QAudioOutput>
#include <QMediaPlayer>
#include <QTimer>
#include <QVideoSink>

namespace zuvora {

// What a player answers when asked, as its engine last told it.
struct Notizia {
    StatoLettore stato = StatoLettore::Vuoto;
    GuastoLettore guasto = GuastoLettore::Nessuno;
    QString motivo;
    qint64 posizione = 0; // milliseconds
    qint64 durata = 0;
    bool haFilm = false;
    bool haUscita = false;
};

// Plays one file or station. Lives on a thread of its own: opening, and at times ending, waits for disk and network.
class Motore : public QObject {
    Q_OBJECT
public:
    Motore(std::shared_ptr<Passaggio> passaggio, int volume);

    void apriFile(const QString &percorso);
    void apriFlusso(const QUrl &indirizzo);
    void riprendi();
    void pausa();
    void setPosizione(qint64 millisecondi);
    void setVolume(int percento);

Q_SIGNALS:
    void aggiornato(const zuvora::Notizia &n);
    void consegnato(); // the passage holds a frame to fetch

private:
    bool prepara();
    void apri(const QUrl &indirizzo);
    void aggiorna();
    void finisci();
    void finisciSeFermo();
    void sorvegliaFine();
    void guasta(GuastoLettore guasto, const QString &motivo);
    void sbaglia(const QString &dettaglio);

    std::shared_ptr<Passaggio> m_passaggio;
    int m_volume;
    bool m_flusso = false;
    bool m_aperto = false;
    Notizia m_notizia;
    QTimer m_ultimo{this}; // since the position last moved, near the end
    qint64 m_segno = 0;    // where it was then, milliseconds
    // In this order: the player goes first.
    std::unique_ptr<QVideoSink> m_film;
    std::unique_ptr<QAudioOutput> m_audio;
    std::unique_ptr<QMediaPlayer> m_lettore;
};

} // namespace zuvora
