#include "designer/forms/Palpito.h"

#include "shell/disegni/Tavolozza.h"

#include <QPainter>
#include <cmath>
#include <numbers>

namespace zuvora {
namespace {

constexpr int battiti = 3;
constexpr int durataBattito = 500; // milliseconds
constexpr int bordo = 3;           // pixels

} // namespace

Palpito::Palpito(QWidget *form) : QWidget(form) {
    setObjectName(QStringLiteral("Palpito"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
    m_battito.setDuration(battiti * durataBattito);
    m_battito.setStartValue(0.0);
    m_battito.setEndValue(double(battiti));
    connect(&m_battito, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_battito, &QVariantAnimation::finished, this, &QWidget::hide);
}

void Palpito::mostra(const QRect &posto, const QImage &figura) {
    m_figura = figura;
    setGeometry(posto);
    raise();
    show();
    m_battito.stop();
    m_battito.start();
}

void Palpito::paintEvent(QPaintEvent *) {
    const double fase = m_battito.currentValue().toDouble() * 2 * std::numbers::pi;
    QPainter p(this);
    p.setOpacity(0.5 - 0.5 * std::cos(fase));
    p.drawImage(rect(), m_figura);
    p.setPen(QPen(tavolozza::evidenza, bordo, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.drawRect(QRectF(rect()).adjusted(bordo / 2.0, bordo / 2.0, -bordo / 2.0, -bordo / 2.0));
}

} // namespace zuvora
