#include "shell/host/ComponenteLettore.h"

#include "shell/logic/Componente.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

EsitoComponenteLettore creaLettore(const QString &cartella, QWidget *padre) {
    const QString cosaManca = u"Filmati e suoni non si possono provare"_s;
    const auto componente =
        caricaComponente<FabbricaLettore>(cartella, QString::fromLatin1(fileComponenteLettore), cosaManca);
    if (componente.fabbrica == nullptr)
        return {nullptr, componente.motivo};
    if (auto lettore = componente.fabbrica->crea(padre))
        return {std::move(lettore), {}};
    return {nullptr, senzaComponente(cosaManca, u"il decodificatore di Qt Multimedia (ffmpeg) non è installato."_s)};
}

} // namespace zuvora
