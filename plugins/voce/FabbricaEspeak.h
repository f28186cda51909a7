#pragma once

#include "shell/host/Voce.h"

#include <QObject>

namespace zuvora {

// The component's root object.
class FabbricaEspeak : public QObject, public FabbricaVoce {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zuvora.FabbricaVoce/1")
    Q_INTERFACES(zuvora::FabbricaVoce)
public:
    FabbricaEspeak();
    std::unique_ptr<Voce> crea() override;
};

} // namespace zuvora
