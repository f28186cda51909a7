#pragma once

#include "etichette/logic/ServizioStampa.h"

#include <QObject>

namespace zuvora {

// The component's root object.
class ServizioCups : public QObject, public ServizioStampa {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zuvora.ServizioStampa/1")
    Q_INTERFACES(zuvora::ServizioStampa)
public:
    QString stampa(const QString &stampante, const QByteArray &pdf, const QSize &carta, const Stampa &opzioni) override;
    QStringList stampanti() override;
};

} // namespace zuvora
