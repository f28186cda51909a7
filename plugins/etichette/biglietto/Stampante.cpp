#include "etichette/biglietto/Stampante.h"

#include "etichette/logic/Pittore.h"
#include "etichette/logic/ServizioStampa.h"
#include "shell/logic/Componente.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

Componente<ServizioStampa> servizio() {
    return caricaComponente<ServizioStampa>(QCoreApplication::applicationDirPath(), u"libzuvora-stampa.so"_s,
                                            u"Il biglietto non si può stampare"_s);
}

} // namespace

EsitoStampa stampa(const QString &stampante, const Etichetta &e, const Valori &valori) {
    EsitoStampa esito;
    const auto [servizioStampa, motivo] = servizio();
    if (servizioStampa == nullptr)
        return {motivo, {}};
    const QByteArray byte = pdf(e, valori, e.scostamenti.value(stampante), esito.avvisi);
    esito.motivo = byte.isEmpty() ? u"Il biglietto non è stato disegnato."_s
                                  : servizioStampa->stampa(stampante, byte, Pittore::misuraCarta(e, valori), e.stampa);
    return esito;
}

Stampanti stampanti() {
    const auto [servizioStampa, motivo] = servizio();
    return servizioStampa != nullptr ? Stampanti{servizioStampa->stampanti(), {}} : Stampanti{{}, motivo};
}

} // namespace zuvora
