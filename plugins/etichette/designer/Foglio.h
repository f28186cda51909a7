#pragma once

#include "etichette/logic/Gesti.h"
#include "etichette/logic/Pittore.h"
#include "etichette/logic/Progetto.h"

#include <QAbstractScrollArea>
#include <QPixmap>

namespace zuvora {

// The canvas: the ticket at a zoom between two rulers, and what mouse and keys do to it. Everything that stands still
// during a drag is painted once.
class Foglio : public QAbstractScrollArea {
    Q_OBJECT
public:
    Foglio(Progetto &progetto, QWidget *padre);

    void setValori(const Valori &valori);
    void setZoom(int percento); // 25 to 800
    int zoom() const { return m_zoom; }
    void adatta(); // the paper's width fills the view
    void setGriglia(int decimi);
    int griglia() const { return m_griglia; }
    // Where a new object lies in sight, tenths of a millimetre from the paper's corner.
    QPoint postoInVista(const QSize &misura) const;
    QRect posizioneSuSchermo(int indice) const; // of an object, in the viewport

Q_SIGNALS:
    void zoomCambiato(int percento);
    void variabileLasciata(const QString &nome, const QPoint &posto);
    void modificaChiesta(); // double click or Enter on an object

protected:
    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void mouseDoubleClickEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void dragEnterEvent(QDragEnterEvent *e) override;
    void dragMoveEvent(QDragMoveEvent *e) override;
    void dropEvent(QDropEvent *e) override;

private:
    enum class Gesto { Nessuno, Trascina, Elastico };
    struct Bersaglio {
        int indice = -1;
        Presa presa = Presa::Nessuna;
    };

    double scala() const; // pixels to a tenth of a millimetre
    QPoint origine() const;
    QPoint inDecimi(const QPoint &pixel) const;
    QRectF inPixel(const QRect &area) const;
    Bersaglio bersaglioIn(const QPoint &pixel) const;
    void misuraScorrimento();
    void rifai(); // everything is painted anew
    void dipingiFermi();
    void dipingiCarta(QPainter &p);
    void dipingiRighelli(QPainter &p);
    void dipingiScelti(QPainter &p);
    void dipingiOggetto(QPainter &p, const Oggetto &oggetto, const QRect &area);
    void muovi(const QPoint &pixel, bool libero);
    QList<QRect> areeFerme() const;

    Progetto &m_progetto;
    Valori m_valori;
    Pittore m_pittore;
    QPixmap m_fermi;
    bool m_fermiBuoni = false;
    int m_zoom = 100;
    int m_griglia = 50;
    Gesto m_gesto = Gesto::Nessuno;
    Presa m_presa = Presa::Nessuna;
    QPoint m_premuto;                      // pixels
    QList<std::pair<int, QRect>> m_inMoto; // the dragged objects, where they are now
    QList<std::pair<int, QRect>> m_partenza;
    Aggancio m_aggancio;
    QRect m_elastico; // pixels
};

} // namespace zuvora
