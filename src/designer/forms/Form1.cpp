#include "designer/forms/Form1.h"

#include "designer/forms/Form2.h"
#include "designer/logic/Classi.h"
#include "designer/logic/ImmaginiQt.h"
#include "designer/logic/ScritturaLayout.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/Piattaforma.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

QPoint pixelDa(PuntoTwips p) {
    return rettangoloTela({p.left, p.top, 0, 0}).topLeft();
}

Misura misuraDa(Dimensione d) {
    return {static_cast<int>(d.width), static_cast<int>(d.height)};
}

} // namespace

Form1::Form1(const Ambiente &ambiente_, DisplayLayout &layout, ImmaginiQt &immagini, ApritoriTela apritori,
             Dimensione tela, QWidget *padre)
    : Form(ambiente_, "Form1", "", misuraDa(tela), padre), m_layout(layout), m_immagini(immagini),
      m_apritori(std::move(apritori)), m_misura(tela), m_scena(layout, immagini, zuvora::pixelDa(misuraDa(tela))),
      m_elementi(this, layout, [this](int posto, Fase fase, QMouseEvent &e) { mouseElemento(posto, fase, e); }),
      SSPanel1(
          this, [this](Fase fase, QMouseEvent &e) { mouseStriscia(fase, e); },
          [this](Fase fase, QMouseEvent &e) { mousePresa(fase, e); }) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    for (int i = 0; i < numeroManiglie; ++i)
        picHandle[std::size_t(i)] =
            new Maniglietta(this, i, [this, i](Fase fase, QMouseEvent &e) { mouseManiglia(i, fase, e); });
    SSPanel1.impila(&m_contorno);
    for (Maniglietta *maniglia : picHandle)
        maniglia->stackUnder(&SSPanel1);
    m_contorno.setGeometry(rect());
    M2.setObjectName(u"M2"_s);
    QAction *M11 = M2.addAction(u"Chiudi Schermata"_s);
    M11->setObjectName(u"M11"_s);
    quando(*M11, &QAction::triggered, [this] { scarica(); });
    alClic(SSPanel1.Btn, [this](int indice) { comando(indice); });
    connect(this, &QWidget::windowTitleChanged, &SSPanel1, &BarraStrumenti::mostraDidascalia);
    setCaption(didascaliaForm(layout.NomeTabella()));
}

// The first time only: the event comes again whenever a dialog closes.
void Form1::attivata() {
    if (std::exchange(m_attivata, true))
        return;
    m_didascaliaBase = Caption();
    setFocus();
    if (!m_avviso.isEmpty())
        QTimer::singleShot(0, this, [this] {
            ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, u"Zuvora-Messaggio"_s, m_avviso);
        });
    const PrimaAttivazione prima = leggiPrimaAttivazione(cartella());
    valori().PercorsoTG = prima.PercorsoTG;
    vai(prima.posizione);
}

void Form1::vai(PuntoTwips posizione) {
    move(pixelDa(posizione));
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
}

void Form1::aggiornaTutto() {
    m_elementi.allineaTutti();
    update(m_scena.aggiornaTutto());
}

void Form1::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Escape)
        move(0, y()); // brings the form back from the second screen
    else if (e->key() == Qt::Key_Delete)
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

void Form1::apriForm2(int posto) {
    Form2(
        ambiente(), m_layout, posto, [this] { aggiornaTutto(); }, this)
        .mostraModale();
}

void Form1::apriDecorazione(int indice) {
    if (!m_apritori.decorazione)
        return nonDisponibile();
    const auto scelta = m_apritori.decorazione(this, indice);
    if (!scelta)
        return;
    if (!applicaDecorazione(m_layout, indice, scelta->percorso, scelta->secondoPiano, m_immagini))
        return mostra({u"L'immagine scelta per la decorazione"_s, u"non si trova o non è leggibile."_s});
    m_scena.immagini().dimentica(scelta->percorso);
    const int posto = DisplayLayout::postoDi(TipoElemento::Image1, indice);
    m_elementi.impila(posto, picHandle.front());
    aggiorna(posto);
}

void Form1::apriSfondo() {
    if (!m_apritori.sfondo)
        return nonDisponibile();
    const auto imposta = [this](const QString &percorso) {
        const bool caricata = applicaSfondo(m_layout, percorso, m_immagini);
        if (caricata) {
            m_scena.immagini().dimentica(percorso);
            aggiornaTutto();
        }
        return caricata;
    };
    m_apritori.sfondo(this, {imposta, [imposta] { imposta({}); }});
}

void Form1::apriAnteprimaTG() {
    if (!m_apritori.anteprimaTG)
        return nonDisponibile();
    m_apritori.anteprimaTG(this, m_layout, [this] { aggiorna(DisplayLayout::postoDi(TipoElemento::WB2)); });
}

void Form1::comando(int indice) {
    const BottoneStrumenti &bottone = *bottoneStrumenti(indice);
    switch (bottone.comando) {
    case Comando::PiazzaElemento:
        return piazzaElemento(bottone);
    case Comando::PiazzaPannello:
        return piazzaPannello();
    case Comando::PiazzaDecorazione:
        return piazzaDecorazione();
    case Comando::ApriSfondo:
        return apriSfondo();
    case Comando::ApriColoreSfondo:
        return apriForm2(DisplayLayout::postoDi(TipoElemento::Tela));
    case Comando::SecondoSchermo:
        return vai(VaiSecondoSchermo(twipsDa(ambiente().piattaforma.schermo().width())));
    case Comando::SalvaPosizione:
        return SalvaPosizioneFinestra();
    case Comando::Salva:
        return SalvaLayout();
    case Comando::Chiudi:
        return scarica();
    }
}

void Form1::piazzaElemento(const BottoneStrumenti &bottone) {
    if (zuvora::piazzaElemento(m_layout, bottone.tipo, bottone.indiceElemento))
        aggiorna(DisplayLayout::postoDi(bottone.tipo, bottone.indiceElemento));
}

void Form1::piazzaPannello() {
    const auto indice = zuvora::piazzaPannello(m_layout);
    if (!indice)
        return mostra(messaggioPannelliFiniti());
    aggiorna(DisplayLayout::postoDi(TipoElemento::Pannello1, *indice));
}

void Form1::piazzaDecorazione() {
    const auto indice = zuvora::piazzaDecorazione(m_layout);
    if (!indice)
        return mostra(messaggioDecorazioniFinite());
    aggiorna(DisplayLayout::postoDi(TipoElemento::Image1, *indice));
    apriDecorazione(*indice);
}

void Form1::SalvaLayout() {
    setCursor(Qt::WaitCursor);
    const EsitoScrittura esito = zuvora::SalvaLayout(m_layout, cartella());
    unsetCursor();
    aggiorna(DisplayLayout::postoDi(TipoElemento::WB1)); // a save gives the weather box its size
    mostra(messaggioSalva(esito));
}

void Form1::SalvaPosizioneFinestra() {
    zuvora::SalvaPosizioneFinestra(cartella(), {double(twipsDa(x())), double(twipsDa(y()))});
}

void Form1::mostra(const Messaggio &messaggio) {
    avvisa(messaggio.riga0, messaggio.riga1);
}

void Form1::nonDisponibile() {
    mostra({u"Questa funzione non è ancora disponibile"_s, u"in questa versione del modulo."_s});
}

} // namespace zuvora
