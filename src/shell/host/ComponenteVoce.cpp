#include "shell/host/ComponenteVoce.h"

#include "shell/host/VoceSistema.h"

#include <QDir>
#include <QFile>
#include <QPluginLoader>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

EsitoComponenteVoce creaVoce(const QString &cartella) {
    const QString file = QDir(cartella).filePath(QString::fromLatin1(FileComponenteVoce));
    if (!QFile::exists(file))
        return {nullptr, u"manca il componente %1 nella cartella %2."_s.arg(QString::fromLatin1(FileComponenteVoce),
                                                                            QDir::toNativeSeparators(cartella))};
    QPluginLoader caricatore(file);
    auto *fabbrica = qobject_cast<FabbricaVoce *>(caricatore.instance());
    if (fabbrica == nullptr)
        return {nullptr, u"il componente %1 non può essere caricato (%2)."_s.arg(
                             QString::fromLatin1(FileComponenteVoce), caricatore.errorString())};
    return {fabbrica->crea(), {}};
}

std::unique_ptr<Voce> creaVoceSistema() {
    return std::make_unique<VoceSistema>();
}

} // namespace zuvora
