#pragma once

#include <QString>
#include <QStringList>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>

namespace zuvora {

// Asks for every line of a playlist whether its file is there, beside the user interface. A path that stays silent
// beyond the limit counts as missing, and so does what lies in the same folder; a thread that hangs on it is let go.
class ControlloPlaylist {
public:
    using Domanda = std::function<bool(const QString &)>;      // called on a thread of its own
    using AllaFine = std::function<void(const QStringList &)>; // what is missing, in order

    explicit ControlloPlaylist(Domanda esiste, std::chrono::milliseconds limite = std::chrono::seconds(2));
    ~ControlloPlaylist();
    ControlloPlaylist(const ControlloPlaylist &) = delete;
    ControlloPlaylist &operator=(const ControlloPlaylist &) = delete;

    // Lets go of what was asked before.
    void chiedi(const QStringList &righe, AllaFine fine);
    void smetti();
    bool inCorso() const { return m_lavoro != nullptr; }

private:
    struct Lavoro;
    void avvia(qsizetype da);
    void guarda();
    void taci(qsizetype riga);
    void concludi();

    Domanda m_esiste;
    std::chrono::milliseconds m_limite;
    AllaFine m_fine;
    QStringList m_righe;
    QStringList m_mute; // folders that don't answer, with their trailing separator
    std::shared_ptr<Lavoro> m_lavoro;
    QTimer m_orologio;
    qsizetype m_vista = -1; // line under way at the last look
    std::chrono::steady_clock::time_point m_da;
};

} // namespace zuvora
