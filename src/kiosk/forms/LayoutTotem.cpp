#include "kiosk/forms/LayoutTotem.h"

#include "kiosk/logic/SfondoTotem.h"
#include "shell/host/ColorPicker.h"

#include <QDate>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QColor fondoAvviso(0xFF, 0xF4, 0xC4);
constexpr int margineDestro = 240;                    // twips, from the date to the screen's right edge
constexpr Posto fuoriVista = {1000, 23000, 975, 330}; // where a button waits

QFont fontDa(const StileTotem &stile) {
    QFont font(stile.font);
    font.setPointSize(stile.misura);
    font.setBold(stile.grassetto);
    font.setItalic(stile.italico);
    return font;
}

QFont fontIniziale() {
    QFont font(u"Tahoma"_s);
    font.setPointSizeF(14.25);
    font.setBold(true);
    return font;
}

Posto postoDa(const QRect &twips) {
    return {twips.x(), twips.y(), twips.width(), twips.height()};
}

void scrivi(Label &etichetta, const QString &testo, const StileTotem &stile) {
    etichetta.setCaption(testo);
    etichetta.setFontBase(fontDa(stile));
    etichetta.setColori(coloreDa(stile.colore));
}

} // namespace

LayoutTotem::LayoutTotem(const Ambiente &contesto, const RichiestaAnteprima &richiesta, QWidget *padre)
    : Form(contesto, "LayoutTotem", "Impostazione Layout Totem", richiesta.finestra, padre), m_richiesta(richiesta),
      m_aspetto(leggiAspetto(cartella())), Bottone("Bottone", 1, serviziMassimi, [this](int i, const char *nome) {
          return std::make_unique<BottoneTotem>(this, nome, u"Pulsante %1"_s.arg(i), fuoriVista);
      }) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (const auto &[indice, bottone] : Bottone)
        bottone->hide();
    for (Label *etichetta : {&TitoloTXT, &Label1, &Avviso})
        etichetta->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (Label *etichetta : {&TitoloTXT, &Label1}) {
        etichetta->setAutosize(true);
        etichetta->setFontBase(fontIniziale());
    }
    Label1.setAllineamento(Qt::AlignRight);
    Label1.setLeft(richiesta.finestra.width - twipsDa(Label1.width()) - margineDestro);
    TitoloTXT.setVisible(richiesta.testoVisibile);
    Label1.setVisible(richiesta.dataVisibile);
    vestiPulsanti();
    if (richiesta.schermo && schermiTotem.at(std::size_t(*richiesta.schermo)).larghezza > 0)
        DisponiPulsanti(*richiesta.schermo);
    else
        avverti((richiesta.schermo ? u"Nessuna disposizione dei pulsanti per questa risoluzione"_s
                                   : u"Nessuna risoluzione scelta"_s) +
                u": scegliere 1280 x 1024, 1920 x 1080 o 1440 x 900."_s);
    if (!m_aspetto.rifiutati.isEmpty())
        avverti(u"Valori che non si possono usare, e valgono quelli consueti: "_s + m_aspetto.rifiutati.join(u", "_s) +
                u'.');
    mostraAvvisi();
    for (QWidget *figlio : findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        figlio->installEventFilter(this);
    componi();
}

void LayoutTotem::DisponiPulsanti(int schermo) {
    const auto servizi = static_cast<int>(m_richiesta.servizi.size());
    const auto posti = disposizionePulsanti(schermo, servizi);
    const auto prepara = [&] {
        for (std::size_t i = 0; i < posti.size(); ++i)
            Bottone(static_cast<int>(i) + 1).prepara(pixelDa(postoDa(posti[i])).size());
    };
    if (!mostraSfondo(prepara))
        return;
    scriviTitoloEData(schermo);
    for (std::size_t i = 0; i < posti.size(); ++i) {
        BottoneTotem &bottone = Bottone(static_cast<int>(i) + 1);
        bottone.setPosto(postoDa(posti[i]));
        bottone.show();
    }
    if (servizi == 0)
        avverti(u"Nessun servizio attivo: non ci sono pulsanti da disporre."_s);
    if (const int fuori = fuoriSchermo(schermo, servizi); fuori > 0)
        avverti(
            u"Con %1 servizi l'ultima riga di pulsanti esce di %2 pixel sotto il bordo dello schermo."_s.arg(servizi)
                .arg(pixelDa(fuori)));
}

// False when the picture ends the arrangement. `intanto` runs while it is being decoded.
bool LayoutTotem::mostraSfondo(const std::function<void()> &intanto) {
    const SfondoTotem sfondo =
        leggiSfondo(ambiente().percorsi, m_aspetto.sfondo, pixelDa(m_richiesta.finestra), intanto);
    avverti(fraseSfondo(sfondo, m_aspetto.sfondo));
    m_sfondo = QPixmap::fromImage(sfondo.immagine);
    m_sfondo.setDevicePixelRatio(1);
    return !fermaDisposizione(sfondo.esito);
}

