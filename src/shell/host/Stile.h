#pragma once

class QApplication;

namespace zuvora {

// The look of the whole program: the house's style, palette and font.
void preparaAspetto(QApplication &applicazione);

} // namespace zuvora
