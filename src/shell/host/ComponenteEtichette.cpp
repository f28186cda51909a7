#include "shell/host/ComponenteEtichette.h"

#include <QDir>
#include <QFile>
#include <QPluginLoader>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

EsitoComponenteEtichette senza(const QString &causa) {
    return {nullptr, u"Il biglietto non si può disegnare: %1\n\nTutto il resto funziona. Per riavere il disegno del "
                     "biglietto occorre reinstallare il programma."_s.arg(causa)};
}

} // namespace

EsitoComponenteEtichette creaEtichette(const QString &cartella) {
    const QString nome = QString::fromLatin1(fileComponenteEtichette);
    const QString file = QDir(cartella).filePath(nome);
    if (!QFile::exists(file))
        return senza(u"manca il componente %1 nella cartella %2."_s.arg(nome, QDir::toNativeSeparators(cartella)));
    QPluginLoader caricatore(file);
    auto *fabbrica = qobject_cast<FabbricaEtichette *>(caricatore.instance());
    if (fabbrica == nullptr)
        return senza(u"il componente %1 non può essere caricato.\n\n(%2)"_s.arg(QDir::toNativeSeparators(file),
                                                                                caricatore.errorString()));
    return {fabbrica->crea(), {}};
}

} // namespace zuvora
