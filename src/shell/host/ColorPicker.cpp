#include "shell/host/ColorPicker.h"

#include "shell/host/Dialoghi.h"

#include <QPainter>

namespace zuvora {

QColor coloreDa(int bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

int bgrDa(const QColor &colore) {
    return colore.red() | (colore.green() << 8) | (colore.blue() << 16);
}

ColorPicker::ColorPicker(QWidget *padre, const char *nome, const Posto &posto, Dialoghi &dialoghi)
    : Controllo(padre, nome, posto), m_dialoghi(dialoghi) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColorPicker::scegli);
}

void ColorPicker::setColore(int bgr) {
    m_colore = bgr & 0xFFFFFF;
    setAccessibleDescription(coloreDa(m_colore).name());
    update();
}

void ColorPicker::scegli() {
    const auto colore = m_dialoghi.scegliColore(window(), m_colore);
    if (!colore)
        return;
    setColore(*colore);
    Q_EMIT scelto(m_colore);
}

void ColorPicker::paintEvent(QPaintEvent *e) {
    QPushButton::paintEvent(e);
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(palette().color(QPalette::Mid));
    const QColor colore = coloreDa(m_colore);
    pittore.setBrush(isEnabled() ? colore : palette().color(QPalette::Midlight));
    pittore.drawRoundedRect(QRectF(rect()).adjusted(6.5, 5.5, -20.5, -5.5), 2, 2);
    // The mark of a choice that opens.
    const QPointF centro(width() - 11, height() / 2.0);
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(palette().color(isEnabled() ? QPalette::ButtonText : QPalette::Mid));
    pittore.drawPolygon(
        QPolygonF{{centro.x() - 4, centro.y() - 2}, {centro.x() + 4, centro.y() - 2}, {centro.x(), centro.y() + 3}});
}

} // namespace zuvora
