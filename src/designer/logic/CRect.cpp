#include "designer/logic/CRect.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace zuvora {

namespace {

int satura(std::int64_t valore) {
    constexpr std::int64_t minimo = std::numeric_limits<int>::min();
    constexpr std::int64_t massimo = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(valore, minimo, massimo));
}

int somma(int a, int b) {
    return satura(std::int64_t{a} + b);
}

int differenza(int a, int b) {
    return satura(std::int64_t{a} - b);
}

} // namespace

int interoVicino(double valore) {
    if (std::isnan(valore))
        return 0;
    constexpr double minimo = std::numeric_limits<int>::min();
    constexpr double massimo = std::numeric_limits<int>::max();
    return static_cast<int>(std::nearbyint(std::clamp(valore, minimo, massimo)));
}

void CRect::setWidth(int valore) {
    m_right = somma(m_left, valore);
}

int CRect::Width() const {
    return differenza(m_right, m_left);
}

void CRect::setHeight(int valore) {
    m_bottom = somma(m_top, valore);
}

int CRect::Height() const {
    return differenza(m_bottom, m_top);
}

void CRect::SetRectToCtrl(const ControlloRect &ctl) {
    m_left = interoVicino(ctl.Left());
    m_top = interoVicino(ctl.Top());
    m_right = interoVicino(ctl.Left() + ctl.Width());
    m_bottom = interoVicino(ctl.Top() + ctl.Height());
}

void CRect::SetCtrlToRect(ControlloRect &ctl) {
    NormalizeRect();
    ctl.Move(m_left, m_top, Width(), Height());
}

void CRect::ScreenToTwips(const ControlloRect &ctl) {
    const QPoint origine = ctl.OrigineGenitore();
    const double fattore = ctl.TwipsPerPixelX();
    const auto converti = [fattore](int bordo, int zero) { return interoVicino(differenza(bordo, zero) * fattore); };
    *this = {converti(m_left, origine.x()), converti(m_top, origine.y()), converti(m_right, origine.x()),
             converti(m_bottom, origine.y())};
}

void CRect::TwipsToScreen(const ControlloRect &ctl) {
    const QPoint origine = ctl.OrigineGenitore();
    const double fattore = ctl.TwipsPerPixelX();
    const auto converti = [fattore](int bordo, int zero) { return somma(interoVicino(bordo / fattore), zero); };
    *this = {converti(m_left, origine.x()), converti(m_top, origine.y()), converti(m_right, origine.x()),
             converti(m_bottom, origine.y())};
}

void CRect::NormalizeRect() {
    if (m_left > m_right)
        std::swap(m_left, m_right);
    if (m_top > m_bottom)
        std::swap(m_top, m_bottom);
}

bool CRect::PtInRect(float x, float y) const {
    // Compared as doubles: a float can't hold every edge.
    const double px = x;
    const double py = y;
    return px >= m_left && px < m_right && py >= m_top && py < m_bottom;
}

} // namespace zuvora
