#pragma once

#include "shell/host/Ambiente.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/Piattaforma.h"

namespace misura {

using namespace zuvora;

// Dialogs and a platform that do nothing, for forms that are measured.
class NessunDialogo final : public Dialoghi {
public:
    void messaggio(QWidget *, Icona, const QString &, const QString &) override {}
    int scegli(QWidget *, const Scelta &scelta) override { return scelta.sicuro; }
    std::optional<QString> apriFile(QWidget *, const RichiestaFile &) override { return {}; }
    std::optional<QString> salvaFile(QWidget *, const RichiestaFile &) override { return {}; }
    std::optional<QString> scegliCartella(QWidget *, const QString &, const QString &) override { return {}; }
    std::optional<FontScelto> scegliFont(QWidget *, const std::optional<FontScelto> &) override { return {}; }
    std::optional<int> scegliColore(QWidget *, int) override { return {}; }
};

class NessunMonitor final : public SistemaMonitor {
public:
    int GetSystemMetrics(Metrica) const override { return 0; }
    QSize schermo() const override { return {1920, 1080}; }
    std::optional<std::int32_t> MonitorFromRect(const QRect &, int) const override { return {}; }
    std::int32_t MonitorFromWindow(quintptr, int) const override { return 0; }
    std::optional<Info> GetMonitorInfo(std::int32_t) const override { return {}; }
};

class NessunaPiattaforma final : public Piattaforma {
public:
    QString cartella; // of the components
    QString cartellaEseguibile() const override { return cartella; }
    bool altraIstanza() override { return false; }
    void setAllaSecondaIstanza(std::function<void()>) override {}
    QString nomeMacchina() const override { return {}; }
    QString indirizzoLocale() const override { return {}; }
    const SistemaMonitor &monitor() const override { return m_monitor; }
    QSize schermo() const override { return m_monitor.schermo(); }
    void svuotaAppunti() override {}
    bool apriNelBrowser(const QUrl &) override { return false; }
    bool apriFile(const QString &) override { return false; }

private:
    NessunMonitor m_monitor;
};

} // namespace misura
