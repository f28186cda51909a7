#include "shell/host/AnteprimaImmagine.h"

#include "shell/logic/Domanda.h"
#include "shell/store/EngineError.h"

#include <QFileInfo>
#include <QPainter>
#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// The picture that stands there stays for that long: most follow at once.
constexpr std::chrono::milliseconds indugio{150};
// A large picture on a slow disk takes its time; one that is not here by then is given up.
constexpr std::chrono::seconds attesaImmagine{60};

QPixmap scacchiera(const QPalette &palette) {
    constexpr int casella = 8; // pixels
    QPixmap quadro(2 * casella, 2 * casella);
    quadro.fill(palette.color(QPalette::Base));
    QPainter pittore(&quadro);
    pittore.fillRect(0, 0, casella, casella, palette.color(QPalette::Midlight));
    pittore.fillRect(casella, casella, casella, casella, palette.color(QPalette::Midlight));
    return quadro;
}

} // namespace

AnteprimaImmagine::AnteprimaImmagine(QWidget *padre, const char *nome, const Posto &posto, Percorsi percorsi)
    : PictureBox(padre, nome, posto), m_percorsi(std::move(percorsi)) {
    setCornice(true);
    m_indugio.setSingleShot(true);
    connect(&m_indugio, &QTimer::timeout, this, [this] {
        setTesto(u"Caricamento dell'immagine..."_s);
        setImmagine({});
    });
}

AnteprimaImmagine::~AnteprimaImmagine() {
    smetti();
}

void AnteprimaImmagine::smetti() {
    if (m_lettura)
        m_lettura->annulla();
    m_lettura.reset();
    m_indugio.stop();
}

void AnteprimaImmagine::svuota(const QString &testo) {
    smetti();
    m_percorso.clear();
    m_guasto.clear();
    m_stato = Stato::Vuota;
    setTesto(testo);
    setImmagine({});
}

void AnteprimaImmagine::mostra(const QString &percorso) {
    if (percorso.isEmpty()) {
        svuota();
        return;
    }
    smetti();
    m_percorso = percorso;
    m_guasto.clear();
    m_stato = Stato::InCorso;
    m_indugio.start(indugio);
    m_lettura = std::make_shared<Avanzamento>();
    m_percorsi.chiedi(percorso, *this, [this, lettura = m_lettura](const Percorsi::Esame &esame) {
        if (lettura != m_lettura)
            return;
        if (esame.percorso.isEmpty())
            fallisci(esame.muto ? u"La cartella non risponde."_s : u"File non trovato."_s);
        else
            leggiFile(esame.percorso);
    });
}

void AnteprimaImmagine::leggiFile(const QString &file) {
    const std::function<ImmagineLetta()> domanda = [file, misura = size() * devicePixelRatioF(), lettura = m_lettura] {
        return leggi(file, misura, Riduzione::Riempi, lettura.get());
    };
    const auto risposta = [this, lettura = m_lettura](const std::optional<ImmagineLetta> &letta) {
        if (lettura == m_lettura)
            concludi(letta.value_or(ImmagineLetta{{}, u"Il file non risponde."_s}));
    };
    chiedi<ImmagineLetta>(domanda, *this, risposta, attesaImmagine);
}

void AnteprimaImmagine::concludi(const ImmagineLetta &letta) {
    if (letta.immagine.isNull()) {
        fallisci(letta.motivo);
        return;
    }
    smetti();
    m_stato = Stato::Mostrata;
    m_trasparente = letta.immagine.hasAlphaChannel();
    setTesto({});
    setImmagine(QPixmap::fromImage(letta.immagine));
    Q_EMIT cambiato();
}

void AnteprimaImmagine::paintEvent(QPaintEvent *e) {
    if (m_trasparente && !vuota())
        QPainter(this).fillRect(rect(), QBrush(scacchiera(palette())));
    PictureBox::paintEvent(e);
}

void AnteprimaImmagine::fallisci(const QString &motivo) {
    smetti();
    m_stato = Stato::NonLeggibile;
    m_guasto = motivo + u'\n' + accorciato(QFileInfo(m_percorso).fileName());
    setTesto(m_guasto);
    setImmagine({});
    Q_EMIT cambiato();
}

} // namespace zuvora
