#pragma once

#include "designer/forms/Bersaglio.h"
#include "designer/logic/DisplayLayout.h"

#include <array>

namespace zuvora {

// The places of a layout's elements on the form, one control an element, named as selection names it. They take the
// mouse in the order of the stack; what is seen is the painted canvas.
class ElementiTela {
public:
    using Gestore = std::function<void(int posto, Fase fase, QMouseEvent &evento)>;
    // The controls are children of `form`, below those that are made later.
    ElementiTela(QWidget *form, const DisplayLayout &layout, const Gestore &gestore);

    Bersaglio &operator()(int posto) const { return *m_bersagli[static_cast<std::size_t>(posto)]; }
    // Place and visibility as the element has them; a panel's labels too.
    void allinea(int posto);
    void allineaTutti();
    // Place in the stack as the layout has it; `tetto` is the lowest control above all elements.
    void impila(int posto, QWidget *tetto);

private:
    void crea(QWidget *padre, int posto, const Gestore &gestore);

    const DisplayLayout &m_layout;
    std::array<Bersaglio *, righeLayout> m_bersagli{}; // null for Label2 and the canvas itself
};

} // namespace zuvora
