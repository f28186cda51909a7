#include "shell/logic/clsMonitors.h"

#include <algorithm>

namespace zuvora {
namespace {

// The desktop is sampled in cells of this size, at their middle: a smaller monitor may be missed.
constexpr int passoX = 640;
constexpr int passoY = 480;

clsMonitor monitorDa(std::int32_t handle, const QRect &area, const QRect &lavoro) {
    clsMonitor m;
    m.Handle = handle;
    m.left = area.left();
    m.top = area.top();
    m.right = area.left() + area.width();
    m.bottom = area.top() + area.height();
    m.Width = m.right - m.left;
    m.Height = m.bottom - m.top;
    m.WorkLeft = lavoro.left();
    m.WorkTop = lavoro.top();
    m.WorkRight = lavoro.left() + lavoro.width();
    m.WorkBottom = lavoro.top() + lavoro.height();
    return m;
}

} // namespace

clsMonitors::clsMonitors(const SistemaMonitor &sistema) : m_sistema(sistema) {
    Refresh();
}

bool clsMonitors::piuMonitor() const {
    return m_sistema.GetSystemMetrics(Metrica::NumeroMonitor) > 0;
}

int clsMonitors::DesktopLeft() const {
    return piuMonitor() ? m_sistema.GetSystemMetrics(Metrica::SinistraDesktop) : 0;
}

int clsMonitors::DesktopTop() const {
    return piuMonitor() ? m_sistema.GetSystemMetrics(Metrica::AltoDesktop) : 0;
}

int clsMonitors::DesktopWidth() const {
    return piuMonitor() ? m_sistema.GetSystemMetrics(Metrica::LarghezzaDesktop) : m_sistema.schermo().width();
}

int clsMonitors::DesktopHeight() const {
    return piuMonitor() ? m_sistema.GetSystemMetrics(Metrica::AltezzaDesktop) : m_sistema.schermo().height();
}

std::int32_t clsMonitors::GetMonitorFromWindow(quintptr finestra, int flags) const {
    return m_sistema.MonitorFromWindow(finestra, flags);
}

std::int32_t clsMonitors::GetMonitorFromXYPoint(int x, int y, int flags) const {
    return m_sistema.MonitorFromRect(QRect(x, y, 1, 1), flags).value_or(-1);
}

const clsMonitor *clsMonitors::Item(const QString &chiave) const {
    const auto trovato = std::find_if(m_monitors.begin(), m_monitors.end(),
                                      [&](const clsMonitor &m) { return QString::number(m.Handle) == chiave; });
    return trovato == m_monitors.end() ? nullptr : &*trovato;
}

// False when the monitor can't be asked for its place, which ends the walk.
bool clsMonitors::aggiungi(std::int32_t handle) {
    if (Item(QString::number(handle)) != nullptr)
        return true;
    const auto info = m_sistema.GetMonitorInfo(handle);
    if (!info)
        return false;
    m_monitors.push_back(monitorDa(handle, info->monitor, info->lavoro));
    return true;
}

void clsMonitors::Refresh() {
    m_monitors.clear();
    if (!piuMonitor()) {
        const QRect schermo(QPoint(0, 0), m_sistema.schermo());
        m_monitors.push_back(monitorDa(0, schermo, schermo));
        return;
    }
    for (int y = DesktopTop(); y <= DesktopHeight(); y += passoY) {
        for (int x = DesktopLeft(); x <= DesktopWidth(); x += passoX) {
            const std::int32_t handle = GetMonitorFromXYPoint(x + passoX / 2, y + passoY / 2, 0);
            if (handle != 0 && !aggiungi(handle))
                return;
        }
    }
}

} // namespace zuvora
