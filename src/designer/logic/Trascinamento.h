#pragma once

#include "designer/logic/CRect.h"
#include "designer/logic/DisplayLayout.h"
#include "designer/logic/Maniglie.h"

#include <QPoint>
#include <QRect>
#include <Qt>

namespace zuvora {

// The designer's form on the screen at the time of an event.
struct GeometriaForm {
    QPoint origine; // top left of the canvas on the screen, pixels
    QRect esterno;  // the form's outer rectangle on the screen, pixels: the cursor can't leave it during a drag
    double twipsPerPixelX = 15;
    double twipsPerPixelY = 15;
};

// The outline drag: a press begins a move or a resize, moves carry the outline, the left release gives it to the
// element. Positions are those of the events, in screen pixels; each move counts from the press, never from the last
// move. After each call the form draws RettangoloTrascinamento while `inCorso`, and the handles while
// `maniglieVisibili`.
class Trascinamento {
public:
    enum class Stato { Fermo = 0, Spostamento = 1, Ridimensionamento = 2 };

    Stato StatoTrascinamento() const { return m_stato; }
    bool inCorso() const { return m_stato != Stato::Fermo; } // the mouse belongs to the form
    int ControlloCorrente() const { return m_elemento; }     // element number, -1 before the first drag
    // Screen pixels during a drag (its edges may be crossed), twips on the canvas after it.
    const CRect &RettangoloTrascinamento() const { return m_rettangolo; }
    QPoint PuntoPresa() const { return m_presa; } // the cursor relative to the outline's top left at the press
    int ManigliaAttiva() const { return m_maniglia; }

    // Begins a move. False, and nothing happens, while a drag runs.
    bool InizioTrascinamento(const DisplayLayout &layout, int posto, QPoint cursore, const GeometriaForm &form);
    // Begins a resize at a press of any button on handle 0 to 7. False without a current element or while a drag runs.
    bool InizioRidimensionamento(const DisplayLayout &layout, int maniglia, const GeometriaForm &form);
    // True when the outline has changed.
    bool MouseMove(QPoint cursore, const GeometriaForm &form);
    // Only the left button ends a drag: the element takes the rectangle, put right if its edges are crossed, and the
    // handles show. True when a drag has ended.
    bool MouseUp(DisplayLayout &layout, Qt::MouseButton bottone, const GeometriaForm &form);
    // Gives up a drag without moving the element, for a form that loses the mouse or closes.
    void interrompi();

    // Handles can only be shown when an element has been dragged.
    void MostraManiglie(bool mostra);
    bool maniglieVisibili() const { return m_maniglieVisibili; }
    // Places in twips of the handles, which stay where the last drag left them.
    std::array<PostoManiglia, numeroManiglie> posti(const GeometriaForm &form) const;

private:
    void prendiRettangolo(const DisplayLayout &layout, const GeometriaForm &form);

    Stato m_stato = Stato::Fermo;
    int m_elemento = -1;
    int m_maniglia = 0;
    QPoint m_presa;
    CRect m_rettangolo;
    CRect m_prima; // the outline in twips before the drag, for interrompi
    bool m_maniglieVisibili = false;
};

} // namespace zuvora
