#include "installer/copia/Ripristina.h"

#include "installer/Cantiere.h"
#include "installer/Contenuto.h"
#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/Interruzione.h"
#include "installer/copia/Archivio.h"
#include "installer/copia/Salva.h"
#include "installer/copia/Scambio.h"
#include "installer/copia/Svolta.h"

#include "shell/store/Database.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

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

struct Sostituita {
    QString prima;          // where the installation that was there is saved
    bool annullato = false; // a restoring that had been cut off was undone first
};

void ripristinaSopra(const OpzioniRipristina &opzioni, const QString &cartella, Sostituita &esito) {
    if (!QFileInfo(cartella + u'/' + nomi::archivio.toString()).isFile())
        throw Guasto{u"Nella cartella %1 non c'è un'installazione da sostituire."_s.arg(nativo(cartella))};
    Scambio scambio(cartella, opzioni.passo);
    esito.annullato = scambio.annullato();
    const Elenco elenco = prepara(opzioni.file, scambio.preparazione(), cartella);
    esito.prima = u"%1/prima-del-ripristino-%2.zuvora"_s.arg(
        cartella, QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s));
    const Esito salvata = salvaInstallazione({cartella, esito.prima, 0}, [](const QString &) {});
    if (!salvata.riuscito)
        throw Guasto{u"L'installazione presente non si può salvare, quindi resta com'è. "_s + salvata.messaggio};
    QStringList nomi;
    for (const VoceCopia &voce : elenco.voci)
        nomi += voce.nome;
    scambio.esegui(nomi, esito.prima);
}

// What came of putting a copy in place of the installation, in words.
Esito riferisci(const Sostituita &sostituita, const QString &cartella, const QString &guasto) {
    QStringList frasi;
    if (sostituita.annullato)
        frasi += u"Un ripristino interrotto a metà è stato prima annullato."_s;
    if (guasto.isEmpty())
        frasi += u"Installazione ripristinata nella cartella %1. Quella di prima è salvata in %2."_s.arg(
            nativo(cartella), nativo(sostituita.prima));
    else
        frasi += guasto;
    if (const QString sospeso = scambioSospeso(cartella); !sospeso.isEmpty())
        frasi += sospeso;
    return {guasto.isEmpty(), frasi.join(u' ')};
}
} // namespace

Esito ripristinaInstallazione(const OpzioniRipristina &opzioni) {
    const QString cartella = QDir::cleanPath(QFileInfo(opzioni.crea.cartella).absoluteFilePath());
    Sostituita sostituita;
    QString guasto;
    try {
        if (opzioni.sopra)
            ripristinaSopra(opzioni, cartella, sostituita);
        else
            ripristinaNuova(opzioni, cartella);
    } catch (const Guasto &g) {
        guasto = g.frase;
    } catch (const EngineError &errore) {
        guasto = errore.frase();
    }
    if (opzioni.sopra)
        return riferisci(sostituita, cartella, guasto);
    if (guasto.isEmpty())
        return {true, u"Installazione ripristinata nella cartella %1."_s.arg(nativo(cartella))};
    return {false, guasto};
}

} // namespace zuvora::installa
