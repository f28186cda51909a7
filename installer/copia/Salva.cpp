#include "installer/copia/Salva.h"

#include "installer/Contenuto.h"
#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/copia/Archivio.h"
#include "installer/copia/Raccolta.h"
#include "installer/copia/Scambio.h"

#include "shell/logic/FileAtomico.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>
#include <QTemporaryDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
using Progresso = std::function<void(const QString &)>;

// The database as it stands at one moment, its own check passed, in a file of the temporary folder.
QString istantanea(Database &db, const QTemporaryDir &cartella, const QString &nome, const QString &origine) {
    if (!db.integro())
        throw Guasto{u"%1 è danneggiato: nessuna copia è stata fatta."_s.arg(nativo(origine))};
    QString file = cartella.filePath(nome);
    Database copia = Database::crea(file);
    copia.esegui(u"PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF"_s); // read once and thrown away
    copia.copiaDa(db);
    return file;
}

QString etichetta(Database &zuvora) {
    const auto righe = zuvora.leggiTesti(u"SELECT Numero FROM Versione LIMIT 1"_s);
    return righe.isEmpty() ? QString() : righe.first().first();
}

Elenco scriviCopia(const QString &cartella, const QString &file, const Progresso &progresso) {
    const QTemporaryDir appoggio;
    const QString archivio = cartella + u'/' + nomi::archivio.toString();
    Database zuvora = Database::apriInLettura(archivio);
    const QString foto = istantanea(zuvora, appoggio, u"z"_s, archivio);
    const Raccolta raccolta = raccogli(cartella, zuvora);
    ScrittoreCopia scrittore(file);
    scrittore.aggiungi(nomi::archivio.toString(), foto);
    if (!raccolta.totem.isEmpty()) {
        const QString totem = Percorsi().unisci(raccolta.totem, nomi::archivioTotem);
        Database db = Database::apriInLettura(totem);
        scrittore.aggiungi(raccolta.nomeTotem, istantanea(db, appoggio, u"t"_s, totem));
    } else {
        progresso(u"Non è nella copia la cartella del totem: è su un'altra macchina o non si trova."_s);
    }
    for (const DaCopiare &voce : raccolta.file)
        scrittore.aggiungi(voce.nome, voce.percorso);
    scrittore.chiudi({etichetta(zuvora),
                      cartella,
                      raccolta.totem,
                      QSysInfo::machineHostName(),
                      QDateTime::currentDateTime().toString(Qt::ISODate),
                      {}});
    for (const QString &percorso : raccolta.fuori)
        progresso(u"Non è nella copia: %1"_s.arg(accorciato(percorso)));
    return leggiCopia(file);
}

// "sala.zuvora" as "sala-20131003-101500.zuvora".
QString conData(const QString &file, const QString &data) {
    const QFileInfo info(file);
    const QString coda = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    return info.path() + u'/' + info.completeBaseName() + u'-' + data + coda;
}

void tieniLeUltime(const QString &file, int quante) {
    const QFileInfo modello(conData(file, QString(8, u'?') + u'-' + QString(6, u'?')));
    QStringList copie = QDir(modello.path()).entryList({modello.fileName()}, QDir::Files, QDir::Name);
    while (copie.size() > quante)
        QFile::remove(modello.path() + u'/' + copie.takeFirst());
}

QString salva(const OpzioniSalva &opzioni, const Progresso &progresso) {
    const QString cartella = QDir::cleanPath(QFileInfo(opzioni.cartella).absoluteFilePath());
    const QString base = QFileInfo(opzioni.file).absoluteFilePath();
    const QString file =
        opzioni.tieni > 0 ? conData(base, QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s)) : base;
    if (QFileInfo(file).isDir())
        throw Guasto{u"%1 è una cartella: indicare il file della copia."_s.arg(nativo(file))};
    if (!QFileInfo(QFileInfo(file).path()).isDir())
        throw Guasto{u"La cartella %1 non esiste: nessuna copia è stata fatta."_s.arg(nativo(QFileInfo(file).path()))};
    if (const QString sospeso = scambioSospeso(cartella); !sospeso.isEmpty())
        throw Guasto{sospeso};
    QLockFile guardia(base + u".lock"_s);
    guardia.setStaleLockTime(0);
    if (!guardia.tryLock() && guardia.error() == QLockFile::LockFailedError)
        throw Guasto{u"La copia %1 è già in corso: attendere che finisca."_s.arg(nativo(file))};
    const QString parziale = base + u".parziale"_s; // one that a killed process left is ours to remove
    rimuovi(parziale);
    Elenco elenco;
    try {
        elenco = scriviCopia(cartella, parziale, progresso);
        sposta(parziale, file);
    } catch (...) {
        rimuovi(parziale);
        throw;
    }
    sincronizzaCartella(QFileInfo(file).path());
    if (opzioni.tieni > 0)
        tieniLeUltime(base, opzioni.tieni);
    return u"Copia di %1 scritta e riletta: %2, %3 file."_s.arg(nativo(cartella), nativo(file)).arg(elenco.voci.size());
}

Esito protetto(const std::function<QString()> &lavoro) {
    try {
        return {true, lavoro()};
    } catch (const Guasto &guasto) {
        return {false, guasto.frase};
    } catch (const EngineError &errore) {
        return {false, errore.frase()};
    }
}
} // namespace

Esito salvaInstallazione(const OpzioniSalva &opzioni, const Progresso &progresso) {
    return protetto([&] { return salva(opzioni, progresso); });
}

Esito elencaCopia(const QString &file) {
    return protetto([&] {
        const Elenco elenco = leggiCopia(file);
        QString testo = u"Copia di %1 (macchina %2), %3, fatta il %4\n"_s.arg(elenco.cartella, elenco.macchina,
                                                                              elenco.versione, elenco.quando);
        for (const VoceCopia &voce : elenco.voci)
            testo += u"%1  %2\n"_s.arg(misuraFile(voce.byte).rightJustified(10), voce.nome);
        return testo + u"In tutto %1 file, tutti integri."_s.arg(elenco.voci.size());
    });
}

} // namespace zuvora::installa
