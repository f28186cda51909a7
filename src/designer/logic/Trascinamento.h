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
    double twipsPerPixel = 0;
};

// Everything that follows the mouse, one at a time: the outline of an element that is moved or sized, a panel taken by
// one of its labels, the toolbox, the form itself. Positions are those of the events, in screen pixels; each move
// counts from the press, never from the last move.
class Trascinamento {
public:
    enum class Stato { Fermo = 0, Spostamento = 1, Ridimensionamento = 2, Pannello, Strumenti, Finestra };

    Stato StatoTrascinamento() const { return m_stato; }
    bool inContorno() const { return m_stato == Stato::Spostamento || m_stato == Stato::Ridimensionamento; }
    bool TrascinamentoAttivo() const { return m_stato == Stato::Pannello || m_stato == Stato::Strumenti; } // live drag
    int ControlloCorrente() const { return m_elemento; } // under the outline, -1 before the first drag
    // Screen pixels during an outline drag (its edges may be crossed), twips on the canvas after it.
    const CRect &RettangoloTrascinamento() const { return m_rettangolo; }
    int pannello() const { return m_pannello; } // of a live drag

    // Begins to move the outline of an element. False, and nothing happens, while anything is dragged.
    bool InizioTrascinamento(const DisplayLayout &layout, int posto, QPoint cursore, const GeometriaForm &form);
    // Begins a resize at a press of any button on handle 0 to 7. False without a current element or while anything is
    // dragged.
    bool InizioRidimensionamento(const DisplayLayout &layout, int maniglia, const GeometriaForm &form);
    // Live drags: of panel 0 to 7, and of the toolbox, which stands at `inizio`.
    bool prendiPannello(const DisplayLayout &layout, int pannello, QPoint cursore);
    bool prendiStrumenti(PuntoTwips inizio, QPoint cursore);
    // The form follows the mouse; it stands at `inizio`, pixels.
    bool prendiFinestra(QPoint inizio, QPoint cursore);

    // True when something has moved: the outline, or the panel in `layout`, or what the next two give.
    bool MouseMove(DisplayLayout &layout, QPoint cursore, const GeometriaForm &form);
    PuntoTwips postoStrumenti() const { return m_vivo; }
    QPoint postoFinestra() const { return m_finestra; }

    // Only the left button ends an outline drag: the element takes the rectangle, put right if its edges are crossed,
    // and the handles show. True when the drag has ended.
    bool MouseUp(DisplayLayout &layout, Qt::MouseButton bottone, const GeometriaForm &form);
    // Ends what is no outline drag, where it stands.
    void lascia();
    // Gives up an outline drag without moving the element, for a form that loses the mouse or closes.
    void interrompi();

    // Handles can only be shown when an element has been dragged.
    void MostraManiglie(bool mostra);
    bool maniglieVisibili() const { return m_maniglieVisibili; }
    // Places in twips of the handles, which stay where the last drag left them.
    std::array<PostoManiglia, numeroManiglie> posti(double twipsPerPixel) const;

private:
    bool prendi(Stato stato, QPoint cursore);
    void prendiRettangolo(const DisplayLayout &layout, const GeometriaForm &form);
    bool muoviContorno(QPoint cursore);
    bool muoviVivo(QPoint cursore, double twipsPerPixel);

    Stato m_stato = Stato::Fermo;
    int m_elemento = -1;
    int m_maniglia = 0;
    int m_pannello = 0;
    QPoint m_presa; // outline: the cursor relative to its top left at the press; else the press on the screen
    CRect m_rettangolo;
    CRect m_prima;           // the outline in twips before the drag
    PuntoTwips m_inizio;     // where the panel or the toolbox stood at the press
    PuntoTwips m_vivo;       // where it goes
    QPoint m_inizioFinestra; // where the form stood, pixels
    QPoint m_finestra;       // where it goes
    bool m_maniglieVisibili = false;
};

// The targets of a live drag beside panels 0 to 7.
inline constexpr int bersaglioStrumenti = -1;
// Where a panel or the toolbox stays after a live drag: where it is, or the top left corner when it is out of bounds.
// Panel 0 is out of bounds above and below the form, panels 1 to 7 beside it, the toolbox on all four sides.
PuntoTwips postoDopoRilascio(int bersaglio, PuntoTwips posto, Dimensione form);
// The release of any button over label i (0 to 23) puts its panel under that rule. True when the panel has moved.
bool rilasciaPannello(DisplayLayout &layout, int etichetta, Dimensione form);

} // namespace zuvora
