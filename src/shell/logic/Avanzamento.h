#pragma once

#include <QtGlobal>
#include <atomic>

namespace zuvora {

// How far a work on a helper thread has come, and whether the user has called it off. Both threads use it.
class Avanzamento {
public:
    void setParte(qint64 fatto, qint64 totale) { m_percento = totale > 0 ? int(fatto * 100 / totale) : sconosciuto; }
    int percento() const { return m_percento; } // 0 to 100, or `sconosciuto`
    void annulla() { m_annullato = true; }
    bool annullato() const { return m_annullato; }

    static constexpr int sconosciuto = -1;

private:
    std::atomic<int> m_percento = sconosciuto;
    std::atomic<bool> m_annullato = false;
};

} // namespace zuvora
