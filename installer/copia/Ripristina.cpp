#include "installer/copia/Ripristina.h"

#include "installer/Cantiere.h"
#include "installer/Contenuto.h"
#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/Interruzione.h"
#include "installer/copia/Archivio.h"
#include "installer/copia/Salva.h"
#include "installer/copia/Svolta.h"

#include "shell/logic/FileAtomico.h"
#include "shell/store/Database.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
bool ePlaylist(const QString &nome) {
    return nome.endsWith(".zvi"_L1, Qt::CaseInsensitive) || nome.endsWith(".zvv"_L1, Qt::CaseInsensitive);
}

// Takes the copy out into the folder, and turns what is in it to the installation's.
Elenco prepara(const QString &file, const QString &dove, const QString &nuova) {
    Elenco elenco = leggiCopia(file, dove);
    const Svolta svolta(elenco, nuova);
    for (const VoceCopia &voce : elenco.voci) {
        fermaSeInterrotto();
        const QString percorso = dove + u'/' + voce.nome;
        if (ePlaylist(voce.nome)) {
            svolta.voltaPlaylist(percorso);
        } else if (eArchivio(voce.nome)) {
            Database db = Database::OpenDatabase(percorso);
            db.esegui(u"PRAGMA journal_mode = MEMORY; BEGIN IMMEDIATE"_s);
            svolta.volta(db);
            db.esegui(u"COMMIT"_s);
            db.Close();
            rimuovi(percorso + u"-journal"_s);
        }
    }
    if (!QFileInfo(dove + u'/' + nomi::archivio.toString()).isFile())
        throw Guasto{u"La copia non contiene %1: nulla è stato modificato."_s.arg(nomi::archivio)};
    return elenco;
}

void ripristinaNuova(const OpzioniRipristina &opzioni, const QString &cartella) {
    Cantiere cantiere(cartella);
    const QString dove = cantiere.preparazione();
    const QString copia = dove + u"/.copia"_s;
    const Elenco elenco = prepara(opzioni.file, copia, cartella);
    preparaCorredo(dove, opzioni.crea);
    for (const VoceCopia &voce : elenco.voci) {
        const QString a = dove + u'/' + voce.nome;
        creaCartella(QFileInfo(a).path());
        sposta(copia + u'/' + voce.nome, a); // in place of the product's file of that name
    }
    rimuovi(copia);
    cantiere.pubblica();
}

// The file takes its place at once, or the one that is there stays.
void sostituisci(const QString &da, const QString &a) {
    creaCartella(QFileInfo(a).path());
    const QString parziale = a + u".parziale"_s;
    rimuovi(parziale);
    copia(da, parziale);
    sposta(parziale, a);
}

void sostituisciArchivio(const QString &da, const QString &a) {
    if (!QFileInfo::exists(a)) {
        sostituisci(da, a);
        return;
    }
    Database nuovo = Database::apriInLettura(da);
    Database::OpenDatabase(a).copiaDa(nuovo);
}

QString ripristinaSopra(const OpzioniRipristina &opzioni, const QString &cartella) {
    const QString archivio = cartella + u'/' + nomi::archivio.toString();
    if (!QFileInfo(archivio).isFile())
        throw Guasto{u"Nella cartella %1 non c'è un'installazione da sostituire."_s.arg(nativo(cartella))};
    QLockFile guardia(cartella + u"/.zuvora-installa.lock"_s);
    guardia.setStaleLockTime(0);
    if (!guardia.tryLock() && guardia.error() == QLockFile::LockFailedError)
        throw Guasto{
            u"Nella cartella %1 è già in corso un'installazione: attendere che finisca."_s.arg(nativo(cartella))};
    const QTemporaryDir appoggio(cartella + u"/.zuvora-installa-XXXXXX"_s);
    if (!appoggio.isValid())
        throw Guasto{u"Impossibile scrivere nella cartella %1: nulla è stato modificato."_s.arg(nativo(cartella))};
    const Elenco elenco = prepara(opzioni.file, appoggio.path(), cartella);
    QString prima = u"%1/prima-del-ripristino-%2.zuvora"_s.arg(
        cartella, QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s));
    const Esito salvata = salvaInstallazione({cartella, prima, 0}, [](const QString &) {});
    if (!salvata.riuscito)
        throw Guasto{u"L'installazione presente non si può salvare, quindi resta com'è. "_s + salvata.messaggio};
    QStringList archivi;
    for (const VoceCopia &voce : elenco.voci) {
        fermaSeInterrotto();
        if (eArchivio(voce.nome))
            archivi.prepend(voce.nome);
        else
            sostituisci(appoggio.filePath(voce.nome), cartella + u'/' + voce.nome);
    }
    for (const QString &nome : archivi) // Zuvora.mdb, the first of a copy, comes last
        sostituisciArchivio(appoggio.filePath(nome), cartella + u'/' + nome);
    return prima;
}
} // namespace

Esito ripristinaInstallazione(const OpzioniRipristina &opzioni) {
    const QString cartella = QDir::cleanPath(QFileInfo(opzioni.crea.cartella).absoluteFilePath());
    try {
        if (!opzioni.sopra) {
            ripristinaNuova(opzioni, cartella);
            return {true, u"Installazione ripristinata nella cartella %1."_s.arg(nativo(cartella))};
        }
        const QString prima = ripristinaSopra(opzioni, cartella);
        return {true, u"Installazione ripristinata nella cartella %1. Quella di prima è salvata in %2."_s.arg(
                          nativo(cartella), nativo(prima))};
    } catch (const Guasto &guasto) {
        return {false, guasto.frase};
    } catch (const EngineError &errore) {
        return {false, errore.frase()};
    }
}

} // namespace zuvora::installa
