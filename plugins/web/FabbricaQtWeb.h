#pragma once

#include "shell/host/VistaWeb.h"
#include "web/ProfiloWeb.h"

#include <QObject>
#include <optional>

namespace zuvora {

// The component's root object.
class FabbricaQtWeb : public QObject, public FabbricaVistaWeb {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zuvora.FabbricaVistaWeb/1")
    Q_INTERFACES(zuvora::FabbricaVistaWeb)
public:
    FabbricaQtWeb();
    std::unique_ptr<VistaWeb> crea(QWidget *padre) override;

private:
    std::optional<ProfiloWeb> m_profilo; // with the first page
};

} // namespace zuvora
