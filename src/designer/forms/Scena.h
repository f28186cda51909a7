#pragma once

#include "designer/forms/ImmaginiTela.h"
#include "designer/forms/PittoreElementi.h"

#include <QImage>
#include <QRegion>
#include <array>

namespace zuvora {

// The painted canvas, kept so that a move of the mouse over it costs no painting of elements. Only what an element
// leaves and takes is painted again.
class Scena {
public:
    // `misura` is the canvas in pixels.
    Scena(const DisplayLayout &layout, ImmaginiQt &immagini, QSize misura);

    ImmaginiTela &immagini() { return m_immagini; }
    // Paints part of the scene onto the form.
    void mostra(QPainter &p, const QRegion &parte, qreal scala);
    // An element alone, as it stands on the canvas; `parte` is where, cut at the canvas.
    QRect parte(int posto) const { return this->posto(posto).intersected(QRect({}, m_misura)); }
    QImage figura(int posto, qreal scala);
    // To be called after a change of the element; the part of the canvas to show again.
    QRegion aggiorna(int posto);
    QRegion aggiornaTutto();

private:
    void stiraTutte(qreal scala);
    void dipingi(const QRegion &parte);
    QRect posto(int numero) const;
    void ricorda();

    const DisplayLayout &m_layout;
    ImmaginiTela m_immagini;
    PittoreElementi m_pittore;
    QSize m_misura;
    QImage m_tela;                          // null until first shown
    std::array<QRect, righeLayout> m_posti; // where each element was painted last
};

} // namespace zuvora
