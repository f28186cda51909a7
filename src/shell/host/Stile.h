#pragma once

class QApplication;

namespace zuvora {

// The look of the whole program: Fusion with the house palette and Tahoma 8 where the platform has it.
void preparaAspetto(QApplication &applicazione);

} // namespace zuvora
