#include "shell/host/PictureBox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QTextOption>

namespace zuvora {

PictureBox::PictureBox(QWidget *padre, const char *nome, const Posto &posto) : Controllo(padre, nome, posto) {}

PictureBox::PictureBox(QWidget *padre, const char *nome, const Posto &posto, Disegno disegno)
    : Controllo(padre, nome, posto), m_disegno(disegno) {}

void PictureBox::setImmagine(const QPixmap &immagine) {
    m_disegno.reset();
    m_immagine = immagine;
    update();
}

void PictureBox::setTesto(const QString &testo) {
    m_testo = testo;
    setAccessibleDescription(testo);
    update();
}

void PictureBox::rendiCliccabile(const QString &nomeAccessibile) {
    m_cliccabile = true;
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(nomeAccessibile);
    setToolTip(nomeAccessibile);
}

void PictureBox::paintEvent(QPaintEvent *) {
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_disegno)
        dipingi(pittore, *m_disegno, rect());
    else if (!m_immagine.isNull())
        pittore.drawPixmap(rect(), m_immagine);
    else
        dipingiTesto(pittore);
    if (m_cornice && vuota()) {
        pittore.setPen(palette().color(QPalette::Mid));
        pittore.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (!hasFocus())
        return;
    QStyleOptionFocusRect opzione;
    opzione.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &opzione, &pittore, this);
}

void PictureBox::dipingiTesto(QPainter &pittore) const {
    constexpr int margine = 8; // pixels
    QTextOption opzioni(Qt::AlignCenter);
    opzioni.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere); // names of files have no blanks
    pittore.setPen(palette().color(QPalette::PlaceholderText));
    pittore.drawText(QRectF(rect()).adjusted(margine, margine, -margine, -margine), m_testo, opzioni);
}

void PictureBox::mouseReleaseEvent(QMouseEvent *e) {
    if (m_cliccabile && e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()))
        Q_EMIT clicked();
}

void PictureBox::keyPressEvent(QKeyEvent *e) {
    const bool premi = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter || e->key() == Qt::Key_Space;
    if (m_cliccabile && premi)
        Q_EMIT clicked();
    else
        QWidget::keyPressEvent(e);
}

} // namespace zuvora
