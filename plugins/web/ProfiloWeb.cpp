#include "web/ProfiloWeb.h"

#include <QWebEngineCookieStore>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// The engine has no call that clears what a site stored by script. Each view has a session storage of its own, which
// tells a site's first document in it: what stands in the site's lasting stores by then comes from an earlier page.
// Documents without a site of their own refuse both and store nothing.
constexpr auto dimenticaSito = R"(
try {
    if (sessionStorage.getItem('zuvora') === null) {
        localStorage.clear();
        sessionStorage.setItem('zuvora', '');
    }
} catch (rifiuto) {
})"_L1;

// These can't be cleared before the site's own scripts run: pages do without them, as in a browser that lacks them.
constexpr auto senzaArchivi = R"(
for (const nome of ['indexedDB', 'caches', 'webkitRequestFileSystem'])
    Object.defineProperty(window, nome, {value: undefined});
for (const nome of ['serviceWorker', 'storage'])
    delete Navigator.prototype[nome];
)"_L1;

QWebEngineScript copione(const QString &nome, QLatin1StringView testo, QWebEngineScript::ScriptWorldId mondo) {
    QWebEngineScript copione;
    copione.setName(nome);
    copione.setSourceCode(testo);
    copione.setWorldId(mondo);
    copione.setInjectionPoint(QWebEngineScript::DocumentCreation);
    copione.setRunsOnSubFrames(true);
    return copione;
}

} // namespace

ProfiloWeb::ProfiloWeb() : m_profilo(new QWebEngineProfile) {
    m_profilo->setHttpAcceptLanguage(u"it-IT,it;q=0.9,en;q=0.5"_s);
    m_profilo->setHttpCacheType(QWebEngineProfile::NoCache);
    m_profilo->scripts()->insert(copione(u"dimentica"_s, dimenticaSito, QWebEngineScript::ApplicationWorld));
    m_profilo->scripts()->insert(copione(u"archivi"_s, senzaArchivi, QWebEngineScript::MainWorld));
    QObject::connect(m_profilo, &QWebEngineProfile::downloadRequested,
                     [](QWebEngineDownloadRequest *file) { file->cancel(); });
}

void ProfiloWeb::svuota() {
    m_profilo->cookieStore()->deleteAllCookies();
    m_profilo->clearAllVisitedLinks();
}

} // namespace zuvora
