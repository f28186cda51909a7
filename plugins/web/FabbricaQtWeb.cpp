#include "web/FabbricaQtWeb.h"

#include "web/VistaQtWeb.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QQuickWindow>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

// What the engine reads when it makes its first view. The shared graphics context must be there already: the program
// makes it before it loads this component.
FabbricaQtWeb::FabbricaQtWeb() {
    // The engine refuses to start with its sandbox for the user root, and for no other user may it be switched off.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    QLoggingCategory::setFilterRules(u"qt.webenginecontext=false"_s); // a page of settings at each start
}

// Without the program that draws the pages the engine would end ours.
std::unique_ptr<VistaWeb> FabbricaQtWeb::crea(QWidget *padre) {
    const QString dato = qEnvironmentVariable("QTWEBENGINEPROCESS_PATH");
    const QDir programmi(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath));
    if (!QFile::exists(dato.isEmpty() ? programmi.filePath(u"QtWebEngineProcess"_s) : dato))
        return nullptr;
    if (!m_profilo)
        m_profilo.emplace();
    m_profilo->svuota();
    return std::make_unique<VistaQtWeb>(m_profilo->profilo(), padre);
}

} // namespace zuvora
