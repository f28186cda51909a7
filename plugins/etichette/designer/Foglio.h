#pragma once

#include "etichette/logic/Gesti.h"
#include "etichette/logic/Pittore.h"
#include "etichette/logic/Progetto.h"

#include <QAbstractScrollArea>
#include <QPixmap>

namespace zuvora {

// The canvas: the ticket at a zoom between two rulers, and what mouse and keys do to it. Each object is drawn once for
// a zoom and kept as a picture; everything that stands still during a drag is put together once.
class Foglio : public QAbstractScrollArea {
    Q_OBJECT
public:
    Foglio(Progetto &progetto, QWidget *padre);

    void setValori(const Valori &valori);
    void setZoom(int percento); // 25 to 800; from then on the paper keeps its size when the window changes its own
    int zoom() const { return m_zoom; }
    void adatta(); // the paper's width fills the view, and follows it until a zoom is chosen
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
    void rifai();                 // everything is put together anew
    void ridisegna();             // each object is drawn anew as well
    void mettiZoom(int percento); // 25 to 800
    QRegion regioneInMoto() const;
    QRect ingombro(const Oggetto &oggetto, const QRect &area) const; // pixels that its drawing touches
    void dipingiFermi();
    void dipingiCarta(QPainter &p);
    void dipingiRighelli(QPainter &p);
    void dipingiScelti(QPainter &p);
    void dipingiOggetto(QPainter &p, const Progetto::OggettoFermo &oggetto, const QRect &area);
    void disegnaOggetto(QPainter &p, const Oggetto &oggetto, const QRect &area);
    void muovi(const QPoint &pixel, bool libero);
    void rinuncia();
    void scegliVicino(int di);
    QList<QRect> areeFerme() const;

    Progetto &m_progetto;
    Valori m_valori;
    Pittore m_pittore;
    struct Disegno {
        QPixmap dipinto;
        Progetto::OggettoFermo oggetto; // kept, so that no other object comes to have its address
    };
    QCache<const Oggetto *, Disegno> m_disegni{48 * 1024}; // KB; of each object where it rests
    QPixmap m_fermi;
    bool m_fermiBuoni = false;
    int m_dpi = 0;
    int m_zoom = 100;
    bool m_adattato = false;
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
