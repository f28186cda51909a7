#include "designer/forms/Bersaglio.h"

#include "designer/logic/Maniglie.h"

#include <QCoreApplication>
#include <QPainter>
#include <QWheelEvent>

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

void Bersaglio::wheelEvent(QWheelEvent *e) {
    QCoreApplication::sendEvent(window(), e);
}

Maniglietta::Maniglietta(QWidget *padre, int indice, const Gestore &gestore)
    : Bersaglio(padre, u"picHandle(%1)"_s.arg(indice), gestore),
      m_presa(new Bersaglio(padre, u"presaManiglia(%1)"_s.arg(indice), gestore)) {
    setFixedSize(latoManiglia, latoManiglia);
    for (Bersaglio *b : {m_presa, static_cast<Bersaglio *>(this)})
        b->setCursor(maniglie()[static_cast<std::size_t>(indice)].cursore);
    nascondi();
}

void Maniglietta::mostra(QPoint punto, QSize presa) {
    move(punto);
    QRect attorno({}, presa);
    attorno.moveCenter(geometry().center());
    m_presa->setGeometry(attorno);
    m_presa->show();
    show();
}

void Maniglietta::nascondi() {
    m_presa->hide();
    hide();
}

void Maniglietta::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Base));
    p.fillRect(rect().adjusted(1, 1, -1, -1), palette().color(QPalette::WindowText));
}

} // namespace zuvora
