#include "kiosk/logic/ConfigurazioneTotem.h"

namespace zuvora {

ContenutoTotem::ContenutoTotem() {
    for (std::size_t i = 0; i < colonneTotem.size(); ++i)
        m_testi[i] = colonneTotem[i].primo.toString();
}

} // namespace zuvora
