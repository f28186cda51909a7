#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>
#include <functional>
#include <memory>

class QWidget;

namespace zuvora {

// How far a page has come. One that the server sends with an error status counts as shown.
enum class EsitoWeb {
    Ricevuta, // its first part is here; the outcome follows
    Mostrata,
    NonRaggiunta, // unknown host, refused connection, no network
    CertificatoRifiutato,
    NonAmmessa,          // the address leads out of http and https, or to something that is no page
    ChiedePassword,      // the server wants a name and a password, which nobody can give here
    ProxyChiedePassword, // the network's proxy does
    Interrotta,          // the process that draws the page has ended
    TroppaMemoria,       // it was ended, because it took too much memory
};

// What shows web pages. It comes from a component that is loaded at first use.
class VistaWeb {
public:
    // Gets what becomes of each page, also of one reached through a link, and the address it belongs to.
    using AlCambio = std::function<void(EsitoWeb esito, const QUrl &indirizzo)>;

    virtual ~VistaWeb() = default;
    // Belongs to the view; lies in the parent that the view was made for.
    virtual QWidget *widget() = 0;
    // Only http and https addresses get anywhere.
    virtual void vai(const QUrl &indirizzo) = 0;
    // Shows a page of our own as if it came from `base` (http or https): servers see it as the referring page.
    virtual void mostraHtml(const QString &html, const QUrl &base) = 0;
    virtual void setAlCambio(AlCambio azione) = 0;
};

// The component's root object.
class FabbricaVistaWeb {
public:
    virtual ~FabbricaVistaWeb() = default;
    virtual std::unique_ptr<VistaWeb> crea(QWidget *padre) = 0; // null where the web engine isn't installed whole
};

} // namespace zuvora

Q_DECLARE_INTERFACE(zuvora::FabbricaVistaWeb, "zuvora.FabbricaVistaWeb/1")
