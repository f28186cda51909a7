#pragma once

#include "shell/logic/clsMonitor.h"

#include <QRect>
#include <QSize>
#include <QString>
#include <optional>
#include <vector>

namespace zuvora {

// Indices of GetSystemMetrics that the monitor list asks for.
enum class Metrica : int {
    SinistraDesktop = 76,
    AltoDesktop = 77,
    LarghezzaDesktop = 78,
    AltezzaDesktop = 79,
    NumeroMonitor = 80
};

// What the monitor list asks of the platform, pixels throughout. Handles are above 0; 0 means no monitor there.
class SistemaMonitor {
public:
    struct Info {
        QRect monitor;
        QRect lavoro;     // without task bars
        double scala = 1; // device pixels to one of these
    };
    virtual ~SistemaMonitor() = default;
    virtual int GetSystemMetrics(Metrica indice) const = 0;
    virtual QSize schermo() const = 0; // the primary screen
    virtual std::optional<std::int32_t> MonitorFromRect(const QRect &r,
                                                        int flags) const = 0; // nothing when the call fails
    virtual std::int32_t MonitorFromWindow(quintptr finestra, int flags) const = 0;
    virtual std::optional<Info> GetMonitorInfo(std::int32_t handle) const = 0;
};

// The monitors of the machine, in the order in which a walk over the desktop first meets them: rows from top to bottom,
// each from left to right. The key of a monitor is its handle as decimal text.
class clsMonitors {
public:
    explicit clsMonitors(const SistemaMonitor &sistema);

    const std::vector<clsMonitor> &Monitors() const { return m_monitors; }
    const clsMonitor *Item(const QString &chiave) const; // null when there is none
    int DesktopLeft() const;
    int DesktopTop() const;
    int DesktopWidth() const;
    int DesktopHeight() const;
    std::int32_t GetMonitorFromWindow(quintptr finestra, int flags) const;
    std::int32_t GetMonitorFromXYPoint(int x, int y, int flags) const; // -1 when the platform's call fails
    // Finds the monitors anew. A failure leaves the list empty or partial.
    void Refresh();

private:
    bool piuMonitor() const;
    bool aggiungi(std::int32_t handle);

    const SistemaMonitor &m_sistema;
    std::vector<clsMonitor> m_monitors;
};

} // namespace zuvora
