#pragma once

#include "etichette/designer/EtichetteQt.h"

#include <QObject>

namespace zuvora {

// The component's root object.
class FabbricaEtichetteQt : public QObject, public FabbricaEtichette {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zuvora.FabbricaEtichette/2")
    Q_INTERFACES(zuvora::FabbricaEtichette)
public:
    std::unique_ptr<Etichette> crea(Dialoghi &dialoghi) override;
};

} // namespace zuvora
