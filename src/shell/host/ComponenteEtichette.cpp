#include "shell/host/ComponenteEtichette.h"

#include "shell/logic/Componente.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

EsitoComponenteEtichette creaEtichette(const QString &cartella, Dialoghi &dialoghi) {
    const auto componente = caricaComponente<FabbricaEtichette>(cartella, QString::fromLatin1(fileComponenteEtichette),
                                                                u"Il biglietto non si può disegnare"_s);
    if (componente.fabbrica == nullptr)
        return {nullptr, componente.motivo};
    return {componente.fabbrica->crea(dialoghi), {}};
}

} // namespace zuvora
