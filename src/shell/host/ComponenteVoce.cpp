#include "shell/host/ComponenteVoce.h"

#include "shell/host/VoceSistema.h"
#include "shell/logic/Componente.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

EsitoComponenteVoce creaVoce(const QString &cartella) {
    const auto componente = caricaComponente<FabbricaVoce>(cartella, QString::fromLatin1(fileComponenteVoce),
                                                           u"La voce del programma non si può sentire"_s);
    if (componente.fabbrica == nullptr)
        return {nullptr, componente.motivo};
    return {componente.fabbrica->crea(), {}};
}

std::unique_ptr<Voce> creaVoceSistema() {
    return std::make_unique<VoceSistema>();
}

} // namespace zuvora
