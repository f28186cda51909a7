#pragma once

#include <QProxyStyle>

namespace zuvora {

// How controls look: Fusion, but for edges that can be told from their ground, a ring around what has the focus, and
// buttons that show what they are for.
class StileCasa : public QProxyStyle {
    Q_OBJECT
public:
    StileCasa();
    void drawControl(ControlElement elemento, const QStyleOption *opzione, QPainter *pittore,
                     const QWidget *w) const override;
    void drawPrimitive(PrimitiveElement elemento, const QStyleOption *opzione, QPainter *pittore,
                       const QWidget *w) const override;
    void drawComplexControl(ComplexControl controllo, const QStyleOptionComplex *opzione, QPainter *pittore,
                            const QWidget *w) const override;
    int pixelMetric(PixelMetric misura, const QStyleOption *opzione, const QWidget *w) const override;
    int styleHint(StyleHint suggerimento, const QStyleOption *opzione, const QWidget *w,
                  QStyleHintReturn *dati) const override;
};

// The ring of the control that has the focus, inside its rectangle.
void disegnaAnello(QPainter &pittore, const QRect &dove);

} // namespace zuvora
