#pragma once

#include "etichette/logic/Etichetta.h"

#include <QStringList>
#include <QtPlugin>

namespace zuvora {

// The print system behind a component of its own, which is loaded when something is printed.
class ServizioStampa {
public:
    virtual ~ServizioStampa() = default;
    // Empty when the print system has taken the whole job, else the Italian reason. `carta` is the page's size in
    // tenths of a millimetre.
    virtual QString stampa(const QString &stampante, const QByteArray &pdf, const QSize &carta,
                           const Stampa &opzioni) = 0;
    // The queues of this machine, the default one first.
    virtual QStringList stampanti() = 0;
};

} // namespace zuvora

Q_DECLARE_INTERFACE(zuvora::ServizioStampa, "zuvora.ServizioStampa/1")
