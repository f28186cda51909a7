#include "shell/host/Button.h"

#include "shell/disegni/Tavolozza.h"

#include <QAccessible>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr int margine = 3; // pixels on each side of the caption
constexpr auto durataSpunta = 2s;
constexpr int diametroSpunta = 11; // pixels

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
    m_spunta.setSingleShot(true);
    connect(&m_spunta, &QTimer::timeout, this, [this] {
        descrivi(m_descrizione);
        update();
    });
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
    if (!conSpunta())
        setAccessibleDescription(acceso ? QString() : motivo);
}

void Button::spunta() {
    if (!conSpunta())
        m_descrizione = accessibleDescription();
    m_spunta.start(durataSpunta);
    descrivi(u"Salvato"_s);
    update();
}

void Button::descrivi(const QString &testo) {
    setAccessibleDescription(testo);
    QAccessibleEvent evento(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&evento);
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
    const bool troppo = adatto != m_base && misuraDidascalia(text(), adatto).width() > spazioDidascalia().width();
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
        pittore.drawItemText(rect().adjusted(margine, 0, -margine, 0), opzioni, palette(), isEnabled(), testo,
                             QPalette::ButtonText);
    }
    if (conSpunta())
        dipingiSpunta(pittore);
}

// In the corner, where few captions reach.
void Button::dipingiSpunta(QPainter &pittore) const {
    const QRectF disco(width() - diametroSpunta - 2, 2, diametroSpunta, diametroSpunta);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(QPen(tavolozza::bianco, 1));
    pittore.setBrush(tavolozza::riuscita);
    pittore.drawEllipse(disco);
    QPainterPath segno(disco.topLeft() + QPointF(2.7, 5.8));
    segno.lineTo(disco.topLeft() + QPointF(4.8, 7.8));
    segno.lineTo(disco.topLeft() + QPointF(8.4, 3.4));
    pittore.setBrush(Qt::NoBrush);
    pittore.setPen(QPen(tavolozza::bianco, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pittore.drawPath(segno);
}

void condensaInsieme(const QList<Button *> &gruppo) {
    const auto comune = std::make_shared<Button::Gruppo>(gruppo);
    for (Button *b : gruppo) {
        b->m_gruppo = comune;
        b->adatta();
    }
}

} // namespace zuvora
