#pragma once

#include "shell/logic/clsMonitors.h"

#include <QString>
#include <QUrl>
#include <functional>

namespace zuvora {

// The services of the platform that the forms ask for. Nothing outside the host knows which system this is.
class Piattaforma {
public:
    virtual ~Piattaforma() = default;
    // Folder of the running executable, native form, without a trailing separator.
    virtual QString cartellaEseguibile() const = 0;
    // True when another instance runs on this machine, whichever user started it. The first call that gives false makes
    // this process the running instance until it ends, in whatever way.
    virtual bool altraIstanza() = 0;
    // In the running instance: called each time another start has found it running.
    virtual void setAllaSecondaIstanza(std::function<void()> azione) = 0;
    virtual QString nomeMacchina() const = 0;
    virtual QString
    indirizzoLocale() const = 0; // of the default route, IPv4 in dotted form; "127.0.0.1" without a network
    virtual const SistemaMonitor &monitor() const = 0;
    virtual QSize schermo() const = 0; // the primary screen, pixels
    virtual void svuotaAppunti() = 0;
    virtual bool apriNelBrowser(const QUrl &indirizzo) = 0;
    // Opens a file in the desktop's own program for it, without waiting; false where there is none.
    virtual bool apriFile(const QString &percorso) = 0;
};

} // namespace zuvora
