#include "installer/Verifica.h"

#include "installer/ControlloArchivio.h"
#include "installer/ControlloFile.h"
#include "installer/ControlloValori.h"
#include "installer/Riferimenti.h"
#include "installer/copia/Scambio.h"

#include "shell/logic/Percorsi.h"

#include <QDir>
#include <QFileInfo>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
// The program and its siblings write the databases, and journals beside them.
void controllaScrittura(Rapporto &rapporto, const QString &file) {
    const QFileInfo info(file);
    const QFileInfo cartella(info.path());
    for (const QFileInfo &voce : {cartella, info})
        if (voce.exists() && !voce.isWritable())
            rapporto.difetti += u"Mancano i permessi per scrivere %1"_s.arg(QDir::toNativeSeparators(voce.filePath()));
}

void controllaProgramma(Rapporto &rapporto, const QString &base) {
    const QFileInfo programma(base + u"/zuvora"_s);
    if (programma.isFile() && !programma.isExecutable())
        rapporto.difetti += u"Mancano i permessi per eseguire %1"_s.arg(QDir::toNativeSeparators(programma.filePath()));
}
} // namespace

Rapporto verificaInstallazione(const QString &cartella) {
    const QString base = QDir::cleanPath(QFileInfo(cartella).absoluteFilePath());
    if (cartella.isEmpty() || !QFileInfo(base).isDir())
        return {{u"La cartella %1 non esiste."_s.arg(QDir::toNativeSeparators(cartella))}, {}};

    ControlloArchivio zuvora(archivioZuvora, percorsoIn(base, archivioZuvora.file));
    zuvora.controlla();
    controllaValori(zuvora);
    controllaRiferimenti(zuvora, base);
    const auto totem = archivioDelTotem(zuvora, base);
    Rapporto rapporto = zuvora.rapporto();
    controllaScrittura(rapporto, percorsoIn(base, archivioZuvora.file));
    if (totem) {
        ControlloArchivio kiosk(archivioTotem, *totem);
        kiosk.controlla();
        rapporto += kiosk.rapporto();
        controllaScrittura(rapporto, *totem);
    }
    for (const QStringView file : fileNecessari())
        if (const QString difetto = difettoDi(percorsoIn(base, file), Atteso::NonVuoto); !difetto.isEmpty())
            rapporto.difetti += u"Nell'installazione %1"_s.arg(difetto);
    controllaProgramma(rapporto, base);
    if (const QString sospeso = scambioSospeso(base); !sospeso.isEmpty())
        rapporto.difetti.prepend(sospeso);
    return rapporto;
}

} // namespace zuvora::installa
