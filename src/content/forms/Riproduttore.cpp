#include "content/forms/Riproduttore.h"

#include "shell/host/ComponenteLettore.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr int larghezzaVolume = 90; // pixels
constexpr int passoVolume = 10;     // per cent
constexpr auto passoPosizione = 5s;

} // namespace

QString testoTempo(std::chrono::milliseconds tempo) {
    const auto secondi = std::chrono::duration_cast<std::chrono::seconds>(tempo).count();
    const QString resto = u"%1:%2"_s.arg(secondi / 60 % 60, secondi < 3600 ? 1 : 2, 10, QChar(u'0'))
                              .arg(secondi % 60, 2, 10, QChar(u'0'));
    return secondi < 3600 ? resto : u"%1:%2"_s.arg(secondi / 3600).arg(resto);
}

Riproduttore::Riproduttore(QWidget *padre, const char *nome, const Posto &posto, const QString &componenti)
    : Controllo(padre, nome, posto), m_componenti(componenti), m_film(new QWidget(this)),
      m_pila(new QStackedLayout(m_film)), m_avviso(new QLabel(m_film)), m_pausa(new QPushButton(this)),
      m_posizione(new QSlider(Qt::Horizontal, this)), m_tempo(new QLabel(this)),
      m_volume(new QSlider(Qt::Horizontal, this)), m_nome(new QLabel(this)) {
    costruisci();
    connect(m_pausa, &QPushButton::clicked, this, &Riproduttore::alterna);
    connect(m_posizione, &QSlider::sliderMoved, this, [this](int ms) { m_lettore->setPosizione(Lettore::Tempo(ms)); });
    connect(m_posizione, &QSlider::actionTriggered, this,
            [this] { m_lettore->setPosizione(Lettore::Tempo(m_posizione->sliderPosition())); });
    connect(m_volume, &QSlider::valueChanged, this, [this](int percento) {
        if (m_lettore)
            m_lettore->setVolume(percento);
    });
    aggiorna();
}

Riproduttore::~Riproduttore() = default;

void Riproduttore::costruisci() {
    m_film->setObjectName(u"film"_s);
    m_film->setAutoFillBackground(true);
    QPalette nero = palette();
    nero.setColor(QPalette::Window, Qt::black);
    nero.setColor(QPalette::WindowText, Qt::white);
    m_film->setPalette(nero);
    m_avviso->setObjectName(u"avviso"_s);
    m_avviso->setAlignment(Qt::AlignCenter);
    m_avviso->setWordWrap(true);
    m_avviso->setMargin(24);
    m_pila->setSizeConstraint(QLayout::SetNoConstraint);
    m_pila->addWidget(m_avviso);
    m_pausa->setObjectName(u"pausa"_s);
    m_posizione->setObjectName(u"posizione"_s);
    m_posizione->setAccessibleName(u"Posizione nel filmato"_s);
    m_posizione->setSingleStep(static_cast<int>(std::chrono::milliseconds(passoPosizione).count()));
    m_posizione->setPageStep(6 * m_posizione->singleStep());
    m_tempo->setObjectName(u"tempo"_s);
    m_volume->setObjectName(u"volume"_s);
    m_volume->setAccessibleName(u"Volume"_s);
    m_volume->setToolTip(u"Volume"_s);
    m_volume->setRange(0, 100);
    m_volume->setSingleStep(passoVolume);
    m_volume->setValue(100);
    m_volume->setFixedWidth(larghezzaVolume);
    m_nome->setObjectName(u"nome"_s);
    m_nome->setTextFormat(Qt::PlainText);

    auto *comandi = new QHBoxLayout;
    comandi->addWidget(m_pausa);
    comandi->addWidget(m_posizione, 1);
    comandi->addWidget(m_tempo);
    auto *volume = new QLabel(u"&Volume"_s, this);
    volume->setBuddy(m_volume);
    comandi->addWidget(volume);
    comandi->addWidget(m_volume);
    auto *tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(0, 0, 0, 0);
    tutto->addWidget(m_film, 1);
    tutto->addWidget(m_nome);
    tutto->addLayout(comandi);
}

void Riproduttore::setFile(const QString &percorso) {
    m_percorso = percorso;
    const QString nome = QFileInfo(percorso).fileName();
    m_nome->setText(fontMetrics().elidedText(nome, Qt::ElideMiddle, width()));
    m_nome->setToolTip(percorso);
}

void Riproduttore::avvia() {
    m_daAvviare = true;
    if (m_lettore)
        crea();
}

// Loading the component holds the program up for a moment: the form must stand on the screen by then.
void Riproduttore::paintEvent(QPaintEvent *e) {
    Controllo::paintEvent(e);
    if (std::exchange(m_daAvviare, false))
        QTimer::singleShot(0, this, &Riproduttore::crea);
}

void Riproduttore::crea() {
    if (!m_lettore) {
        EsitoComponenteLettore esito = creaLettore(m_componenti, m_film);
        if (!esito.lettore) {
            m_avviso->setText(esito.motivo);
            Q_EMIT cambiato();
            return;
        }
        m_lettore = std::move(esito.lettore);
        m_pila->addWidget(m_lettore->widget());
        m_lettore->setVolume(m_volume->value());
        m_lettore->setAlCambio([this] { aggiorna(); });
    }
    m_lettore->apriFile(m_percorso);
}

bool Riproduttore::suona() const {
    return m_lettore && m_lettore->stato() == StatoLettore::InCorso;
}

void Riproduttore::alterna() {
    if (suona())
        m_lettore->pausa();
    else if (m_lettore)
        m_lettore->riprendi();
}

void Riproduttore::aggiorna() {
    const StatoLettore stato = m_lettore ? m_lettore->stato() : StatoLettore::Vuoto;
    const bool aperto =
        stato == StatoLettore::InCorso || stato == StatoLettore::InPausa || stato == StatoLettore::Finito;
    m_pausa->setText(suona() ? u"&Pausa"_s : u"Ri&produci"_s);
    m_pausa->setEnabled(aperto);
    m_posizione->setEnabled(aperto && m_lettore->durata() > 0ms);
    m_volume->setEnabled(!aperto || m_lettore->haUscita());
    m_volume->setToolTip(m_volume->isEnabled() ? u"Volume"_s : u"Questo computer non ha un'uscita audio"_s);
    if (aperto) {
        m_posizione->setMaximum(static_cast<int>(m_lettore->durata().count()));
        if (!m_posizione->isSliderDown())
            m_posizione->setValue(static_cast<int>(m_lettore->posizione().count()));
        m_tempo->setText(testoTempo(m_lettore->posizione()) + u" / "_s + testoTempo(m_lettore->durata()));
    }
    // A missing file says nothing: the box stays empty.
    const bool guasto = stato == StatoLettore::Guasto && m_lettore->guasto() != GuastoLettore::FileMancante;
    m_avviso->setText(guasto ? m_lettore->motivo() : QString());
    m_pila->setCurrentWidget(aperto && m_lettore->haFilm() ? m_lettore->widget() : m_avviso);
    Q_EMIT cambiato();
}

void Riproduttore::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Space)
        alterna();
    else
        Controllo::keyPressEvent(e);
}

} // namespace zuvora
