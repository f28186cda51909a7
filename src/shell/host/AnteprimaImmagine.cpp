#include "shell/host/AnteprimaImmagine.h"

#include "shell/store/EngineError.h"

#include <QFileInfo>
#include <QPainter>
#include <QPromise>
#include <QThreadPool>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Pixels and bytes up to which a picture is decoded within the time that the eye takes for at once.
constexpr qint64 puntiSubito = 3'000'000;
constexpr qint64 byteSubito = 4 * 1024 * 1024;

bool eGrande(const QString &percorso) {
    const QSize misura = misuraImmagine(percorso);
    return qint64{misura.width()} * misura.height() > puntiSubito || QFileInfo(percorso).size() > byteSubito;
}

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

AnteprimaImmagine::AnteprimaImmagine(QWidget *padre, const char *nome, const Posto &posto)
    : PictureBox(padre, nome, posto) {
    setCornice(true);
    connect(&m_attesa, &QFutureWatcherBase::finished, this, [this] {
        if (m_stato == Stato::InCorso)
            concludi(m_attesa.result());
    });
}

AnteprimaImmagine::~AnteprimaImmagine() {
    smetti();
}

void AnteprimaImmagine::smetti() {
    if (m_lettura)
        m_lettura->annulla();
    m_lettura.reset();
    m_attesa.setFuture({});
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
    svuota();
    if (percorso.isEmpty())
        return;
    m_percorso = percorso;
    const QSize misura = size() * devicePixelRatioF();
    if (eGrande(percorso))
        leggiAParte(misura);
    else
        concludi(leggi(percorso, misura, Riduzione::Riempi));
}

void AnteprimaImmagine::leggiAParte(const QSize &misura) {
    m_stato = Stato::InCorso;
    setTesto(u"Caricamento dell'immagine..."_s);
    const auto promessa = std::make_shared<QPromise<ImmagineLetta>>();
    m_attesa.setFuture(promessa->future());
    m_lettura = std::make_shared<Avanzamento>();
    QThreadPool::globalInstance()->start([promessa, percorso = m_percorso, misura, lettura = m_lettura] {
        promessa->start();
        promessa->addResult(leggi(percorso, misura, Riduzione::Riempi, lettura.get()));
        promessa->finish();
    });
}

void AnteprimaImmagine::concludi(const ImmagineLetta &letta) {
    if (letta.immagine.isNull()) {
        fallisci(letta.motivo);
        return;
    }
    m_stato = Stato::Mostrata;
    m_trasparente = letta.immagine.hasAlphaChannel();
    setTesto({});
    setImmagine(QPixmap::fromImage(letta.immagine));
    Q_EMIT cambiato();
}

void AnteprimaImmagine::paintEvent(QPaintEvent *e) {
    if (m_stato == Stato::Mostrata && m_trasparente)
        QPainter(this).fillRect(rect(), QBrush(scacchiera(palette())));
    PictureBox::paintEvent(e);
}

void AnteprimaImmagine::fallisci(const QString &motivo) {
    m_stato = Stato::NonLeggibile;
    m_guasto = motivo + u'\n' + accorciato(QFileInfo(m_percorso).fileName());
    setTesto(m_guasto);
    Q_EMIT cambiato();
}

} // namespace zuvora
