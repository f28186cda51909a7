#include "web/VistaQtWeb.h"

#include "web/PaginaQtWeb.h"

#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto AttesaProfilo = 3s;
constexpr int RinvioNonSicuro = -311; // the engine's number for a redirection out of the web

bool eWeb(const QUrl &indirizzo) {
    return indirizzo.scheme() == "http"_L1 || indirizzo.scheme() == "https"_L1;
}

EsitoWeb esitoDi(const QWebEngineLoadingInfo &carico) {
    switch (carico.errorDomain()) {
    case QWebEngineLoadingInfo::HttpStatusCodeDomain:
        return EsitoWeb::Mostrata; // the server's own page on its error
    case QWebEngineLoadingInfo::CertificateErrorDomain:
        return EsitoWeb::CertificatoRifiutato;
    default:
        return carico.errorCode() == RinvioNonSicuro ? EsitoWeb::NonAmmessa : EsitoWeb::NonRaggiunta;
    }
}

} // namespace

void CongedaProfilo::operator()(QWebEngineProfile *profilo) const {
    QTimer::singleShot(AttesaProfilo, profilo, &QObject::deleteLater);
}

VistaQtWeb::VistaQtWeb(QWidget *padre)
    : m_profilo(new QWebEngineProfile), m_vista(new QWebEngineView(padre)),
      m_pagina(new PaginaQtWeb(m_profilo.get(), m_vista)) {
    m_profilo->setHttpAcceptLanguage(u"it-IT,it;q=0.9,en;q=0.5"_s);
    m_vista->setPage(m_pagina);
    m_vista->setContextMenuPolicy(Qt::NoContextMenu);
    m_vista->setAcceptDrops(false); // a file dropped on it would be opened
    connect(m_profilo.get(), &QWebEngineProfile::downloadRequested, [](QWebEngineDownloadRequest *d) { d->cancel(); });
    connect(m_pagina, &QWebEnginePage::loadingChanged, this, &VistaQtWeb::cambiaCarico);
    connect(m_pagina, &QWebEnginePage::renderProcessTerminated, this, &VistaQtWeb::interrompi);
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
        annuncia(esitoDi(carico), carico.url());
        break;
    case QWebEngineLoadingInfo::LoadStoppedStatus:
        // Refused, or nothing to show (a download). A page that stands already stays when it leads there.
        annuncia(m_ricevuta ? EsitoWeb::Mostrata : EsitoWeb::NonAmmessa, carico.url());
        break;
    case QWebEngineLoadingInfo::LoadStartedStatus:
        break;
    }
}

void VistaQtWeb::interrompi(QWebEnginePage::RenderProcessTerminationStatus stato) {
    if (stato != QWebEnginePage::NormalTerminationStatus)
        annuncia(EsitoWeb::Interrotta, m_pagina->url());
}

void VistaQtWeb::annuncia(EsitoWeb esito, const QUrl &indirizzo) {
    m_ricevuta = m_ricevuta || esito == EsitoWeb::Ricevuta;
    if (m_alCambio)
        m_alCambio(esito, indirizzo);
}

} // namespace zuvora
