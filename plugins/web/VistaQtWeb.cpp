#include "web/VistaQtWeb.h"

#include "web/MemoriaProcesso.h"
#include "web/PaginaQtWeb.h"

#include <QAuthenticator>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr qint64 massimaMemoria = 700 * 1024 * 1024; // bytes
constexpr auto intervalloGuardia = 100ms;            // a page can take a gigabyte in a second
constexpr int nonAutorizzato = 401;
constexpr int rinvioNonSicuro = -311; // the engine's number for a redirection out of the web

bool eWeb(const QUrl &indirizzo) {
    return indirizzo.scheme() == "http"_L1 || indirizzo.scheme() == "https"_L1;
}

EsitoWeb esitoDi(const QWebEngineLoadingInfo &carico, VistaQtWeb::Password chiesta) {
    if (chiesta == VistaQtWeb::Password::DelProxy)
        return EsitoWeb::ProxyChiedePassword;
    switch (carico.errorDomain()) {
    case QWebEngineLoadingInfo::HttpStatusCodeDomain:
        if (chiesta == VistaQtWeb::Password::DelServer && carico.errorCode() == nonAutorizzato)
            return EsitoWeb::ChiedePassword;
        return EsitoWeb::Mostrata; // the server's own page on its error
    case QWebEngineLoadingInfo::CertificateErrorDomain:
        return EsitoWeb::CertificatoRifiutato;
    default:
        return carico.errorCode() == rinvioNonSicuro ? EsitoWeb::NonAmmessa : EsitoWeb::NonRaggiunta;
    }
}

} // namespace

VistaQtWeb::VistaQtWeb(QWebEngineProfile *profilo, QWidget *padre)
    : m_vista(new QWebEngineView(padre)), m_pagina(new PaginaQtWeb(profilo, m_vista)) {
    m_vista->setPage(m_pagina);
    m_vista->setContextMenuPolicy(Qt::NoContextMenu);
    m_vista->setAcceptDrops(false); // a file dropped on it would be opened
    connect(m_pagina, &QWebEnginePage::loadingChanged, this, &VistaQtWeb::cambiaCarico);
    connect(m_pagina, &QWebEnginePage::renderProcessTerminated, this, &VistaQtWeb::interrompi);
    connect(m_pagina, &QWebEnginePage::authenticationRequired, this, [this] { m_chiesta = Password::DelServer; });
    connect(m_pagina, &QWebEnginePage::proxyAuthenticationRequired, this, [this] { m_chiesta = Password::DelProxy; });
    connect(&m_guardia, &QTimer::timeout, this, &VistaQtWeb::sorveglia);
    m_guardia.start(intervalloGuardia);
    connect(m_pagina, &QWebEnginePage::urlChanged, this, [this](const QUrl &u) { annuncia(EsitoWeb::Ricevuta, u); });
}

VistaQtWeb::~VistaQtWeb() {
    delete m_vista;
}

void VistaQtWeb::vai(const QUrl &indirizzo) {
    m_ricevuta = false;
    if (eWeb(indirizzo))
        m_pagina->load(indirizzo);
    else
        annuncia(EsitoWeb::NonAmmessa, indirizzo);
}

void VistaQtWeb::mostraHtml(const QString &html, const QUrl &base) {
    m_ricevuta = false;
    if (eWeb(base))
        m_pagina->setHtml(html, base);
    else
        annuncia(EsitoWeb::NonAmmessa, base);
}

void VistaQtWeb::cambiaCarico(const QWebEngineLoadingInfo &carico) {
    switch (carico.status()) {
    case QWebEngineLoadingInfo::LoadSucceededStatus:
        annuncia(EsitoWeb::Mostrata, carico.url());
        break;
    case QWebEngineLoadingInfo::LoadFailedStatus:
        annuncia(esitoDi(carico, m_chiesta), carico.url());
        break;
    case QWebEngineLoadingInfo::LoadStoppedStatus:
        // Refused, or nothing to show (a download). A page that stands already stays when it leads there.
        annuncia(m_ricevuta ? EsitoWeb::Mostrata : EsitoWeb::NonAmmessa, carico.url());
        break;
    case QWebEngineLoadingInfo::LoadStartedStatus:
        m_chiesta = Password::Nessuna;
        break;
    }
}

void VistaQtWeb::interrompi(QWebEnginePage::RenderProcessTerminationStatus stato) {
    if (stato != QWebEnginePage::NormalTerminationStatus)
        annuncia(m_troppaMemoria ? EsitoWeb::TroppaMemoria : EsitoWeb::Interrotta, m_pagina->url());
}

// Without an end a page that takes all memory takes the machine along.
void VistaQtWeb::sorveglia() {
    const qint64 processo = m_pagina->renderProcessPid();
    if (processo <= 0 || memoriaProcesso(processo) <= massimaMemoria)
        return;
    m_troppaMemoria = true;
    terminaProcesso(processo);
}

void VistaQtWeb::annuncia(EsitoWeb esito, const QUrl &indirizzo) {
    m_ricevuta = m_ricevuta || esito == EsitoWeb::Ricevuta;
    if (m_alCambio)
        m_alCambio(esito, indirizzo);
}

} // namespace zuvora
