#pragma once

#include "shell/host/Voce.h"

#include <QProcess>
#include <QTimer>

namespace zuvora {

// The desktop's speech service, asked through its own small program: the service takes seconds to begin and may hang,
// and a program can be ended at any time.
class VoceSistema : public QObject, public Voce {
    Q_OBJECT
public:
    VoceSistema();
    ~VoceSistema() override;

    void parla(const QString &testo, std::optional<Timbro> timbro) override; // the timbre is the desktop's choice
    void taci() override;
    StatoVoce stato() const override { return m_stato; }
    QString motivo() const override { return m_motivo; }
    void setAlCambio(AlCambio azione) override { m_alCambio = std::move(azione); }

private:
    void congeda();
    void finisci(int codice, QProcess::ExitStatus esito);
    void passa(StatoVoce stato, const QString &motivo);

    QProcess *m_processo = nullptr;
    StatoVoce m_stato = StatoVoce::Tace;
    QString m_motivo;
    QTimer m_limite;
    AlCambio m_alCambio;
};

} // namespace zuvora
