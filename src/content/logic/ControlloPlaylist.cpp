#include "content/logic/ControlloPlaylist.h"

#include <QDir>
#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto passo = 10ms;
constexpr qsizetype minimoComune = 2; // path steps that two silent folders must share to count as one place

enum class Sorte : char { Ignota, Presente, Mancante };

bool eSeparatore(QChar c) {
    return c == u'/' || c == u'\\';
}

QString cartellaDi(const QString &percorso) {
    const auto ultimo = std::find_if(percorso.crbegin(), percorso.crend(), eSeparatore);
    return percorso.left(percorso.crend() - ultimo);
}

// What two folders have in common, up to a separator.
QString comune(const QString &a, const QString &b) {
    const auto [fine, resto] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return cartellaDi(a.left(fine - a.begin()));
}

qsizetype passi(const QString &cartella) {
    qsizetype quanti = 0;
    for (qsizetype i = 1; i < cartella.size(); ++i)
        quanti += eSeparatore(cartella.at(i)) && !eSeparatore(cartella.at(i - 1)) ? 1 : 0;
    return quanti;
}

} // namespace

// Shared with the thread that asks, which may outlive everything else.
struct ControlloPlaylist::Lavoro {
    QStringList righe;
    QStringList mute;
    Domanda esiste;
    std::vector<std::atomic<Sorte>> sorti;
    std::atomic<qsizetype> corrente{0};
    std::atomic<bool> congedato{false};

    void percorri() {
        for (qsizetype i = corrente; i < righe.size() && !congedato; corrente = ++i) {
            const QString &riga = righe.at(i);
            const bool muta =
                std::any_of(mute.begin(), mute.end(), [&](const QString &m) { return riga.startsWith(m); });
            sorti[static_cast<std::size_t>(i)] = !muta && esiste(riga) ? Sorte::Presente : Sorte::Mancante;
        }
    }
};

ControlloPlaylist::ControlloPlaylist(Domanda esiste, std::chrono::milliseconds limite)
    : m_esiste(std::move(esiste)), m_limite(limite) {
    m_orologio.setInterval(passo);
    QObject::connect(&m_orologio, &QTimer::timeout, &m_orologio, [this] { guarda(); });
}

ControlloPlaylist::~ControlloPlaylist() {
    smetti();
}

void ControlloPlaylist::smetti() {
    m_orologio.stop();
    if (m_lavoro)
        m_lavoro->congedato = true;
    m_lavoro.reset();
}

void ControlloPlaylist::chiedi(const QStringList &righe, AllaFine fine) {
    smetti();
    m_righe = righe;
    m_mute.clear();
    m_fine = std::move(fine);
    avvia(0);
}

void ControlloPlaylist::avvia(qsizetype da) {
    auto lavoro = std::make_shared<Lavoro>();
    lavoro->righe = m_righe;
    lavoro->mute = m_mute;
    lavoro->esiste = m_esiste;
    lavoro->sorti = std::vector<std::atomic<Sorte>>(static_cast<std::size_t>(m_righe.size()));
    for (qsizetype i = 0; i < da; ++i)
        lavoro->sorti[static_cast<std::size_t>(i)] = m_lavoro->sorti[static_cast<std::size_t>(i)].load();
    lavoro->corrente = da;
    m_lavoro = lavoro;
    m_vista = -1;
    std::thread([lavoro] { lavoro->percorri(); }).detach();
    m_orologio.start();
}

void ControlloPlaylist::guarda() {
    const qsizetype corrente = m_lavoro->corrente;
    if (corrente >= m_righe.size()) {
        concludi();
        return;
    }
    const auto ora = std::chrono::steady_clock::now();
    if (corrente != m_vista) {
        m_vista = corrente;
        m_da = ora;
    } else if (ora - m_da >= m_limite) {
        taci(corrente);
    }
}

void ControlloPlaylist::taci(qsizetype riga) {
    m_lavoro->congedato = true;
    m_lavoro->sorti[static_cast<std::size_t>(riga)] = Sorte::Mancante;
    QString muta = cartellaDi(m_righe.at(riga));
    // Two folders of one place: the place is silent, and its other folders need not be waited for.
    for (const QString &altra : std::as_const(m_mute))
        if (const QString posto = comune(altra, muta); passi(posto) >= minimoComune)
            muta = posto;
    if (!muta.isEmpty())
        m_mute << muta;
    avvia(riga + 1);
}

void ControlloPlaylist::concludi() {
    QStringList mancanti;
    for (qsizetype i = 0; i < m_righe.size(); ++i)
        if (m_lavoro->sorti[static_cast<std::size_t>(i)] == Sorte::Mancante)
            mancanti << m_righe.at(i);
    smetti();
    const AllaFine fine = std::move(m_fine); // it may ask anew
    fine(mancanti);
}

} // namespace zuvora
