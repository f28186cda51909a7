#include "shell/host/Button.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTimer>
#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int margine = 3; // pixels on each side of the caption
constexpr int latoDisegno = 14;

} // namespace

Button::Button(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto), m_base(font()) {
    // The form decides what Enter does; no button takes it as the dialog's default one.
    setAutoDefault(false);
    setCaption(QString::fromUtf8(didascalia));
}

void Button::setCaption(const QString &testo) {
    setText(testo);
    adatta();
}

void Button::allineaASinistra() {
    m_sinistra = true;
    update();
}

void Button::setDisegno(Disegno disegno) {
    m_disegno = disegno;
    m_dipinto = {};
    update();
}

void Button::setFontTesto(const QFont &f) {
    m_base = f;
    adatta();
}

void Button::setColori(const QColor &testo, const QColor &sfondo) {
    QPalette colori;
    if (testo.isValid())
        colori.setColor(QPalette::Active, QPalette::ButtonText, testo);
    if (testo.isValid())
        colori.setColor(QPalette::Inactive, QPalette::ButtonText, testo);
    if (sfondo.isValid())
        colori.setColor(QPalette::Button, sfondo);
    setPalette(colori);
}

void Button::setRuolo(Ruolo r) {
    m_ruolo = r;
    update();
}

void Button::setSegnato(bool segnato) {
    m_segnato = segnato;
    update();
}

void Button::abilita(bool acceso, const QString &motivo) {
    if (isEnabled())
        m_suggerimento = toolTip();
    setEnabled(acceso);
    setToolTip(acceso ? m_suggerimento : motivo);
    setAccessibleDescription(acceso ? QString() : motivo);
}

QSize Button::spazioDidascalia() const {
    const int icona = icon().isNull() ? 0 : iconSize().width() + 4;
    return {width() - 2 * margine - icona, height()};
}

void Button::adatta() {
    QFont adatto = fontAdatto(text(), m_base, spazioDidascalia(), false);
    if (m_stretto < 100)
        adatto.setStretch(m_stretto);
    setFont(adatto);
    const bool troppo = misuraDidascalia(text(), adatto).width() > spazioDidascalia().width();
    if (troppo || m_abbreviato)
        setToolTip(troppo ? QString(text()).remove(u'&').trimmed() : QString());
    m_abbreviato = troppo;
}

void Button::resizeEvent(QResizeEvent *e) {
    Controllo::resizeEvent(e);
    adatta();
}

void Button::paintEvent(QPaintEvent *) {
    QStylePainter pittore(this);
    QStyleOptionButton opzione;
    initStyleOption(&opzione);
    const QString testo = m_abbreviato ? abbreviata(text(), font(), spazioDidascalia().width()) : text();
    opzione.text = m_sinistra ? QString() : testo;
    pittore.drawControl(QStyle::CE_PushButton, opzione);
    if (m_sinistra) {
        int opzioni = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine;
        if (!style()->styleHint(QStyle::SH_UnderlineShortcut, &opzione, this))
            opzioni |= Qt::TextHideMnemonic;
        const int rientro = margine + dipingiDisegno(pittore);
        pittore.drawItemText(rect().adjusted(rientro, 0, -margine, 0), opzioni, palette(), isEnabled(), testo,
                             QPalette::ButtonText);
    }
}

// Gives the room that the drawing takes. It is drawn once, after the form has come up: captions come first.
int Button::dipingiDisegno(QPainter &pittore) {
    constexpr int distanza = 2;
    const int spazio = spazioDidascalia().width() - latoDisegno - distanza;
    if (!m_disegno || misuraDidascalia(text(), font()).width() > spazio)
        return 0;
    if (m_dipinto.isNull() || m_dipinto.devicePixelRatio() != devicePixelRatioF())
        QTimer::singleShot(0, this, [this] {
            const auto modo = isEnabled() ? QIcon::Normal : QIcon::Disabled;
            m_dipinto = icona(*m_disegno).pixmap(QSize(latoDisegno, latoDisegno), devicePixelRatioF(), modo);
            update();
        });
    else
        pittore.drawPixmap(margine, (height() - latoDisegno) / 2, m_dipinto);
    return latoDisegno + distanza;
}

void Button::changeEvent(QEvent *e) {
    Controllo::changeEvent(e);
    if (e->type() == QEvent::EnabledChange)
        m_dipinto = {};
}

void condensaInsieme(const QList<Button *> &gruppo) {
    int stretto = 100;
    for (Button *b : gruppo) {
        b->m_stretto = 100;
        const int suo = fontAdatto(b->text(), b->m_base, b->spazioDidascalia(), false).stretch();
        if (suo > 0)
            stretto = std::min(stretto, suo);
    }
    for (Button *b : gruppo) {
        b->m_stretto = stretto;
        b->adatta();
    }
}

} // namespace zuvora
