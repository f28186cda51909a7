#include "shell/host/ComponenteLettore.h"

#include <QDir>
#include <QFile>
#include <QPluginLoader>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

EsitoComponenteLettore senza(const QString &causa) {
    return {nullptr, u"Filmati e suoni non si possono provare: %1\n\nTutto il resto funziona. Per riaverli occorre "
                     "reinstallare il programma."_s.arg(causa)};
}

} // namespace

EsitoComponenteLettore creaLettore(const QString &cartella, QWidget *padre) {
    const QString file = QDir(cartella).filePath(QString::fromLatin1(FileComponenteLettore));
    if (!QFile::exists(file))
        return senza(u"manca il componente %1 nella cartella %2."_s.arg(QString::fromLatin1(FileComponenteLettore),
                                                                        QDir::toNativeSeparators(cartella)));
    QPluginLoader caricatore(file);
    auto *fabbrica = qobject_cast<FabbricaLettore *>(caricatore.instance());
    if (fabbrica == nullptr)
        return senza(u"il componente %1 non può essere caricato.\n\n(%2)"_s.arg(QDir::toNativeSeparators(file),
                                                                                caricatore.errorString()));
    auto lettore = fabbrica->crea(padre);
    if (lettore == nullptr)
        return senza(u"il decodificatore di Qt Multimedia (ffmpeg) non è installato."_s);
    return {std::move(lettore), {}};
}

} // namespace zuvora
