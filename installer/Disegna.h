#pragma once

#include "installer/Crea.h"

namespace zuvora::installa {

// Writes the picture of a layout as the canvas paints it, at the resolution that the installation has chosen. `layout`
// is a table name (LayoutBase, Layout1 to Layout10, in any case) and `file` a picture that Qt can write. Needs an
// application of the graphics module. Never throws.
Esito disegnaLayout(const QString &cartella, const QString &layout, const QString &file);

} // namespace zuvora::installa
