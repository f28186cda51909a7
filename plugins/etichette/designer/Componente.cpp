#include "etichette/designer/Componente.h"

namespace zuvora {

std::unique_ptr<Etichette> FabbricaEtichetteQt::crea() {
    return std::make_unique<EtichetteQt>(m_domande);
}

} // namespace zuvora
