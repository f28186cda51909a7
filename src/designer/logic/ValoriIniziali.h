#pragma once

#include "designer/logic/LayoutElement.h"

namespace zuvora {

// The element as the form's definition holds it, which stands until a row replaces it. `indice` as in its name.
LayoutElement valoreIniziale(TipoElemento tipo, int indice);

} // namespace zuvora
