#include "installer/Archivi.h"

#include "installer/Csv.h"
#include "installer/Guasto.h"
#include "installer/Percorsi.h"

#include "shell/store/Database.h"
#include "shell/store/EngineError.h"

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
void riempi(Database &db, const Tabella &tabella, const QString &cartella, bool esempio) {
    const Csv csv = leggiCsv(righeDi(tabella.righe, esempio), tabella.righe);
    if (csv.righe.isEmpty())
        return;
    const QStringList segni(csv.colonne.size(), u"?"_s);
    QList<QStringList> righe = csv.righe;
    for (QStringList &riga : righe)
        for (QString &valore : riga)
            valore = espandi(valore, cartella);
    db.eseguiPerRighe(
        u"INSERT INTO [%1] ([%2]) VALUES (%3)"_s.arg(tabella.nome, csv.colonne.join(u"],["_s), segni.join(u',')),
        righe);
}

void riempiTutto(Database &db, const Archivio &archivio, const QString &cartella, bool esempio) {
    // One transaction, so one write to the disk. The journal stays in memory: after a crash the whole file goes.
    db.esegui(u"PRAGMA journal_mode = MEMORY; BEGIN IMMEDIATE"_s);
    db.esegui(QString::fromUtf8(schemaDi(archivio)));
    for (const Tabella &tabella : archivio.tabelle)
        riempi(db, tabella, cartella, esempio);
    db.esegui(u"COMMIT"_s);
    if (!db.integro())
        throw Guasto{
            u"%1 appena creato non supera il controllo: verificare il disco e riprovare."_s.arg(archivio.file)};
}
} // namespace

void creaArchivio(const Archivio &archivio, const QString &file, const QString &cartella, bool esempio) {
    try {
        Database db = Database::crea(file);
        riempiTutto(db, archivio, cartella, esempio);
    } catch (const EngineError &errore) {
        throw Guasto{u"Impossibile creare %1: verificare lo spazio su disco e i permessi della cartella (%2)."_s.arg(
            archivio.file, errore.dettaglio())};
    }
}

} // namespace zuvora::installa
