#pragma once

#include <QGuiApplication>

namespace zuvora {

// While it lives the kiosk is being asked: the cursor says so, and the form that set its mark is not to be closed.
class AttesaTotem {
public:
    explicit AttesaTotem(bool &occupata) : m_occupata(occupata) {
        m_occupata = true;
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    }
    ~AttesaTotem() {
        QGuiApplication::restoreOverrideCursor();
        m_occupata = false;
    }
    AttesaTotem(const AttesaTotem &) = delete;
    AttesaTotem &operator=(const AttesaTotem &) = delete;

private:
    bool &m_occupata;
};

} // namespace zuvora
