#pragma once

#include <QImage>
#include <QVariantAnimation>
#include <QWidget>

namespace zuvora {

// An element that pulses for a moment over all that the form shows, so that it is found under the toolbox or another
// element. It lets the mouse through and changes nothing of the element.
class Palpito : public QWidget {
public:
    explicit Palpito(QWidget *form);
    // `posto` on the form, pixels; `figura` is the element as it is painted there.
    void mostra(const QRect &posto, const QImage &figura);

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    QImage m_figura;
    QVariantAnimation m_battito;
};

} // namespace zuvora
