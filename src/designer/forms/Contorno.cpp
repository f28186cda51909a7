#include "designer/forms/Contorno.h"

#include <QPaintEvent>
#include <QPainter>

namespace zuvora {
namespace {

QRegion cornice(const QRect &esterno, int spessore) {
    return QRegion(esterno).subtracted(esterno.adjusted(spessore, spessore, -spessore, -spessore));
}

} // namespace

Contorno::Contorno(QWidget *form) : QWidget(form) {
    setObjectName(QStringLiteral("Contorno"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
}

void Contorno::mostra(const QRect &rettangolo) {
    // A pen of two pixels stands astride the edge.
    const QRect esterno(rettangolo.left() - 1, rettangolo.top() - 1, rettangolo.width() + 2, rettangolo.height() + 2);
    cambia(cornice(esterno, 1), cornice(esterno, 2));
}

void Contorno::nascondi() {
    cambia({}, {});
}

void Contorno::cambia(const QRegion &linea, const QRegion &strisce) {
    const QRegion prima = std::exchange(m_strisce, strisce);
    m_linea = linea;
    update(prima.united(strisce));
}

// Inverted ground can't be told from the ground where that is middle grey; so the inner line is moved by half the range
// of each colour instead. Both give the ground back when applied twice.
void Contorno::paintEvent(QPaintEvent *e) {
    const QRegion strisce = m_strisce.intersected(e->region());
    if (strisce.isEmpty())
        return;
    QPainter p(this);
    const QRegion linea = m_linea.intersected(strisce);
    p.setCompositionMode(QPainter::RasterOp_NotDestination);
    for (const QRect &r : linea)
        p.fillRect(r, Qt::white);
    p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    for (const QRect &r : strisce.subtracted(linea))
        p.fillRect(r, QColor(128, 128, 128));
}

} // namespace zuvora
