#include "shell/host/ComponenteWeb.h"

#include "shell/logic/Componente.h"

#include <QCoreApplication>
#include <QOpenGLContext>

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

constexpr QStringView cosaManca = u"L'anteprima delle pagine web non è disponibile";

} // namespace

EsitoComponenteWeb creaVistaWeb(const QString &cartella, QWidget *padre) {
    preparaContesto();
    const auto componente =
        caricaComponente<FabbricaVistaWeb>(cartella, QString::fromLatin1(fileComponenteWeb), cosaManca.toString());
    if (componente.fabbrica == nullptr)
        return {nullptr, componente.motivo};
    if (auto vista = componente.fabbrica->crea(padre))
        return {std::move(vista), {}};
    return {nullptr, senzaComponente(cosaManca.toString(),
                                     u"il motore delle pagine web (Qt WebEngine) non è installato per intero."_s)};
}

} // namespace zuvora
