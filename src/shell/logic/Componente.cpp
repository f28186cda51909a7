#include "shell/logic/Componente.h"

#include <QDir>
#include <QFile>
#include <QPluginLoader>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QObject *radiceComponente(const QString &cartella, const QString &file, QString &motivo) {
    const QString percorso = QDir(cartella).filePath(file);
    if (!QFile::exists(percorso)) {
        motivo = u"manca il componente %1 nella cartella %2."_s.arg(file, QDir::toNativeSeparators(cartella));
        return nullptr;
    }
    QPluginLoader caricatore(percorso);
    QObject *radice = caricatore.instance();
    if (radice == nullptr)
        motivo = u"il componente %1 non può essere caricato.\n\n(%2)"_s.arg(QDir::toNativeSeparators(percorso),
                                                                            caricatore.errorString());
    return radice;
}

} // namespace zuvora
