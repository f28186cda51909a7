#pragma once

#include "shell/host/Piattaforma.h"

#include <memory>

class QSocketNotifier;

namespace zuvora {

// The platform as Qt and POSIX give it. `chiaveIstanza` names what may run once on a machine.
class QtPiattaforma : public Piattaforma {
public:
    explicit QtPiattaforma(QByteArray chiaveIstanza);
    ~QtPiattaforma() override;

    QString cartellaEseguibile() const override;
    bool altraIstanza() override;
    void setAllaSecondaIstanza(std::function<void()> azione) override;
    QString nomeMacchina() const override;
    QString indirizzoLocale() const override;
    const SistemaMonitor &monitor() const override;
    QSize schermo() const override;
    void svuotaAppunti() override;
    bool apriNelBrowser(const QUrl &indirizzo) override;
    bool apriFile(const QString &percorso) override;

private:
    QByteArray m_chiave;
    int m_guardia = -1; // socket that holds the instance's name
    std::unique_ptr<QSocketNotifier> m_chiamate;
    std::unique_ptr<SistemaMonitor> m_monitor;
};

} // namespace zuvora
