#include "designer/forms/Bersaglio.h"

#include "designer/logic/Maniglie.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

Bersaglio::Bersaglio(QWidget *padre, const QString &nome, Gestore gestore)
    : QWidget(padre), m_gestore(std::move(gestore)) {
    setObjectName(nome);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_NoMousePropagation); // a click on an element is none on what lies below
    setFocusPolicy(Qt::NoFocus);
}

void Bersaglio::paintEvent(QPaintEvent *) {
    if (!isEnabled())
        QPainter(this).fillRect(rect(), QColor(255, 255, 255, 110));
}

Maniglietta::Maniglietta(QWidget *padre, int indice, Gestore gestore)
    : Bersaglio(padre, u"picHandle(%1)"_s.arg(indice), std::move(gestore)) {
    setFixedSize(latoManiglia, latoManiglia);
    setCursor(maniglie()[static_cast<std::size_t>(indice)].cursore);
    hide();
}

void Maniglietta::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Base));
    p.fillRect(rect().adjusted(1, 1, -1, -1), palette().color(QPalette::WindowText));
}

} // namespace zuvora
