#include "installer/Verifica.h"
#include "installer/Banco.h"

#include <QDir>
#include <QFile>
#include <functional>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;
using zuvora::installa::Rapporto;
using zuvora::installa::verificaInstallazione;
using namespace prova;

namespace {
QString impostazioni(const QString &impianto) {
    return impianto + u"/Zuvora.mdb"_s;
}
QString totem(const QString &impianto) {
    return impianto + u"/Totem/TotemZuvora.mdb"_s;
}

void sostituisci(const QString &nome, const QByteArray &contenuto) {
    QFile file(nome);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(contenuto);
}

enum Referto { Difetto, Nota, Sana };

class Danni : public Banco {
protected:
    // The damage to a new installation is told with that text, and nothing changes.
    void controlla(const std::function<void(const QString &)> &guasta, const char *detto, Referto esito) {
        QDir(percorso(u"impianto"_s)).removeRecursively();
        const QString cartella = impianto();
        guasta(cartella);
        const auto prima = istantanea(cartella);
        const Rapporto rapporto = verificaInstallazione(cartella);
        const QString atteso = QString::fromUtf8(detto);
        EXPECT_EQ(rapporto.difetti.isEmpty(), esito != Difetto) << qPrintable(rapporto.difetti.join(u'\n'));
        EXPECT_EQ(rapporto.note.isEmpty(), esito != Nota) << qPrintable(rapporto.note.join(u'\n'));
        EXPECT_FALSE(!atteso.isEmpty() && (esito == Nota ? rapporto.note : rapporto.difetti).filter(atteso).isEmpty())
            << qPrintable((rapporto.difetti + rapporto.note).join(u'\n'));
        EXPECT_EQ(istantanea(cartella), prima);
    }
};
} // namespace

TEST_F(Danni, DelleTabelleHannoLaLoroRiga) {
    const struct {
        bool nelTotem;
        const char *istruzione;
        const char *detto;
        Referto esito = Difetto;
    } casi[] = {
        {false, "DROP TABLE radio", "manca la tabella radio"},
        {true, "DROP TABLE Numerazione", "TotemZuvora.mdb: manca la tabella Numerazione"},
        {false, "ALTER TABLE Configurazione DROP COLUMN tempo", "nella tabella Configurazione manca la colonna tempo"},
        {true, "ALTER TABLE NumerazioneIniziale DROP COLUMN P20", "manca la colonna P20"},
        {false, "DELETE FROM Layout4 WHERE rowid = 35", "righe della tabella Layout4: 69 invece di 70"},
        {false, "INSERT INTO Versione SELECT * FROM Versione", "righe della tabella Versione: 2 invece di una"},
        {false, "DELETE FROM Servizi WHERE ID = 3", "righe della tabella Servizi: 19 invece di 20"},
        {true, "DELETE FROM DatiDaStampareIMP", "righe della tabella DatiDaStampareIMP: 0 invece di almeno una"},
        {false, "UPDATE ConfigurazioneTotem SET PercorsoReteTotem = NULL",
         "il percorso di rete del totem non è impostato"},
        {false, "UPDATE ConfigurazioneTotem SET PercorsoReteTotem = '\\\\X9\\Totem'", "il totem è su un'altra macchina",
         Nota},
        {false, "UPDATE Versione SET Numero = 'Versione 9'", "«Versione 9» non è una versione conosciuta"},
        {false, "UPDATE Configurazione SET qualelayout = 11", "qualelayout vale 11"},
        {false, "UPDATE Configurazione SET MisuraFormWH = 0", "MisuraFormWH vale 0"},
        {false, "UPDATE ConfigurazioneTotem SET RisoluzioneTotem = 4", "RisoluzioneTotem vale 4"},
        {false, "UPDATE ConfigurazioneTotem SET SfondoTotem = '/nessuno.jpg'",
         "tabella ConfigurazioneTotem, riga 1: manca il file /nessuno.jpg"},
        {false,
         "UPDATE Versione SET Numero = 'Versione 3.1.9';"
         "ALTER TABLE ConfigurazioneTotem DROP COLUMN TestoVisibile;"
         "ALTER TABLE ConfigurazioneTotem DROP COLUMN DataVisibile",
         "versione 3.1.9: avviare il programma", Nota},
        {false, "PRAGMA journal_mode = WAL", "l'archivio è in modo WAL"},
        {false, "UPDATE Layout7 SET PercorsoImmagine = '/nessuna/foto.jpg' WHERE rowid = 40",
         "tabella Layout7, riga 40: manca il file /nessuna/foto.jpg"},
        {false, "UPDATE Configurazione SET cartellamp3 = '/nessuna'",
         "tabella Configurazione, riga 1: manca la cartella /nessuna"},
        {false, "DELETE FROM Decorazioni WHERE ID IN (1, 100)", "immagini preimpostate mancanti: 2"},
        {false, "UPDATE Decorazioni SET Tipo = 9 WHERE ID = 5",
         "tabella Decorazioni, ID 5: il Tipo non è una categoria"},
        {false, "UPDATE sqlite_sequence SET seq = 9", "non inizierebbero da 172"},
        // What users and sibling programs may do leaves an installation sound.
        {true, "ALTER TABLE DatiDaStampareIMP DROP COLUMN Messaggio", "", Sana},
        {false, "UPDATE Configurazione SET MisuraFormWH = NULL, qualelayout = NULL", "", Sana},
        {false, "CREATE TABLE [L'altra] ([c'è] TEXT)", "", Sana},
        {false,
         "ALTER TABLE radio RENAME TO r; ALTER TABLE r RENAME TO RADIO;"
         "ALTER TABLE Configurazione RENAME COLUMN tempo TO TEMPO",
         "", Sana},
        {false, "UPDATE Layout3 SET PercorsoImmagine = 'Label2' WHERE rowid = 32", "", Sana},
        {false, "INSERT INTO DinDon(DinDon) VALUES ('\\\\X9\\Suoni\\a.wav')", "", Sana},
    };
    for (const auto &caso : casi) {
        SCOPED_TRACE(caso.istruzione);
        const auto guasta = [&](const QString &i) {
            sql(caso.nelTotem ? totem(i) : impostazioni(i), QString::fromUtf8(caso.istruzione));
        };
        controlla(guasta, caso.detto, caso.esito);
    }
}

