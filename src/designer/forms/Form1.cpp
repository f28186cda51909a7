#include "designer/forms/Form1.h"

#include "shell/host/Dialoghi.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

Misura misuraDa(Dimensione d) {
    return {static_cast<int>(d.width), static_cast<int>(d.height)};
}

} // namespace

Form1::Form1(const Ambiente &contesto, DisplayLayout &layout, ImmaginiQt &immagini, ApritoriTela apritori,
             Dimensione tela, QWidget *padre)
    : Form(contesto, "Form1", "", misuraDa(tela), padre), m_layout(layout), m_immagini(immagini),
      m_apritori(std::move(apritori)), m_misura(tela), m_scena(layout, immagini, zuvora::pixelDa(misuraDa(tela))),
      m_elementi(this, layout, [this](int posto, Fase fase, QMouseEvent &e) { mouseElemento(posto, fase, e); }),
      SSPanel1(
          this, [this](Fase fase, QMouseEvent &e) { mouseStriscia(fase, e); },
          [this](Fase fase, QMouseEvent &e) { mousePresa(fase, e); },
          [this](Fase fase, QMouseEvent &e) { mouseStrumenti(fase, e); }) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    for (int i = 0; i < numeroManiglie; ++i)
        picHandle[std::size_t(i)] =
            new Maniglietta(this, i, [this, i](Fase fase, QMouseEvent &e) { mouseManiglia(i, fase, e); });
    SSPanel1.impila(&m_contorno);
    for (Maniglietta *maniglia : picHandle)
        maniglia->stackUnder(&SSPanel1);
    for (Maniglietta *maniglia : picHandle)
        maniglia->presa()->stackUnder(picHandle.front());
    m_contorno.setGeometry(rect());
    M2.setObjectName(u"M2"_s);
    QAction *M11 = M2.addAction(u"Chiudi Schermata"_s);
    M11->setObjectName(u"M11"_s);
    quando(*M11, &QAction::triggered, [this] { scarica(); });
    alClic(SSPanel1.Btn, [this](int indice) { comando(indice); });
    connect(this, &QWidget::windowTitleChanged, &SSPanel1, &BarraStrumenti::mostraDidascalia);
    setCaption(didascaliaForm(layout.NomeTabella()));
    segnaPiazzati();
}

// The first time only: the event comes again whenever a dialog closes.
void Form1::attivata() {
    if (std::exchange(FormAttivata, true))
        return;
    m_didascaliaBase = Caption();
    setFocus();
    if (!m_avviso.isEmpty())
        QTimer::singleShot(0, this, [this] {
            ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, titoloMessaggi(), m_avviso);
        });
    valori().PercorsoTG.clear();
    proteggi([this] { vai(leggiPosizioneFinestra(cartella())); });
    raggiungi();
    valori().PercorsoTG = leggiPercorsoTG(cartella());
}

void Form1::paintEvent(QPaintEvent *e) {
    QPainter p(this);
    m_scena.mostra(p, e->region(), devicePixelRatioF());
}

void Form1::aggiorna(int posto) {
    if (m_layout[posto].tipo == TipoElemento::Text1)
        posto = DisplayLayout::postoDi(TipoElemento::Pannello1, m_layout[posto].indice / 3);
    m_elementi.allinea(posto);
    update(m_scena.aggiorna(posto));
    segnaPiazzati();
}

void Form1::aggiornaTutto() {
    m_elementi.allineaTutti();
    update(m_scena.aggiornaTutto());
    segnaPiazzati();
}

void Form1::segnaPiazzati() {
    for (const BottoneStrumenti &bottone : bottoniStrumenti())
        SSPanel1.segna(bottone.indice, piazzati(m_layout, bottone));
}

void Form1::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Escape) {
        move(0, y()); // brings the form back from the second screen
        if (m_trascinamento.inContorno())
            mostraContorno(); // which stays where it is on the screen
    } else if (e->key() == Qt::Key_Delete)
        elimina();
    else
        Form::keyPressEvent(e);
}

void Form1::elimina() {
    if (parcheggia(m_layout, m_selezionato))
        aggiorna(DisplayLayout::postoDi(m_selezionato));
}

// One pass of the event loop, in which a second click finds the element disabled.
void Form1::lampo(int posto) {
    Bersaglio &bersaglio = m_elementi(posto);
    bersaglio.setEnabled(false);
    QCoreApplication::processEvents();
    bersaglio.setEnabled(true);
}

} // namespace zuvora
