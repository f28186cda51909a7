#pragma once

#include "designer/logic/DisplayLayout.h"
#include "shell/disegni/Disegni.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRect>
#include <optional>

class QPainter;

namespace zuvora {

class ImmaginiTela;

// A place on the canvas in pixels. Edges are rounded, not sizes; what lies far outside is cut short.
QRect rettangoloTela(const Area &a);
// A size on the canvas in the device's own pixels.
QSize pixelDispositivo(QSize misura, qreal scala);
// The placeholder that stands for an element's content, if one does.
std::optional<Segnaposto> segnapostoDi(TipoElemento tipo);
// A sheet of that many pixels on which texts come out as on the canvas. `misura` is a size on the canvas.
QImage foglioTela(QSize misura, qreal scala, QImage::Format formato);
// A frame of one pixel along the inner edge of a place, without a gap at any scale.
void riquadra(QPainter &p, const QRect &r, const QColor &colore, Qt::PenStyle tratto = Qt::SolidLine);
// The font of an element as the call display shows it: 20 twips to the point, whatever the screen's own resolution.
// For paint devices of 96 dots per inch.
QFont fontTela(const Carattere &c);

inline constexpr double puntiPerPollice = 96; // of the canvas: 1440 twips at 15 to the pixel

// Paints the elements as the call display will show them, boxes as placeholders.
class PittoreElementi {
public:
    PittoreElementi(const DisplayLayout &layout, ImmaginiTela &immagini) : m_layout(layout), m_immagini(immagini) {}

    // The ground: screen colour and background picture. `tela` is the whole canvas.
    void fondo(QPainter &p, const QRect &tela) const;
    // An element of the canvas, a panel with its labels; invisible ones aren't painted.
    void elemento(QPainter &p, int posto) const;

private:
    void pannello(QPainter &p, const LayoutElement &e, const QRect &r) const;
    void decorazione(QPainter &p, const LayoutElement &e, const QRect &r) const;
    void segnaposto(QPainter &p, Segnaposto quale, const QRect &r) const;
    bool stendi(QPainter &p, const QString &percorso, const QRect &r) const;

    const DisplayLayout &m_layout;
    ImmaginiTela &m_immagini;
};

} // namespace zuvora
