#include "shell/host/ComponenteWeb.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QOpenGLContext>
#include <QPluginLoader>

using namespace Qt::Literals::StringLiterals;

// Exported by Qt's graphics module for its sibling modules, in no public header.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT QOpenGLContext *qt_gl_global_share_context();
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace zuvora {
namespace {

void togliContesto() {
    delete qt_gl_global_share_context();
    qt_gl_set_global_share_context(nullptr);
}

// The web engine needs one graphics context that all others share. Qt makes it when the program starts if it is told to
// (AA_ShareOpenGLContexts), but that would slow every start down for the sake of forms seldom opened; without it an
// engine loaded later crashes at its first view. So the context is made here, before the engine's libraries are loaded:
// they look for it at once. It must stay even where the screen has no OpenGL and it can't be created: the engine then
// draws by itself. It goes after the engine's own clean-up, whose routine is registered later and runs earlier.
void preparaContesto() {
    if (qt_gl_global_share_context() != nullptr)
        return;
    auto contesto = std::make_unique<QOpenGLContext>();
    contesto->create();
    qt_gl_set_global_share_context(contesto.release());
    qAddPostRoutine(togliContesto);
}

EsitoComponenteWeb senza(const QString &causa) {
    return {nullptr, u"L'anteprima delle pagine web non è disponibile: %1\n\nTutto il resto funziona. Per riavere "
                     "l'anteprima occorre reinstallare il programma."_s.arg(causa)};
}

} // namespace

EsitoComponenteWeb creaVistaWeb(const QString &cartella, QWidget *padre) {
    const QString file = QDir(cartella).filePath(QString::fromLatin1(FileComponenteWeb));
    if (!QFile::exists(file))
        return senza(u"manca il componente %1 nella cartella %2."_s.arg(QString::fromLatin1(FileComponenteWeb),
                                                                        QDir::toNativeSeparators(cartella)));
    preparaContesto();
    QPluginLoader caricatore(file);
    auto *fabbrica = qobject_cast<FabbricaVistaWeb *>(caricatore.instance());
    if (fabbrica == nullptr)
        return senza(u"il componente %1 non può essere caricato.\n\n(%2)"_s.arg(QDir::toNativeSeparators(file),
                                                                                caricatore.errorString()));
    auto vista = fabbrica->crea(padre);
    if (vista == nullptr)
        return senza(u"il motore delle pagine web (Qt WebEngine) non è installato per intero."_s);
    return {std::move(vista), {}};
}

} // namespace zuvora