TEST_F(Danni, DeiFileHannoLaLoroRiga) {
    const auto diventa = [](const QString &nome, const QByteArray &contenuto) {
        return [=](const QString &i) { sostituisci(i + u'/' + nome, contenuto); };
    };
    const auto senza = [](const QString &nome) { return [=](const QString &i) { QFile::remove(i + u'/' + nome); }; };
    const QByteArray sano = leggi(impostazioni(impianto()));
    const QString mdb = u"Zuvora.mdb"_s;
    const QString cornice = u"ZuvoraDecorazioni/Cornici/stondata.gif"_s;
    const struct {
        std::function<void(const QString &)> guasta;
        const char *detto;
    } casi[] = {
        {senza(u"Totem/TotemZuvora.mdb"_s), "TotemZuvora.mdb: il file manca"},
        {[](const QString &i) { EXPECT_TRUE(QFile::remove(totem(i)) && QDir().mkdir(totem(i))); },
         "TotemZuvora.mdb: non è un file"},
        {diventa(mdb, {}), "il file è vuoto, non è un archivio"},
        {diventa(mdb, "x"), "il file non è un archivio"},
        {diventa(mdb, QByteArray(9000, 'x')), "Zuvora.mdb: il file non è un archivio"},
        {diventa(mdb, sano.left(20480)), "impianto/Zuvora.mdb: l'archivio è danneggiato"},
        {diventa(mdb, QByteArray(sano).replace(sano.size() - 8192, 4096, QByteArray(4096, '\0'))),
         "impianto/Zuvora.mdb: l'archivio è danneggiato"},
        {diventa(cornice, {}), "stondata.gif è vuoto"},
        {senza(cornice), "stondata.gif"},
        {senza(u"FraseTTS.txt"_s), "impianto/FraseTTS.txt"},
        {[](const QString &i) {
             sql(impostazioni(i), u"UPDATE ConfigurazioneTotem SET SfondoTotem = '%1/FraseTTS.txt'"_s.arg(i));
         },
         "/FraseTTS.txt: Il file non è un'immagine leggibile."},
        {senza(u"Suoni/Campanella.wav"_s), "tabella DinDon, riga 2: manca il file"},
    };
    for (const auto &[guasta, detto] : casi) {
        SCOPED_TRACE(detto);
        controlla(guasta, detto, Difetto);
    }
}

using Verifica = Banco;

// Another program in the middle of writing: its lock is told, and so is what it leaves behind when it dies there.
TEST_F(Verifica, UnaScritturaAltruiAMetaEDetta) {
    const QString cartella = impianto();
    sqlite3 *altro = nullptr;
    ASSERT_EQ(sqlite3_open(impostazioni(cartella).toUtf8().constData(), &altro), SQLITE_OK);
    const char *meta = "PRAGMA cache_size = 1; BEGIN EXCLUSIVE; UPDATE ComuniMeteo SET Regione = Regione || Regione";
    ASSERT_EQ(sqlite3_exec(altro, meta, nullptr, nullptr, nullptr), SQLITE_OK);

    EXPECT_EQ(verificaInstallazione(cartella).difetti.filter(u"occupato da un altro programma"_s).size(), 1);

    for (const auto file : {"impianto/Zuvora.mdb"_L1, "impianto/Zuvora.mdb-journal"_L1})
        scrivi(u"morto/"_s + file, leggi(percorso(file)));
    EXPECT_EQ(verificaInstallazione(percorso(u"morto/impianto"_s)).difetti.filter(u"rimasta a metà"_s).size(), 1);
    EXPECT_TRUE(QFile::exists(percorso(u"morto/impianto/Zuvora.mdb-journal"_s)));
    sqlite3_close(altro);
}

TEST_F(Verifica, LaCartellaCheMancaEDetta) {
    for (const QString &cartella : {percorso(u"nessuna"_s), QString(), percorso()})
        EXPECT_FALSE(verificaInstallazione(cartella).difetti.isEmpty()) << cartella.toStdString();
}
