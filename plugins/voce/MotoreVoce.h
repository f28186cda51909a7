#pragma once

#include "shell/host/Voce.h"

#include <QAudioSink>
#include <QIODevice>
#include <QStringList>

namespace zuvora {

// What was synthesized and not yet sounded.
class Coda : public QIODevice {
    Q_OBJECT
public:
    Coda();
    void metti(const QByteArray &campioni) { m_campioni += campioni; }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_campioni.size() + QIODevice::bytesAvailable(); }

Q_SIGNALS:
    void consumato(); // little is left

protected:
    qint64 readData(char *dove, qint64 massimo) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_campioni;
};

// Says one text. Lives on a thread of its own: the engine's start and the sound service take their time.
class MotoreVoce : public QObject {
    Q_OBJECT
public:
    void parla(const QString &testo, std::optional<zuvora::Timbro> timbro);

Q_SIGNALS:
    void cambiato(zuvora::StatoVoce stato, const QString &motivo);

private:
    void prossimoPezzo();
    void segui(QAudio::State stato);
    void guasta(const QString &motivo);

    QStringList m_pezzi;
    std::optional<Timbro> m_timbro;
    // In this order: the sink goes first.
    Coda m_coda;
    std::unique_ptr<QAudioSink> m_uscita;
};

} // namespace zuvora
