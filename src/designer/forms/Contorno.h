#pragma once

#include <QRegion>
#include <QWidget>

namespace zuvora {

// The outline of a drag, inverted over everything that the form shows. It covers the form and lets the mouse through.
class Contorno : public QWidget {
public:
    explicit Contorno(QWidget *form);
    // Shows the outline of a rectangle of the form, pixels; only the strips that change are painted again.
    void mostra(const QRect &rettangolo);
    void nascondi();
    bool visibile() const { return !m_strisce.isEmpty(); }

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    void cambia(const QRegion &linea, const QRegion &strisce);

    QRegion m_strisce; // all that the outline covers
    QRegion m_linea;   // its outer line
};

} // namespace zuvora
