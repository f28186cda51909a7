#pragma once

#include <QPoint>

namespace zuvora {

// What a rectangle needs of a control: its place within its parent, in twips, and where that parent lies on the screen.
class ControlloRect {
public:
    virtual ~ControlloRect() = default;
    virtual double Left() const = 0;
    virtual double Top() const = 0;
    virtual double Width() const = 0;
    virtual double Height() const = 0;
    virtual void Move(double left, double top, double width, double height) = 0; // twips, in one move
    virtual QPoint OrigineGenitore() const = 0; // top left of the parent's client area on the screen, pixels
    virtual double TwipsPerPixelX() const = 0;
};

// The designer's rectangle: four signed 32-bit edges, in screen pixels or in twips. No operation overflows: a value
// outside 32 bits becomes the nearest one inside.
class CRect {
public:
    CRect() = default;
    CRect(int l, int t, int r, int b) : m_left(l), m_top(t), m_right(r), m_bottom(b) {}

    void setLeft(int valore) { m_left = valore; }
    int left() const { return m_left; }
    void setTop(int valore) { m_top = valore; }
    int top() const { return m_top; }
    void setRight(int valore) { m_right = valore; }
    int right() const { return m_right; }
    void setBottom(int valore) { m_bottom = valore; }
    int bottom() const { return m_bottom; }
    void setWidth(int valore);  // moves the right edge
    int Width() const;          // negative while the edges are crossed
    void setHeight(int valore); // moves the bottom edge
    int Height() const;

    // Takes the rectangle from the control, in twips rounded to whole ones.
    void SetRectToCtrl(const ControlloRect &ctl);
    // Normalizes the rectangle and moves the control to it.
    void SetCtrlToRect(ControlloRect &ctl);
    // From screen pixels to twips within the control's parent and back. Both use the horizontal twips per pixel for all
    // four edges; halves round to the even number.
    void ScreenToTwips(const ControlloRect &ctl);
    void TwipsToScreen(const ControlloRect &ctl);
    // Swaps crossed edges.
    void NormalizeRect();
    // Left and top edge belong to the rectangle, right and bottom do not.
    bool PtInRect(float x, float y) const;

    friend bool operator==(const CRect &, const CRect &) = default;

private:
    int m_left = 0;
    int m_top = 0;
    int m_right = 0;
    int m_bottom = 0;
};

// The nearest 32-bit integer; halves round to the even number, no number at all gives 0.
int interoVicino(double valore);

} // namespace zuvora
