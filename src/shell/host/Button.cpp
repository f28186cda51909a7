#include "shell/host/Button.h"

#include <QEvent>
#include <QPainter>
#include <QPointer>
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
constexpr int scartoDisegno = 2; // between a drawing and its caption

constexpr int tutta = 100; // per cent: the regular width of a caption

} // namespace

// Measured when the first of the group is fitted, and once.
class Button::Gruppo {
public:
    explicit Gruppo(const QList<Button *> &bottoni) : m_bottoni(bottoni.begin(), bottoni.end()) {}

    // Per cent of the regular width that all captions take.
    int larghezza() {
        if (!m_larghezza)
            m_larghezza = minima();
        return *m_larghezza;
    }

private:
    int minima() const {
        int larghezza = tutta;
        for (const Button *b : m_bottoni) {
            if (b == nullptr)
                continue;
            const int sua = fontAdatto(b->text(), b->m_base, b->spazioDidascalia(), false).stretch();
            if (sua > 0)
                larghezza = std::min(larghezza, sua);
        }
        return larghezza;
    }

    const QList<QPointer<Button>> m_bottoni;
    std::optional<int> m_larghezza;
};

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
    adatta();
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
    if (!m_disposto)
        return;
    QFont adatto = m_base;
    if (const int comune = m_gruppo ? m_gruppo->larghezza() : tutta; comune < tutta)
        adatto.setStretch(comune);
    else
        adatto = fontAdatto(text(), m_base, spazioDidascalia(), false);
    if (adatto != font())
        setFont(adatto);
    const int spazio = spazioDidascalia().width();
    const int occupa = adatto != m_base || m_disegno ? misuraDidascalia(text(), adatto).width() : 0;
    m_conDisegno = m_disegno && occupa + latoDisegno + scartoDisegno <= spazio;
    const bool troppo = occupa > spazio;
    if (troppo || m_abbreviato)
        setToolTip(troppo ? QString(text()).remove(u'&').trimmed() : QString());
    m_abbreviato = troppo;
}

void Button::resizeEvent(QResizeEvent *e) {
    Controllo::resizeEvent(e);
    m_disposto = true;
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
        if (m_conDisegno)
            dipingiDisegno(pittore);
        const int rientro = margine + (m_conDisegno ? latoDisegno + scartoDisegno : 0);
        pittore.drawItemText(rect().adjusted(rientro, 0, -margine, 0), opzioni, palette(), isEnabled(), testo,
                             QPalette::ButtonText);
    }
}

// It is drawn once, after the form has come up: captions come first.
void Button::dipingiDisegno(QPainter &pittore) {
    if (m_dipinto.isNull() || m_dipinto.devicePixelRatio() != devicePixelRatioF())
        QTimer::singleShot(0, this, [this] {
            const auto modo = isEnabled() ? QIcon::Normal : QIcon::Disabled;
            m_dipinto = icona(*m_disegno).pixmap(QSize(latoDisegno, latoDisegno), devicePixelRatioF(), modo);
            update();
        });
    else
        pittore.drawPixmap(margine, (height() - latoDisegno) / 2, m_dipinto);
}

void Button::changeEvent(QEvent *e) {
    Controllo::changeEvent(e);
    if (e->type() == QEvent::EnabledChange)
        m_dipinto = {};
}

void condensaInsieme(const QList<Button *> &gruppo) {
    const auto comune = std::make_shared<Button::Gruppo>(gruppo);
    for (Button *b : gruppo) {
        b->m_gruppo = comune;
        b->adatta();
    }
}

} // namespace zuvora
