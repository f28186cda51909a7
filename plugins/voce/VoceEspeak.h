#pragma once

#include "shell/host/Voce.h"

#include <QObject>
#include <QTimer>

namespace zuvora {

class MotoreVoce;

// The voice that the forms hold. Each text gets an engine on a thread of its own; the one before is let go, even where
// it hangs.
class VoceEspeak : public QObject, public Voce {
    Q_OBJECT
public:
    VoceEspeak();
    ~VoceEspeak() override;

    void parla(const QString &testo, std::optional<Timbro> timbro) override;
    void taci() override;
    StatoVoce stato() const override { return m_stato; }
    QString motivo() const override { return m_motivo; }
    void setAlCambio(AlCambio azione) override { m_alCambio = std::move(azione); }

private:
    void congeda();
    void passa(StatoVoce stato, const QString &motivo);

    MotoreVoce *m_motore = nullptr; // belongs to its thread
    int m_quale = 0;                // number of the engine in use
    StatoVoce m_stato = StatoVoce::Tace;
    QString m_motivo;
    QTimer m_limite;
    AlCambio m_alCambio;
};

} // namespace zuvora