void LayoutTotem::scriviTitoloEData(int schermo) {
    scrivi(TitoloTXT, m_aspetto.titolo, m_aspetto.stileTitolo);
    scrivi(Label1, dataInParole(QDate::currentDate()), m_aspetto.stileData);
    Label1.setLeft(schermiTotem.at(std::size_t(schermo)).larghezza - twipsDa(Label1.width()) - margineDestro);
}

void LayoutTotem::vestiPulsanti() {
    const StileTotem &stile = m_aspetto.stilePulsanti;
    const auto quanti = std::min<qsizetype>(m_richiesta.servizi.size(), serviziMassimi);
    for (int i = 0; i < quanti; ++i) {
        BottoneTotem &bottone = Bottone(i + 1);
        bottone.setCaption(u' ' + m_richiesta.servizi[i]);
        bottone.setFontTesto(fontDa(stile));
        if (stile.coloreDato)
            bottone.setColoreTesto(coloreDa(stile.colore));
    }
}

void LayoutTotem::avverti(const QString &frase) {
    if (!frase.isEmpty())
        m_avvisi << frase;
}

// In the part of the window that any monitor shows, whatever its width.
void LayoutTotem::mostraAvvisi() {
    Avviso.setVisible(!m_avvisi.isEmpty());
    const QString testo = m_avvisi.join(u'\n');
    QFont leggibile = font();
    leggibile.setPointSizeF(11);
    const int larghezza = std::min(width(), screen()->availableGeometry().width()) - pixelDa(2 * Avviso.Left());
    const QRect spazio =
        QFontMetrics(leggibile).boundingRect(QRect(0, 0, larghezza, height()), Qt::TextWordWrap, testo);
    Avviso.setPosto({Avviso.Left(), Avviso.Top(), twipsDa(spazio.width() + 1), twipsDa(spazio.height())});
    Avviso.setFontBase(leggibile);
    Avviso.setCaption(testo);
    Avviso.setColori(Qt::black);
    Avviso.raise();
}

void LayoutTotem::componi() {
    const QScopedValueRollback<bool> adesso(m_componendo, true);
    m_schermata = QPixmap(size() * devicePixelRatioF());
    m_schermata.setDevicePixelRatio(devicePixelRatioF());
    QPainter pittore(&m_schermata);
    pittore.fillRect(rect(), palette().window());
    pittore.drawPixmap(QPoint(), m_sfondo);
    if (!Avviso.isHidden())
        pittore.fillRect(Avviso.geometry(), fondoAvviso);
    for (QWidget *figlio : findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        if (!figlio->isHidden())
            figlio->render(&pittore, figlio->pos(), {}, {});
}

// What is in the picture isn't painted again over it. A child with a ground of its own would cover it.
bool LayoutTotem::eventFilter(QObject *figlio, QEvent *e) {
    return (e->type() == QEvent::Paint && !m_componendo) || Form::eventFilter(figlio, e);
}

void LayoutTotem::paintEvent(QPaintEvent *e) {
    const qreal scala = devicePixelRatioF();
    if (m_schermata.size() != size() * scala) // moved to a monitor of another scale
        componi();
    const QRectF parte = e->rect();
    QPainter(this).drawPixmap(parte, m_schermata, {parte.topLeft() * scala, parte.size() * scala});
}

// A window larger than the monitor begins in its corner, with the frame in view.
void LayoutTotem::showEvent(QShowEvent *e) {
    Form::showEvent(e);
    const QRect monitor = screen()->availableGeometry();
    if (!e->spontaneous() && (width() > monitor.width() || height() > monitor.height()))
        move(monitor.topLeft());
}

// It is moved by any place of it and by the arrow keys, for its frame may be out of reach.
void LayoutTotem::keyPressEvent(QKeyEvent *e) {
    constexpr int passo = 60; // pixels
    switch (e->key()) {
    case Qt::Key_Left:
        return move(x() - passo, y());
    case Qt::Key_Right:
        return move(x() + passo, y());
    case Qt::Key_Up:
        return move(x(), y() - passo);
    case Qt::Key_Down:
        return move(x(), y() + passo);
    default:
        Form::keyPressEvent(e);
    }
}

void LayoutTotem::mousePressEvent(QMouseEvent *e) {
    if (e->button() == Qt::LeftButton)
        m_presa = e->globalPosition().toPoint() - frameGeometry().topLeft();
}

void LayoutTotem::mouseMoveEvent(QMouseEvent *e) {
    if (e->buttons() & Qt::LeftButton)
        move(e->globalPosition().toPoint() - m_presa);
}

} // namespace zuvora
