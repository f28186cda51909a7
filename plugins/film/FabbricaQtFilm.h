#pragma once

#include "shell/host/Lettore.h"

#include <QObject>

namespace zuvora {

// The component's root object.
class FabbricaQtFilm : public QObject, public FabbricaLettore {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zuvora.FabbricaLettore/1")
    Q_INTERFACES(zuvora::FabbricaLettore)
public:
    FabbricaQtFilm();
    std::unique_ptr<Lettore> crea(QWidget *padre) override;
};

} // namespace zuvora
