#include "shell/host/Label.h"

#include "shell/host/Grassetto.h"
#include "shell/host/StileCasa.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zuvora {
namespace {

// Lines break at blanks only, and paths often have none.
QString divisibile(const QString &percorso) {
    constexpr QStringView separatori = u"\\/_-.";
    constexpr QChar spazioNullo(0x200B);
    QString diviso;
    for (const QChar c : percorso) {
        if (diviso.endsWith(spazioNullo) && separatori.contains(c))
            diviso.chop(1);
        diviso += c;
        if (separatori.contains(c))
            diviso += spazioNullo;
    }
    return diviso;
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
    setText(m_percorso ? divisibile(testo) : testo);
    if (m_percorso) {
        setAccessibleName(testo);
        setToolTip(testo);
    }
    adatta();
}

void Label::setFontBase(const QFont &f) {
    m_base = f;
    adatta();
}

void Label::setAutosize(bool autosize) {
    m_autosize = autosize;
    setWordWrap(!autosize);
    adatta();
}

void Label::setAllineamento(Qt::Alignment orizzontale) {
    setAlignment(orizzontale | Qt::AlignTop);
}

void Label::setColori(const QColor &testo, const QColor &sfondo) {
    QPalette colori;
    if (testo.isValid())
        colori.setColor(QPalette::WindowText, testo);
    if (sfondo.isValid())
        colori.setColor(QPalette::Window, sfondo);
    setPalette(colori);
    setAutoFillBackground(sfondo.isValid());
}

void Label::setAbbrevia(bool abbrevia) {
    m_abbrevia = abbrevia;
    setWordWrap(!abbrevia);
    adatta();
}

void Label::setPercorso(bool percorso) {
    m_percorso = percorso;
    setCaption(m_caption);
}

QSize Label::spazioDidascalia() const {
    return contentsRect().size();
}

void Label::adatta() {
    if (m_autosize) {
        setFont(m_base);
        const QSize serve = sizeHint();
        setPosto({posto().left, posto().top, twipsDa(serve.width()), twipsDa(serve.height())});
        return;
    }
    if (!m_disposto)
        return;
    const QFont adatto = fontAdatto(m_percorso ? text() : m_caption, m_base, spazioDidascalia(), wordWrap());
    if (adatto != font())
        setFont(adatto);
    if (!m_abbrevia)
        return;
    const QString corto = abbreviata(m_caption, adatto, spazioDidascalia().width());
    setText(corto);
    setToolTip(corto == m_caption ? QString() : m_caption);
}

// Letters larger than the font system thickens, as the kiosk's title has them.
void Label::paintEvent(QPaintEvent *e) {
    constexpr int maggiore = 64; // device pixels
    if (!font().bold() || fontInfo().pixelSize() * devicePixelRatioF() <= maggiore) {
        Controllo::paintEvent(e);
        return;
    }
    QPainter pittore(this);
    pittore.setPen(palette().color(foregroundRole()));
    scriviTesto(pittore, contentsRect(), int(alignment()) | (wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine),
                text());
}

void Label::resizeEvent(QResizeEvent *e) {
    Controllo::resizeEvent(e);
    m_disposto = true;
    if (!m_autosize)
        adatta();
}

LabelLink::LabelLink(QWidget *padre, const char *nome, const char *didascalia, const Posto &posto)
    : Label(padre, nome, didascalia, posto) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setForegroundRole(QPalette::Link);
}

void LabelLink::paintEvent(QPaintEvent *e) {
    Label::paintEvent(e);
    if (!hasFocus())
        return;
    QPainter pittore(this);
    disegnaAnello(pittore, rect());
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

} // namespace zuvora
