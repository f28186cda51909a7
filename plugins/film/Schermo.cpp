#include "film/Schermo.h"

#include "film/Fotogramma.h"

#include <QPainter>

namespace zuvora {

bool Passaggio::metti(const QVideoFrame &fotogramma) {
    const std::scoped_lock chiave(m_chiave);
    m_fotogramma = fotogramma;
    return !std::exchange(m_inAttesa, true);
}

QVideoFrame Passaggio::prendi() {
    const std::scoped_lock chiave(m_chiave);
    m_inAttesa = false;
    return std::exchange(m_fotogramma, {});
}

Schermo::Schermo(QWidget *padre) : QWidget(padre) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Schermo::mostra(const QVideoFrame &fotogramma) {
    m_fotogramma = fotogramma;
    update();
}

void Schermo::spegni() {
    m_fotogramma = {};
    m_immagine = {};
    update();
}

void Schermo::paintEvent(QPaintEvent *) {
    if (m_fotogramma.isValid())
        m_immagine = immagineDi(std::exchange(m_fotogramma, {}));
    QPainter p(this);
    p.fillRect(rect(), Qt::black);
    if (m_immagine.isNull())
        return;
    QRect posto(QPoint(), m_immagine.size().scaled(size(), Qt::KeepAspectRatio));
    posto.moveCenter(rect().center());
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(posto, m_immagine);
}

} // namespace zuvora
