#pragma once

#include "shell/host/Piattaforma.h"

#include <vector>

namespace zuvora {

// Monitors as a test sets them: handles are 1, 2, ... in the order of the list.
class FintiMonitor : public SistemaMonitor {
public:
    std::vector<QRect> monitor{QRect(0, 0, 1920, 1080)};
    double scala = 1;
    bool supporto = true; // several monitors are known to the platform

    int GetSystemMetrics(Metrica indice) const override {
        QRect desktop;
        for (const QRect &r : monitor)
            desktop |= r;
        switch (indice) {
        case Metrica::SinistraDesktop:
            return desktop.left();
        case Metrica::AltoDesktop:
            return desktop.top();
        case Metrica::LarghezzaDesktop:
            return desktop.width();
        case Metrica::AltezzaDesktop:
            return desktop.height();
        case Metrica::NumeroMonitor:
            return supporto ? static_cast<int>(monitor.size()) : 0;
        }
        return 0;
    }
    QSize schermo() const override { return monitor.front().size(); }
    std::optional<std::int32_t> MonitorFromRect(const QRect &r, int) const override {
        for (std::size_t i = 0; i < monitor.size(); ++i)
            if (monitor[i].intersects(r))
                return static_cast<std::int32_t>(i + 1);
        return 0;
    }
    std::int32_t MonitorFromWindow(quintptr, int) const override { return 1; }
    std::optional<Info> GetMonitorInfo(std::int32_t handle) const override {
        if (handle < 1 || handle > static_cast<std::int32_t>(monitor.size()))
            return std::nullopt;
        const QRect &r = monitor[static_cast<std::size_t>(handle - 1)];
        return Info{r, r.adjusted(0, 0, 0, -40), scala};
    }
};

class FintaPiattaforma : public Piattaforma {
public:
    QString cartella;
    bool giaInEsecuzione = false;
    FintiMonitor monitors;
    QList<QUrl> aperti; // addresses sent to the browser
    QStringList fileAperti;
    bool apreFile = true; // the desktop has a program for them
    int appuntiSvuotati = 0;

    QString cartellaEseguibile() const override { return cartella; }
    bool altraIstanza() override { return giaInEsecuzione; }
    std::function<void()> secondaIstanza; // a test calls it in place of another start
    void setAllaSecondaIstanza(std::function<void()> azione) override { secondaIstanza = std::move(azione); }
    QString nomeMacchina() const override { return QStringLiteral("PC-PROVA"); }
    QString indirizzoLocale() const override { return QStringLiteral("192.0.2.7"); }
    const SistemaMonitor &monitor() const override { return monitors; }
    QSize schermo() const override { return monitors.schermo(); }
    void svuotaAppunti() override { ++appuntiSvuotati; }
    bool apriFile(const QString &percorso) override {
        if (apreFile)
            fileAperti << percorso;
        return apreFile;
    }
    bool apriNelBrowser(const QUrl &indirizzo) override {
        aperti << indirizzo;
        return true;
    }
};

} // namespace zuvora
