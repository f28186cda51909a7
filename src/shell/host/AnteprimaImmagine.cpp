#include "shell/host/AnteprimaImmagine.h"

#include "shell/immagini/LetturaImmagine.h"

#include <QFileInfo>
#include <QPainter>
#include <QPromise>
#include <QThreadPool>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Pixels up to which a picture is decoded within the time that the eye takes for at once.
constexpr qint64 SubitoFinoA = 3'000'000;

bool eGrande(const QString &percorso) {
    const QSize misura = misuraImmagine(percorso);
    return misura.isEmpty() || qint64{misura.width()} * misura.height() > SubitoFinoA;
}

QPixmap scacchiera(const QPalette &palette) {
    constexpr int Casella = 8; // pixels
    QPixmap quadro(2 * Casella, 2 * Casella);
    quadro.fill(palette.color(QPalette::Base));
    QPainter pittore(&quadro);
    pittore.fillRect(0, 0, Casella, Casella, palette.color(QPalette::Midlight));
    pittore.fillRect(Casella, Casella, Casella, Casella, palette.color(QPalette::Midlight));
    return quadro;
}

} // namespace

AnteprimaImmagine::AnteprimaImmagine(QWidget *padre, const char *nome, const Posto &posto)
    : PictureBox(padre, nome, posto) {
    setCornice(true);
    connect(&m_attesa, &QFutureWatcherBase::finished, this, [this] {
        if (m_stato == Stato::InCorso)
            concludi(m_attesa.future().resultCount() > 0 ? m_attesa.result() : QImage());
    });
}

AnteprimaImmagine::~AnteprimaImmagine() {
    m_attesa.cancel();
}

void AnteprimaImmagine::svuota(const QString &testo) {
    m_attesa.cancel();
    m_percorso.clear();
    m_stato = Stato::Vuota;
    setTesto(testo);
    setImmagine({});
}

void AnteprimaImmagine::mostra(const QString &percorso) {
    svuota();
    if (percorso.isEmpty())
        return;
    m_percorso = percorso;
    if (!QFileInfo::exists(percorso)) {
        fallisci(Stato::NonTrovata);
        return;
    }
    if (!pareImmagine(percorso)) {
        fallisci(Stato::NonLeggibile);
        return;
    }
    const QSize misura = size() * devicePixelRatioF();
    if (eGrande(percorso))
        leggiAParte(misura);
    else
        concludi(leggiImmagine(percorso, misura, Riduzione::Riempi));
}

void AnteprimaImmagine::leggiAParte(const QSize &misura) {
    m_stato = Stato::InCorso;
    setTesto(u"Caricamento dell'immagine..."_s);
    const auto promessa = std::make_shared<QPromise<QImage>>();
    m_attesa.setFuture(promessa->future());
    QThreadPool::globalInstance()->start([promessa, percorso = m_percorso, misura] {
        promessa->start();
        if (!promessa->isCanceled())
            promessa->addResult(leggiImmagine(percorso, misura, Riduzione::Riempi));
        promessa->finish();
    });
}

void AnteprimaImmagine::concludi(const QImage &letta) {
    if (letta.isNull()) {
        fallisci(Stato::NonLeggibile);
        return;
    }
    m_stato = Stato::Mostrata;
    m_trasparente = letta.hasAlphaChannel();
    setTesto({});
    setImmagine(QPixmap::fromImage(letta));
    Q_EMIT cambiata();
}

void AnteprimaImmagine::paintEvent(QPaintEvent *e) {
    if (m_stato == Stato::Mostrata && m_trasparente)
        QPainter(this).fillRect(rect(), QBrush(scacchiera(palette())));
    PictureBox::paintEvent(e);
}

void AnteprimaImmagine::fallisci(Stato stato) {
    m_stato = stato;
    setTesto(guasto());
    Q_EMIT cambiata();
}

QString AnteprimaImmagine::guasto() const {
    const QString nome = QFileInfo(m_percorso).fileName();
    if (m_stato == Stato::NonTrovata)
        return u"File non trovato: "_s + nome;
    if (m_stato == Stato::NonLeggibile)
        return u"Il file non è un'immagine leggibile: "_s + nome;
    return {};
}

} // namespace zuvora
