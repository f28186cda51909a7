#include "shell/host/Controlli.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace zuvora {
namespace {

constexpr int RientroTitolo = 8;  // pixels before a frame's title
constexpr int MargineBottone = 3; // pixels on each side of a button's caption

// Room beside the mark of a radio button or a check box.
QSize spazioAccantoAlSegno(const QAbstractButton *b, QStyle::SubElement testo) {
    QStyleOptionButton opzione;
    opzione.initFrom(b);
    opzione.text = b->text();
    const QRect r = b->style()->subElementRect(testo, &opzione, b);
    return {b->width() - r.left(), b->height()};
}

template <class B> void adattaAccantoAlSegno(B *b) {
    b->setFont(fontAdatto(b->text(), b->font(), b->spazioDidascalia(), false));
}

} // namespace

Label::Label(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto), m_base(font()) {
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setCaption(QString::fromUtf8(didascalia));
}

void Label::setCaption(const QString &testo) {
    m_caption = testo;
    setText(testo);
    adatta();
}

void Label::setFontBase(const QFont &f) {
    m_base = f;
    adatta();
}

QSize Label::spazioDidascalia() const {
    return contentsRect().size();
}

void Label::adatta() {
    setFont(fontAdatto(m_caption, m_base, spazioDidascalia(), true));
}

void Label::resizeEvent(QResizeEvent *e) {
    Controllo::resizeEvent(e);
    adatta();
}

LabelLink::LabelLink(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Label(padre, nome, didascalia, posto) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setForegroundRole(QPalette::Link);
}

void LabelLink::mouseReleaseEvent(QMouseEvent *e) {
    if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()))
        Q_EMIT clicked();
}

void LabelLink::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter || e->key() == Qt::Key_Space)
        Q_EMIT clicked();
    else
        Label::keyPressEvent(e);
}

void LabelLink::focusInEvent(QFocusEvent *e) {
    Label::focusInEvent(e);
    setFrameStyle(QFrame::Box | QFrame::Plain);
}

void LabelLink::focusOutEvent(QFocusEvent *e) {
    Label::focusOutEvent(e);
    setFrameStyle(QFrame::NoFrame);
}

Button::Button(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto), m_base(font()) {
    // A form's Enter key belongs to the focused control, not to a default button.
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

QSize Button::spazioDidascalia() const {
    const int icona = icon().isNull() ? 0 : iconSize().width();
    return {width() - 2 * MargineBottone - icona, height()};
}

void Button::adatta() {
    setFont(fontAdatto(text(), m_base, spazioDidascalia(), false));
}

void Button::resizeEvent(QResizeEvent *e) {
    Controllo::resizeEvent(e);
    adatta();
}

void Button::paintEvent(QPaintEvent *e) {
    if (!m_sinistra) {
        Controllo::paintEvent(e);
        return;
    }
    QStylePainter pittore(this);
    QStyleOptionButton opzione;
    initStyleOption(&opzione);
    const QString testo = opzione.text;
    opzione.text.clear();
    pittore.drawControl(QStyle::CE_PushButton, opzione);
    int opzioni = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine;
    if (!style()->styleHint(QStyle::SH_UnderlineShortcut, &opzione, this))
        opzioni |= Qt::TextHideMnemonic;
    pittore.drawItemText(rect().adjusted(MargineBottone, 0, -MargineBottone, 0), opzioni, palette(), isEnabled(), testo,
                         QPalette::ButtonText);
}

RadioButton::RadioButton(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto, QString::fromUtf8(didascalia)) {
    adattaAccantoAlSegno(this);
}

QSize RadioButton::spazioDidascalia() const {
    return spazioAccantoAlSegno(this, QStyle::SE_RadioButtonContents);
}

CheckBox::CheckBox(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto, QString::fromUtf8(didascalia)) {
    adattaAccantoAlSegno(this);
}

QSize CheckBox::spazioDidascalia() const {
    return spazioAccantoAlSegno(this, QStyle::SE_CheckBoxContents);
}

GroupBox::GroupBox(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto, QString::fromUtf8(didascalia)) {}

QSize GroupBox::spazioDidascalia() const {
    return {width() - 2 * RientroTitolo, height()};
}

void GroupBox::paintEvent(QPaintEvent *) {
    QPainter pittore(this);
    const bool conTitolo = !title().isEmpty();
    const QFontMetrics metrica(font());
    const int sopra = conTitolo ? metrica.height() / 2 : 0;
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(palette().color(QPalette::Mid));
    pittore.setBrush(Qt::NoBrush);
    pittore.drawRoundedRect(QRectF(rect()).adjusted(0.5, sopra + 0.5, -0.5, -0.5), 3, 3);
    if (!conTitolo)
        return;
    const QRect testo(RientroTitolo, 0, misuraDidascalia(title(), font()).width() + 1, metrica.height());
    pittore.fillRect(testo.adjusted(-3, 0, 3, 0), palette().color(QPalette::Window));
    style()->drawItemText(&pittore, testo, Qt::AlignLeft | Qt::TextShowMnemonic, palette(), isEnabled(), title(),
                          QPalette::WindowText);
}

Edit::Edit(QWidget *padre, const char *nome, const Posto &posto, const char *testo) : Controllo(padre, nome, posto) {
    setText(QString::fromUtf8(testo));
}

void Edit::setTastiAmmessi(std::function<bool(QChar)> ammesso) {
    m_ammesso = std::move(ammesso);
}

void Edit::setAlFuoco(std::function<void()> azione) {
    m_alFuoco = std::move(azione);
}

void Edit::keyPressEvent(QKeyEvent *e) {
    const QString testo = e->text();
    const bool stampabile = !testo.isEmpty() && testo.front().isPrint();
    const bool comando = e->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (m_ammesso && stampabile && !comando && !m_ammesso(testo.front())) {
        e->accept();
        return;
    }
    Controllo::keyPressEvent(e);
}

void Edit::focusInEvent(QFocusEvent *e) {
    Controllo::focusInEvent(e);
    if (m_alFuoco)
        m_alFuoco();
}

bool soloCifre(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

} // namespace zuvora
