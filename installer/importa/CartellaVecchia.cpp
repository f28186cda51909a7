#include "installer/importa/CartellaVecchia.h"

#include "installer/Contenuto.h"
#include "installer/File.h"
#include "installer/importa/PercorsiVecchi.h"

#include "shell/logic/Percorsi.h"
#include "shell/logic/TestoAnsi.h"
#include "shell/store/NomiFile.h"

#include <QDir>
#include <QDirIterator>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
// The entry of that name whatever its letters' case; empty when there is none.
QString trovato(const QString &cartella, QStringView nome) {
    for (const QString &voce : QDir(cartella).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        if (nome.compare(voce, Qt::CaseInsensitive) == 0)
            return cartella + u'/' + voce;
    return {};
}

// The folder below `a` that a folder of the old tree corresponds to, with the spelling that it has there.
QString corrispondente(const QString &a, const QString &relativo) {
    QString qui = a;
    for (const QString &parte : relativo.split(u'/', Qt::SkipEmptyParts)) {
        const QString c = trovato(qui, parte);
        qui = c.isEmpty() ? qui + u'/' + parte : c;
    }
    return qui;
}

int prendiAlbero(const QString &da, const QString &a) {
    int presi = 0;
    QDirIterator i(da, QDir::Files, QDirIterator::Subdirectories);
    while (i.hasNext()) {
        const QString file = i.next();
        const QString qui = corrispondente(a, QDir(da).relativeFilePath(file));
        if (QFileInfo::exists(qui))
            continue;
        creaCartella(QFileInfo(qui).path());
        copia(file, qui);
        ++presi;
    }
    return presi;
}
} // namespace

QStringList prendiCartella(const QString &vecchia, const QString &destinazione, const PercorsiVecchi &percorsi) {
    QStringList note;
    for (const QStringView cartella : cartelleDiFile())
        if (const QString da = trovato(vecchia, cartella.toString()); !da.isEmpty())
            if (const int presi = prendiAlbero(da, percorsoIn(destinazione, cartella)); presi > 0)
                note << u"Dalla vecchia cartella %1: %2 file."_s.arg(cartella).arg(presi);
    QStringList playlist;
    for (const QString &voce : QDir(vecchia).entryList(QDir::Files)) {
        const QString suffisso = QFileInfo(voce).suffix().toLower();
        if (suffisso == "zvi"_L1 || suffisso == "zvv"_L1)
            playlist << voce;
        else if (suffisso == "wav"_L1 || suffisso == "mp3"_L1)
            copia(vecchia + u'/' + voce, destinazione + u'/' + voce);
    }
    // After the pictures: a line is turned when its file has come over.
    for (const QString &voce : playlist) {
        RigheLette lette = leggiRighe(vecchia + u'/' + voce);
        for (QString &riga : lette.righe)
            riga = percorsi.voltato(riga, false);
        const QString motivo = !lette.motivo.isEmpty() ? lette.motivo
                               : lette.righe.isEmpty() ? u"è vuota."_s
                                                       : scriviRighe(destinazione + u'/' + voce, lette.righe);
        note << (motivo.isEmpty() ? u"Playlist %1: %2 voci."_s.arg(voce).arg(lette.righe.size())
                                  : u"La playlist %1 non è stata portata: %2"_s.arg(voce, motivo));
    }
    if (const QString frase = trovato(vecchia, nomi::frase); !frase.isEmpty()) {
        rimuovi(destinazione + u'/' + nomi::frase.toString());
        copia(frase, destinazione + u'/' + nomi::frase.toString());
        note << u"Frase della voce: presa dalla vecchia cartella."_s;
    }
    return note;
}

} // namespace zuvora::installa
