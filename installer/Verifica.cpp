#include "installer/Verifica.h"

#include "installer/ControlloArchivio.h"
#include "installer/Riferimenti.h"

#include <QDir>
#include <QFileInfo>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

QStringList verificaInstallazione(const QString &cartella) {
    const QString base = QDir::cleanPath(QFileInfo(cartella).absoluteFilePath());
    if (cartella.isEmpty() || !QFileInfo(base).isDir())
        return {u"La cartella %1 non esiste."_s.arg(QDir::toNativeSeparators(cartella))};

    ControlloArchivio zuvora(archivioZuvora, base + u'/' + archivioZuvora.file);
    zuvora.controlla();
    controllaRiferimenti(zuvora, base);
    const auto totem = cartellaTotem(zuvora, base);
    QStringList difetti = zuvora.difetti();
    if (totem) {
        ControlloArchivio kiosk(archivioTotem, *totem + u'/' + QFileInfo(QString(archivioTotem.file)).fileName());
        kiosk.controlla();
        difetti += kiosk.difetti();
    }
    for (const QLatin1StringView file : fileNecessari())
        if (!QFileInfo(base + u'/' + file).isFile())
            difetti += u"Manca il file %1"_s.arg(QDir::toNativeSeparators(QString(file)));
    return difetti;
}

} // namespace zuvora::installa
