#include "shell/host/Scelte.h"

#include "shell/disegni/Tavolozza.h"
#include "shell/host/Abbreviate.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QWheelEvent>

namespace zuvora {
namespace {

constexpr int rientroTitolo = 8; // pixels before a frame's title

// Room beside the mark of a radio button or a check box.
QSize spazioAccantoAlSegno(const QAbstractButton *b, QStyle::SubElement testo) {
    QStyleOptionButton opzione;
    opzione.initFrom(b);
    opzione.text = b->text();
    const QRect r = b->style()->subElementRect(testo, &opzione, b);
    return {b->width() - r.left(), b->height()};
}

template <class B> void adattaAccantoAlSegno(B *b, const QFont &base) {
    const QFont adatto = fontAdatto(b->text(), base, b->spazioDidascalia(), false);
    if (adatto != b->font())
        b->setFont(adatto);
}

void fermaIlTab(QWidget &w, bool ferma) {
    const auto senza = w.focusPolicy() & ~Qt::TabFocus;
    w.setFocusPolicy(static_cast<Qt::FocusPolicy>(ferma ? senza | Qt::TabFocus : senza));
}

} // namespace

RadioButton::RadioButton(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto, QString::fromUtf8(didascalia)), m_base(font()) {}

void RadioButton::resizeEvent(QResizeEvent *e) {
    Controllo::resizeEvent(e);
    adattaAccantoAlSegno(this, m_base);
}

QSize RadioButton::spazioDidascalia() const {
    return spazioAccantoAlSegno(this, QStyle::SE_RadioButtonContents);
}

GruppoRadio::GruppoRadio(const Schiera<RadioButton> &schiera) : m_schiera(schiera) {
    for (const auto &[indice, bottone] : schiera)
        m_gruppo.addButton(bottone.get(), indice);
    connect(&m_gruppo, &QButtonGroup::idClicked, this, &GruppoRadio::cambiato);
    connect(&m_gruppo, &QButtonGroup::idToggled, this, &GruppoRadio::fermataDelTab);
    fermataDelTab();
}

int GruppoRadio::scelto() const {
    return m_gruppo.checkedId();
}

void GruppoRadio::setScelto(int indice) {
    if (QAbstractButton *nuovo = m_gruppo.button(indice)) {
        nuovo->setChecked(true);
        return;
    }
    if (QAbstractButton *acceso = m_gruppo.checkedButton()) {
        m_gruppo.setExclusive(false);
        acceso->setChecked(false);
        m_gruppo.setExclusive(true);
    }
}

void GruppoRadio::fermataDelTab() {
    const QAbstractButton *ferma = m_gruppo.checkedButton();
    if (ferma == nullptr && m_schiera.size() > 0)
        ferma = m_schiera.begin()->controllo.get();
    for (const auto &[indice, bottone] : m_schiera)
        fermaIlTab(*bottone, bottone.get() == ferma);
}

CheckBox::CheckBox(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto, QString::fromUtf8(didascalia)), m_base(font()) {}

void CheckBox::resizeEvent(QResizeEvent *e) {
    Controllo::resizeEvent(e);
    adattaAccantoAlSegno(this, m_base);
}

QSize CheckBox::spazioDidascalia() const {
    return spazioAccantoAlSegno(this, QStyle::SE_CheckBoxContents);
}

ComboBox::ComboBox(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    abbreviaScelta(*this);
    connect(this, &QComboBox::activated, this, &ComboBox::cambiato);
}

void ComboBox::wheelEvent(QWheelEvent *e) {
    if (hasFocus())
        Controllo::wheelEvent(e);
    else
        e->ignore();
}

GroupBox::GroupBox(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Controllo(padre, nome, posto, QString::fromUtf8(didascalia)) {}

QSize GroupBox::spazioDidascalia() const {
    return {width() - 2 * rientroTitolo, height()};
}

void GroupBox::paintEvent(QPaintEvent *) {
    QPainter pittore(this);
    const bool conTitolo = !title().isEmpty();
    const QFontMetrics metrica(font());
    const int sopra = conTitolo ? metrica.height() / 2 : 0;
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(tavolozza::bordoControllo);
    pittore.setBrush(Qt::NoBrush);
    pittore.drawRoundedRect(QRectF(rect()).adjusted(0.5, sopra + 0.5, -0.5, -0.5), 3, 3);
    if (!conTitolo)
        return;
    const QRect testo(rientroTitolo, 0, misuraDidascalia(title(), font()).width() + 1, metrica.height());
    pittore.fillRect(testo.adjusted(-3, 0, 3, 0), palette().color(QPalette::Window));
    style()->drawItemText(&pittore, testo, Qt::AlignLeft | Qt::TextShowMnemonic, palette(), isEnabled(), title(),
                          QPalette::WindowText);
}

} // namespace zuvora
