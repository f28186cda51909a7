#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <functional>

namespace zuvora {

enum class Fase { Premuto, Mosso, Rilasciato };

// A place of the canvas or of the toolbox that takes the mouse. It paints nothing: the canvas shows the element.
class Bersaglio : public QWidget {
public:
    using Gestore = std::function<void(Fase fase, QMouseEvent &evento)>;
    Bersaglio(QWidget *padre, const QString &nome, Gestore gestore);

protected:
    void mousePressEvent(QMouseEvent *e) override { m_gestore(Fase::Premuto, *e); }
    void mouseMoveEvent(QMouseEvent *e) override { m_gestore(Fase::Mosso, *e); }
    void mouseReleaseEvent(QMouseEvent *e) override { m_gestore(Fase::Rilasciato, *e); }
    void wheelEvent(QWheelEvent *e) override; // goes to the form
    // Disabled for a moment as the answer to a click: the element looks bleached.
    void paintEvent(QPaintEvent *e) override;

private:
    Gestore m_gestore;
};

// A size handle: a small square that stands out on any ground. It reacts somewhat further than it shows.
class Maniglietta final : public Bersaglio {
public:
    Maniglietta(QWidget *padre, int indice, const Gestore &gestore);
    // At this point of the form; `presa` is the size of the place that reacts, around its middle.
    void mostra(QPoint punto, QSize presa);
    void nascondi();
    Bersaglio *presa() const { return m_presa; }

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    Bersaglio *m_presa;
};

} // namespace zuvora
