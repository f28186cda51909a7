#include "installer/Crea.h"

#include "installer/Archivi.h"
#include "installer/Cantiere.h"
#include "installer/Contenuto.h"
#include "installer/Esempio.h"
#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/Programma.h"

#include "shell/logic/IndirizzoWeb.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/EngineError.h"

#include <QCoreApplication>
#include <QDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
void copiaProgramma(const QString &origine, const QString &destinazione) {
    const QDir da(origine);
    if (!QFileInfo(da.filePath(u"zuvora"_s)).isFile())
        throw Guasto{
            u"Nella cartella %1 manca il programma zuvora, che va copiato nell'installazione."_s.arg(nativo(origine))};
    for (const QString &voce : partiDelProgramma(origine))
        copia(da.filePath(voce), destinazione + u'/' + voce);
}

void copiaFile(const QString &origine, const QString &destinazione) {
    for (const QStringView cartella : cartelleDiFile()) {
        const QString da = percorsoIn(origine, cartella);
        if (!QFileInfo(da).isDir())
            throw Guasto{u"Nella cartella %1 manca la cartella %2, che va copiata nell'installazione."_s.arg(
                nativo(origine), cartella)};
        copia(da, percorsoIn(destinazione, cartella));
    }
    for (const QStringView file : fileDiTesto()) {
        const QString dove = percorsoIn(destinazione, file);
        creaCartella(QFileInfo(dove).path());
        scriviNuovo(dove, testoDi(file));
    }
}

void prepara(const QString &destinazione, const QString &cartella, const OpzioniCrea &opzioni) {
    preparaCorredo(destinazione, opzioni);
    if (opzioni.esempio)
        scriviEsempio(destinazione, cartella);
    const QString notizie =
        opzioni.notizie.isEmpty() ? QString() : indirizzoWeb(opzioni.notizie)->toString(QUrl::FullyEncoded);
    for (const Archivio *archivio : {&archivioTotem, &archivioZuvora}) {
        const QString file = percorsoIn(destinazione, archivio->file);
        creaCartella(QFileInfo(file).path());
        creaArchivio(*archivio, file, {cartella, opzioni.esempio, notizie});
    }
}

void crea(const QString &cartella, const OpzioniCrea &opzioni) {
    Cantiere cantiere(cartella);
    prepara(cantiere.preparazione(), cartella, opzioni);
    cantiere.pubblica();
}
} // namespace

void preparaCorredo(const QString &destinazione, const OpzioniCrea &opzioni) {
    const QString origine = opzioni.origine.isEmpty() ? QCoreApplication::applicationDirPath() : opzioni.origine;
    if (opzioni.conProgramma)
        copiaProgramma(origine, destinazione);
    copiaFile(origine, destinazione);
}

Esito creaInstallazione(const OpzioniCrea &opzioni) {
    if (opzioni.cartella.isEmpty())
        return {false, u"Indicare la cartella dell'installazione."_s};
    if (!opzioni.notizie.isEmpty() && !indirizzoWeb(opzioni.notizie))
        return {false,
                u"«%1» non è l'indirizzo di una pagina web: nulla è stato creato."_s.arg(accorciato(opzioni.notizie))};
    const QString cartella = QDir::cleanPath(QFileInfo(opzioni.cartella).absoluteFilePath());
    try {
        crea(cartella, opzioni);
    } catch (const Guasto &guasto) {
        return {false, guasto.frase};
    }
    return {true, u"Installazione creata nella cartella %1."_s.arg(nativo(cartella))};
}

} // namespace zuvora::installa
