#include "web/PaginaQtWeb.h"

#include <QAuthenticator>
#include <QWebEngineCertificateError>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

using Impostazione = QWebEngineSettings::WebAttribute;
constexpr std::array<std::pair<Impostazione, bool>, 15> impostazioni = {{
    {Impostazione::LocalContentCanAccessFileUrls, false},
    {Impostazione::LocalContentCanAccessRemoteUrls, false},
    {Impostazione::JavascriptCanOpenWindows, false},
    {Impostazione::JavascriptCanAccessClipboard, false},
    {Impostazione::JavascriptCanPaste, false},
    {Impostazione::AllowWindowActivationFromJavaScript, false},
    {Impostazione::AllowGeolocationOnInsecureOrigins, false},
    {Impostazione::AllowRunningInsecureContent, false},
    {Impostazione::ScreenCaptureEnabled, false},
    {Impostazione::WebRTCPublicInterfacesOnly, true},
    {Impostazione::PluginsEnabled, false},
    {Impostazione::PdfViewerEnabled, false},
    {Impostazione::DnsPrefetchEnabled, false},
    {Impostazione::ErrorPageEnabled, false}, // the program says it in Italian
    {Impostazione::FocusOnNavigationEnabled, false},
}};

// Pages of our own come as data; frames inside a page may be of the page's own making.
bool schemaAmmesso(const QUrl &indirizzo, bool principale) {
    const QString schema = indirizzo.scheme();
    return schema == "https"_L1 || schema == "http"_L1 || schema == "data"_L1 || schema == "about"_L1 ||
           (!principale && schema == "blob"_L1);
}

} // namespace

PaginaQtWeb::PaginaQtWeb(QWebEngineProfile *profilo, QObject *padre) : QWebEnginePage(profilo, padre) {
    for (const auto &[attributo, valore] : impostazioni)
        settings()->setAttribute(attributo, valore);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    rifiutaRichieste();
}

// What a page can ask of the user or of the machine is answered with no.
void PaginaQtWeb::rifiutaRichieste() {
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origine, Feature cosa) { setFeaturePermission(origine, cosa, PermissionDeniedByUser); });
    connect(this, &QWebEnginePage::fullScreenRequested, this, [](QWebEngineFullScreenRequest r) { r.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this, [](QWebEngineQuotaRequest r) { r.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest r) { r.reject(); });
    connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
            [](QWebEngineFileSystemAccessRequest r) { r.reject(); });
    connect(this, &QWebEnginePage::selectClientCertificate, this,
            [](QWebEngineClientCertificateSelection s) { s.selectNone(); });
    connect(this, &QWebEnginePage::certificateError, this,
            [](QWebEngineCertificateError errore) { errore.rejectCertificate(); });
    // An empty answer calls the request off; without one the engine asks again and again.
    connect(this, &QWebEnginePage::authenticationRequired, this,
            [](const QUrl &, QAuthenticator *risposta) { *risposta = QAuthenticator(); });
    connect(this, &QWebEnginePage::proxyAuthenticationRequired, this,
            [](const QUrl &, QAuthenticator *risposta) { *risposta = QAuthenticator(); });
}

bool PaginaQtWeb::acceptNavigationRequest(const QUrl &indirizzo, NavigationType, bool principale) {
    return schemaAmmesso(indirizzo, principale);
}

QWebEnginePage *PaginaQtWeb::createWindow(WebWindowType) {
    return nullptr;
}

QStringList PaginaQtWeb::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &) {
    return {};
}

void PaginaQtWeb::javaScriptAlert(const QUrl &, const QString &) {}

bool PaginaQtWeb::javaScriptConfirm(const QUrl &, const QString &) {
    return false;
}

bool PaginaQtWeb::javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *) {
    return false;
}

void PaginaQtWeb::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) {}

} // namespace zuvora
