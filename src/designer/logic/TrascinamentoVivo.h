#pragma once

#include "designer/logic/DisplayLayout.h"

#include <QPoint>
#include <optional>

namespace zuvora {

struct PuntoTwips {
    double left = 0;
    double top = 0;

    friend bool operator==(const PuntoTwips &, const PuntoTwips &) = default;
};

// The live drag: a panel taken by one of its labels, or the toolbox, follows the mouse at once. One at a time.
class TrascinamentoVivo {
public:
    static constexpr int strumenti = -1; // the toolbox, beside panels 0 to 7

    bool TrascinamentoAttivo() const { return m_attivo; }
    int bersaglio() const { return m_bersaglio; }

    // `presa`: the press in screen pixels; `inizio`: where the target stood then, twips.
    void inizia(int bersaglio, QPoint presa, PuntoTwips inizio);
    // Where the target goes now; nothing when no drag runs. The press and the cursor are in screen pixels.
    std::optional<PuntoTwips> muovi(QPoint cursore, double twipsPerPixelX = 15, double twipsPerPixelY = 15) const;
    // To be called at the release of any button; the target then takes its place after the rules below.
    void finisci() { m_attivo = false; }

private:
    bool m_attivo = false;
    int m_bersaglio = strumenti;
    QPoint m_presa;
    PuntoTwips m_inizio;
};

// The form's size in twips.
struct Dimensione {
    double width = 0;
    double height = 0;

    friend bool operator==(const Dimensione &, const Dimensione &) = default;
};

// Where a panel or the toolbox stays after a live drag: where it is, or the top left corner when it is out of bounds.
// Panel 0 is out of bounds above and below the form, panels 1 to 7 beside it, the toolbox on all four sides.
PuntoTwips postoDopoRilascio(int bersaglio, PuntoTwips posto, Dimensione form);

// Moves the panel of label i (0 to 23) as long as a drag of that panel runs. True when it has moved.
bool muoviPannello(DisplayLayout &layout, const TrascinamentoVivo &vivo, int etichetta, QPoint cursore,
                   double twipsPerPixelX = 15, double twipsPerPixelY = 15);
// The release of any button over label i: applies the rule on bounds and ends the drag. True when the panel has moved.
bool rilasciaPannello(DisplayLayout &layout, TrascinamentoVivo &vivo, int etichetta, Dimensione form);

} // namespace zuvora
