#include "installer/Archivi.h"

#include "installer/Csv.h"
#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/Percorsi.h"

#include "shell/logic/Percorsi.h"
#include "shell/store/Database.h"
#include "shell/store/EngineError.h"

#include <QDir>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
void riempi(Database &db, const Tabella &tabella, const Destinazione &destinazione) {
    const Csv csv = leggiCsv(righeDi(tabella.righe, destinazione.esempio), tabella.righe);
    if (csv.righe.isEmpty())
        return;
    const QStringList segni(csv.colonne.size(), u"?"_s);
    QList<QStringList> righe = csv.righe;
    for (QStringList &riga : righe)
        for (QString &valore : riga)
            valore = espandi(valore, destinazione.cartella);
    db.eseguiPerRighe(
        u"INSERT INTO [%1] ([%2]) VALUES (%3)"_s.arg(tabella.nome, csv.colonne.join(u"],["_s), segni.join(u',')),
        righe);
}

void riempiTutto(Database &db, const Archivio &archivio, const Destinazione &destinazione) {
    // One transaction, so one write to the disk. The journal stays in memory: after a crash the whole file goes.
    db.esegui(u"PRAGMA journal_mode = MEMORY; BEGIN IMMEDIATE"_s);
    db.esegui(QString::fromUtf8(schemaDi(archivio)));
    for (const Tabella &tabella : archivio.tabelle)
        riempi(db, tabella, destinazione);
    if (&archivio == &archivioZuvora && !destinazione.notizie.isEmpty())
        db.eseguiPerRighe(u"UPDATE TG SET PercorsoURL = ?"_s, {{destinazione.notizie}});
    db.esegui(u"COMMIT"_s);
    if (!db.integro())
        throw Guasto{
            u"%1 appena creato non supera il controllo: verificare il disco e riprovare."_s.arg(archivio.file)};
}

// The engine doesn't say what the disk refused: writing on at the end of its file does. The sentence names the place
// that the user knows, not the one where the file was being made.
[[noreturn]] void rilancia(const EngineError &errore, const QString &file, const QString &posto) {
    const QString motivo = motivoDelDisco(file);
    throw Guasto{u"Impossibile creare %1: %2"_s.arg(
        QDir::toNativeSeparators(posto),
        motivo.isEmpty() ? u"errore del disco (%1)."_s.arg(errore.dettaglio()) : motivo)};
}
} // namespace

void creaArchivio(const Archivio &archivio, const QString &file, const Destinazione &destinazione) {
    try {
        Database db = Database::crea(file);
        riempiTutto(db, archivio, destinazione);
    } catch (const EngineError &errore) {
        rilancia(errore, file, percorsoIn(destinazione.cartella, archivio.file));
    }
}

} // namespace zuvora::installa
