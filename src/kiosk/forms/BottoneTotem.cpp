#include "kiosk/forms/BottoneTotem.h"

#include "shell/host/Grassetto.h"

#include <QFontMetrics>
#include <QPainter>

namespace zuvora {
namespace {

constexpr int raggio = 14;  // pixels, of the corners
constexpr int margine = 12; // between the edge and the name
constexpr double puntiMinimi = 6;
constexpr int aParole = Qt::AlignCenter | Qt::TextWordWrap;
constexpr int ovunque = Qt::AlignCenter | Qt::TextWrapAnywhere;

// A ground on which a text of that colour is read: light under a dark one, dark under a light one.
QColor fondoPer(const QColor &testo) {
    const double luce = 0.299 * testo.redF() + 0.587 * testo.greenF() + 0.114 * testo.blueF();
    return luce < 0.55 ? QColor(0xF4, 0xF7, 0xFB) : QColor(0x1D, 0x3A, 0x5C);
}

} // namespace

BottoneTotem::BottoneTotem(QWidget *padre, const char *nome, const QString &didascalia, const Posto &posto)
    : Controllo(padre, nome, posto), m_font(font()) {
    setAttribute(Qt::WA_TransparentForMouseEvents); // a press on it moves the window, as one beside it
    setCaption(didascalia);
}

void BottoneTotem::setCaption(const QString &testo) {
    m_caption = testo;
    setAccessibleName(testo.trimmed());
    dimentica();
}

void BottoneTotem::setFontTesto(const QFont &font) {
    m_font = font;
    dimentica();
}

void BottoneTotem::setColoreTesto(const QColor &colore) {
    m_colore = colore;
    dimentica();
}

void BottoneTotem::dimentica() {
    m_faccia = {};
    update();
}

QRect BottoneTotem::spazio(QSize misura) {
    return QRect({}, misura).adjusted(margine, margine, -margine, -margine);
}

bool BottoneTotem::entra(const QFont &font, int opzioni, QSize misura) const {
    const QRect r = spazio(misura);
    return r.contains(QFontMetrics(font, this).boundingRect(r, opzioni, m_caption.trimmed()));
}

QFont BottoneTotem::fontPer(QSize misura) const {
    QFont adatto = m_font;
    while (!entra(adatto, aParole, misura) && adatto.pointSizeF() > puntiMinimi)
        adatto.setPointSizeF(adatto.pointSizeF() - 1);
    return adatto;
}

QFont BottoneTotem::fontMostrato() const {
    return fontPer(size());
}

QSize BottoneTotem::pixel(QSize misura) const {
    return misura * devicePixelRatioF();
}

void BottoneTotem::prepara(QSize misura) {
    if (m_faccia.size() == pixel(misura))
        return;
    m_faccia = QPixmap(pixel(misura));
    m_faccia.setDevicePixelRatio(devicePixelRatioF());
    m_faccia.fill(Qt::transparent);
    QPainter pittore(&m_faccia);
    dipingiFaccia(pittore, misura);
}

void BottoneTotem::paintEvent(QPaintEvent * /*e*/) {
    prepara(size());
    QPainter(this).drawPixmap(QPoint(), m_faccia);
}

void BottoneTotem::dipingiFaccia(QPainter &pittore, QSize misura) const {
    const QColor fondo = fondoPer(m_colore);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(QPen(fondo.lightness() > 128 ? fondo.darker(150) : fondo.lighter(170), 2));
    pittore.setBrush(fondo);
    pittore.drawRoundedRect(QRectF({}, misura).adjusted(1, 1, -1, -1), raggio, raggio);
    const QFont mostrato = fontPer(misura);
    pittore.setFont(mostrato);
    pittore.setPen(m_colore);
    scriviTesto(pittore, spazio(misura), entra(mostrato, aParole, misura) ? aParole : ovunque, m_caption.trimmed());
}

} // namespace zuvora
