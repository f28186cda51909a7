#pragma once

class QApplication;

namespace zuvora {

// The look of the whole program: the house's style, palette and font, texts of Qt's own in Italian.
void preparaAspetto(QApplication &applicazione);

} // namespace zuvora
