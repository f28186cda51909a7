#include "content/forms/AscoltoRadio.h"

#include "shell/host/ComponenteLettore.h"
#include "shell/logic/IndirizzoWeb.h"

#include <QFormLayout>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int larghezzaVolume = 240; // pixels
constexpr int margine = 48;
constexpr double ingrandimento = 2; // of the station's name over the form's letters

QLabel *etichetta(QWidget *padre, const char *nome) {
    auto *nuova = new QLabel(padre);
    nuova->setObjectName(QString::fromLatin1(nome));
    nuova->setTextFormat(Qt::PlainText);
    nuova->setWordWrap(true);
    nuova->setAlignment(Qt::AlignCenter);
    return nuova;
}

} // namespace

AscoltoRadio::AscoltoRadio(QWidget *padre, const char *nome, const Posto &posto, const QString &componenti)
    : Controllo(padre, nome, posto), m_componenti(componenti), m_nome(etichetta(this, "nome")),
      m_stato(etichetta(this, "stato")), m_motivo(etichetta(this, "motivo")),
      m_volume(new QSlider(Qt::Horizontal, this)) {
    costruisci();
    connect(m_volume, &QSlider::valueChanged, this, [this](int percento) {
        if (m_lettore)
            m_lettore->setVolume(percento);
    });
}

AscoltoRadio::~AscoltoRadio() = default;

void AscoltoRadio::costruisci() {
    QFont grande = font();
    grande.setPointSizeF(grande.pointSizeF() * ingrandimento);
    m_nome->setFont(grande);
    QFont evidente = font();
    evidente.setBold(true);
    m_stato->setFont(evidente);
    m_volume->setObjectName(u"volume"_s);
    m_volume->setAccessibleName(u"Volume"_s);
    m_volume->setRange(0, 100);
    m_volume->setSingleStep(10);
    m_volume->setValue(100);
    m_volume->setFixedWidth(larghezzaVolume);
    auto *tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(margine, margine, margine, margine);
    tutto->setSpacing(margine / 2);
    tutto->addStretch();
    tutto->addWidget(m_nome);
    tutto->addWidget(m_stato);
    tutto->addWidget(m_motivo);
    auto *riga = new QHBoxLayout;
    riga->addStretch();
    auto *volume = new QLabel(u"&Volume"_s, this);
    volume->setBuddy(m_volume);
    riga->addWidget(volume);
    riga->addWidget(m_volume);
    riga->addStretch();
    tutto->addLayout(riga);
    tutto->addStretch();
}

void AscoltoRadio::ascolta(const VoceRadio &voce) {
    m_voce = voce;
    m_nome->setText(voce.NomeRadio);
    if (!indirizzoWeb(voce.PercorsoURL)) {
        mostra(u"Interrotto"_s,
               u"L'indirizzo non è quello di una stazione: deve cominciare con http:// o https://\n\n%1"_s.arg(
                   voce.PercorsoURL));
        return;
    }
    mostra(u"Collegamento in corso…"_s, voce.PercorsoURL);
    m_daCollegare = true;
    update();
}

void AscoltoRadio::paintEvent(QPaintEvent *e) {
    Controllo::paintEvent(e);
    if (std::exchange(m_daCollegare, false))
        QTimer::singleShot(0, this, &AscoltoRadio::collega);
}

void AscoltoRadio::collega() {
    EsitoComponenteLettore esito = creaLettore(m_componenti, nullptr);
    if (!esito.lettore) {
        mostra(u"Interrotto"_s, esito.motivo);
        return;
    }
    m_lettore = std::move(esito.lettore);
    m_lettore->setVolume(m_volume->value());
    m_lettore->setAlCambio([this] { aggiorna(); });
    m_lettore->apriFlusso(*indirizzoWeb(m_voce.PercorsoURL));
}

void AscoltoRadio::aggiorna() {
    switch (m_lettore->stato()) {
    case StatoLettore::InCorso:
        mostra(u"In onda"_s, m_voce.PercorsoURL);
        break;
    case StatoLettore::Guasto:
        if (m_lettore->guasto() == GuastoLettore::PaginaWeb)
            Q_EMIT rimandato();
        else
            mostra(u"Interrotto"_s, m_lettore->motivo());
        break;
    case StatoLettore::Finito:
    case StatoLettore::InPausa:
        mostra(u"Interrotto"_s, u"La stazione non trasmette più."_s);
        break;
    default:
        mostra(u"Collegamento in corso…"_s, m_voce.PercorsoURL);
    }
}

void AscoltoRadio::mostra(const QString &stato, const QString &motivo) {
    m_stato->setText(stato);
    m_motivo->setText(motivo);
    Q_EMIT cambiato();
}

} // namespace zuvora
