#include "shell/host/ComponenteVoce.h"

#include "shell/logic/Componente.h"
#include "shell/host/VoceSistema.h"

namespace zuvora {

EsitoComponenteVoce creaVoce(const QString &cartella) {
    QString motivo;
    auto *fabbrica =
        qobject_cast<FabbricaVoce *>(radiceComponente(cartella, QString::fromLatin1(fileComponenteVoce), motivo));
    if (fabbrica == nullptr)
        return {nullptr, motivo};
    return {fabbrica->crea(), {}};
}

std::unique_ptr<Voce> creaVoceSistema() {
    return std::make_unique<VoceSistema>();
}

} // namespace zuvora
