#include "etichette/designer/Componente.h"

namespace zuvora {

std::unique_ptr<Etichette> FabbricaEtichetteQt::crea(Dialoghi &dialoghi) {
    return std::make_unique<EtichetteQt>(dialoghi);
}

} // namespace zuvora
