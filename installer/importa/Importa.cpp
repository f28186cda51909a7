#include "installer/importa/Importa.h"

#include "installer/Archivi.h"
#include "installer/Cantiere.h"
#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/importa/CartellaVecchia.h"
#include "installer/importa/FonteAccess.h"
#include "installer/importa/PercorsiVecchi.h"
#include "installer/importa/Testata.h"
#include "installer/importa/Travaso.h"

#include "pannello/logic/Versione.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/EngineError.h"

#include <QDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
using Progresso = std::function<void(const QString &)>;

void travasa(const QString &vecchio, const QString &lettore, Travaso &travaso, const QString &cartella,
             const Progresso &progresso) {
    AscoltoAccess ascolto;
    ascolto.tabella = [&](const TabellaAccess &t) {
        progresso(u"Leggo %1 (%2 righe)"_s.arg(t.nome).arg(t.righe));
        travaso.tabella(t);
    };
    ascolto.riga = [&](const QStringList &riga) { travaso.riga(riga); };
    ascolto.collegata = [&](const QString &nome) {
        travaso.resoconto.note << u"La tabella %1 stava in un altro database: non è stata portata."_s.arg(nome);
    };
    ascoltaAccess(vecchio, ascolto, lettore);
    if (!travaso.haTrovatoTabelle())
        throw Guasto{u"%1 non è un database di Zuvora: non ha nessuna delle sue tabelle."_s.arg(nativo(vecchio))};
    travaso.concludi(cartella);
}

// A database that the program is going to bring to the current version must lack what that step adds.
void lasciaAllAggiornamento(Travaso &travaso) {
    const auto versione = travaso.database().leggiTesti(u"SELECT Numero FROM Versione"_s);
    if (versione.isEmpty() || !zuvora::versioneDaAggiornare(versione.first().first()))
        return;
    for (const QString &colonna : {u"TestoVisibile"_s, u"DataVisibile"_s})
        if (!travaso.aveva(u"ConfigurazioneTotem"_s, colonna))
            travaso.database().esegui(u"ALTER TABLE ConfigurazioneTotem DROP COLUMN "_s + colonna);
    travaso.resoconto.note << u"La versione è %1: al primo avvio il programma proporrà l'aggiornamento."_s.arg(
        versione.first().first());
}

void racconta(const Resoconto &r, const Progresso &progresso) {
    qsizetype righe = 0;
    for (const Resoconto::Voce &voce : r.tabelle) {
        progresso(u"  %1: %2 righe"_s.arg(voce.tabella).arg(voce.righe));
        righe += voce.righe;
    }
    progresso(u"  in tutto %1 tabelle, %2 righe"_s.arg(r.tabelle.size()).arg(righe));
    for (const QString &nota : r.note)
        progresso(u"Nota: "_s + nota);
}

void importaTotem(const OpzioniImporta &o, const QString &preparazione, const QString &cartella,
                  const Progresso &progresso) {
    const QString file = percorsoIn(preparazione, archivioTotem.file);
    creaCartella(QFileInfo(file).path());
    if (o.totem.isEmpty()) {
        creaArchivio(archivioTotem, file, {cartella, false, {}});
        progresso(u"Nota: il database del totem non è stato indicato: è quello di un'installazione nuova."_s);
        return;
    }
    Travaso travaso(archivioTotem, file);
    travasa(o.totem, o.lettore, travaso, cartella, progresso);
    racconta(travaso.resoconto, progresso);
}

void importa(const OpzioniImporta &o, const QString &cartella, const Progresso &progresso) {
    for (const QString &vecchio : {o.archivio, o.totem})
        if (const QString rifiuto = vecchio.isEmpty() ? QString() : rifiutoAccess(vecchio); !rifiuto.isEmpty())
            throw Guasto{rifiuto};
    if (!o.vecchia.isEmpty() && !QFileInfo(o.vecchia).isDir())
        throw Guasto{u"La vecchia cartella %1 non esiste."_s.arg(nativo(o.vecchia))};
    Cantiere cantiere(cartella);
    const QString dove = cantiere.preparazione();
    preparaCorredo(dove, o.crea);
    importaTotem(o, dove, cartella, progresso);
    Travaso travaso(archivioZuvora, percorsoIn(dove, archivioZuvora.file));
    travasa(o.archivio, o.lettore, travaso, cartella, progresso);
    lasciaAllAggiornamento(travaso);
    PercorsiVecchi percorsi(cartella, dove);
    percorsi.impara(travaso.database());
    if (!o.vecchia.isEmpty())
        travaso.resoconto.note << prendiCartella(o.vecchia, dove, percorsi);
    const QStringList persi = percorsi.volta(travaso.database());
    if (!travaso.database().integro())
        throw Guasto{u"Il database appena scritto non supera il controllo: verificare il disco e riprovare."_s};
    travaso.database().Close();
    racconta(travaso.resoconto, progresso);
    if (!persi.isEmpty())
        progresso(u"Percorsi che su questa macchina non portano a nulla:"_s);
    for (const QString &perso : persi)
        progresso(u"  "_s + perso);
    cantiere.pubblica();
}
} // namespace

Esito importaInstallazione(const OpzioniImporta &opzioni, const Progresso &progresso) {
    const QString cartella = QDir::cleanPath(QFileInfo(opzioni.crea.cartella).absoluteFilePath());
    try {
        importa(opzioni, cartella, progresso);
    } catch (const Guasto &guasto) {
        return {false, guasto.frase + u" Nulla è stato creato."_s};
    } catch (const EngineError &errore) {
        return {false, u"%1 Nulla è stato creato."_s.arg(errore.frase())};
    }
    return {true, u"Installazione importata nella cartella %1."_s.arg(nativo(cartella))};
}

} // namespace zuvora::installa
