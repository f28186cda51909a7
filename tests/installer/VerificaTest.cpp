#include "installer/Verifica.h"
#include "installer/Banco.h"

#include <QDir>
#include <QFile>
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

enum Esito { Difetto, Nota, Sana };

struct Caso {
    const char *nome;
    void (*guasta)(const QString &impianto);
    const char *detto; // part of one of the findings
    Esito esito = Difetto;
};

void PrintTo(const Caso &caso, std::ostream *dove) {
    *dove << caso.nome;
}

class Danni : public Banco, public testing::WithParamInterface<Caso> {};

const Caso casi[] = {
    {"tabella", [](const QString &i) { sql(impostazioni(i), u"DROP TABLE radio"_s); }, "manca la tabella radio"},
    {"tabella_totem", [](const QString &i) { sql(totem(i), u"DROP TABLE Numerazione"_s); },
     "TotemZuvora.mdb: manca la tabella Numerazione"},
    {"colonna", [](const QString &i) { sql(impostazioni(i), u"ALTER TABLE Configurazione DROP COLUMN tempo"_s); },
     "nella tabella Configurazione manca la colonna tempo"},
    {"colonna_totem", [](const QString &i) { sql(totem(i), u"ALTER TABLE NumerazioneIniziale DROP COLUMN P20"_s); },
     "manca la colonna P20"},
    {"riga_di_layout", [](const QString &i) { sql(impostazioni(i), u"DELETE FROM Layout4 WHERE rowid = 35"_s); },
     "righe della tabella Layout4: 69 invece di 70"},
    {"riga_in_piu", [](const QString &i) { sql(impostazioni(i), u"INSERT INTO Versione SELECT * FROM Versione"_s); },
     "righe della tabella Versione: 2 invece di una"},
    {"servizio", [](const QString &i) { sql(impostazioni(i), u"DELETE FROM Servizi WHERE ID = 3"_s); },
     "righe della tabella Servizi: 19 invece di 20"},
    {"biglietto", [](const QString &i) { sql(totem(i), u"DELETE FROM DatiDaStampareIMP"_s); },
     "righe della tabella DatiDaStampareIMP: 0 invece di almeno una"},
    {"senza_percorso_totem",
     [](const QString &i) { sql(impostazioni(i), u"UPDATE ConfigurazioneTotem SET PercorsoReteTotem = NULL"_s); },
     "il percorso di rete del totem non è impostato"},
    {"totem_altrove",
     [](const QString &i) {
         sql(impostazioni(i), u"UPDATE ConfigurazioneTotem SET PercorsoReteTotem = '\\\\X9\\Totem'"_s);
     },
     "il totem è su un'altra macchina", Nota},
    {"totem_mancante", [](const QString &i) { QFile::remove(totem(i)); }, "TotemZuvora.mdb: il file manca"},
    {"vuoto", [](const QString &i) { sostituisci(impostazioni(i), {}); }, "il file è vuoto, non è un archivio"},
    {"di_un_byte", [](const QString &i) { sostituisci(impostazioni(i), "x"); }, "il file non è un archivio"},
    {"versione_sconosciuta",
     [](const QString &i) { sql(impostazioni(i), u"UPDATE Versione SET Numero = 'Versione 9'"_s); },
     "«Versione 9» non è una versione conosciuta"},
    {"layout_fuori_campo",
     [](const QString &i) { sql(impostazioni(i), u"UPDATE Configurazione SET qualelayout = 11"_s); },
     "qualelayout vale 11"},
    {"risoluzione_fuori_campo",
     [](const QString &i) { sql(impostazioni(i), u"UPDATE Configurazione SET MisuraFormWH = 0"_s); },
     "MisuraFormWH vale 0"},
    {"immagine_vuota", [](const QString &i) { sostituisci(i + u"/ZuvoraDecorazioni/Cornici/stondata.gif"_s, {}); },
     "stondata.gif è vuoto"},
    {"sfondo_del_totem",
     [](const QString &i) { sql(impostazioni(i), u"UPDATE ConfigurazioneTotem SET SfondoTotem = '/nessuno.jpg'"_s); },
     "tabella ConfigurazioneTotem, riga 1: manca il file /nessuno.jpg"},
    {"sfondo_illeggibile",
     [](const QString &i) {
         sql(impostazioni(i), u"UPDATE ConfigurazioneTotem SET SfondoTotem = '%1/FraseTTS.txt'"_s.arg(i));
     },
     "/FraseTTS.txt: Il file non è un'immagine leggibile."},
    {"schermo_del_totem",
     [](const QString &i) { sql(impostazioni(i), u"UPDATE ConfigurazioneTotem SET RisoluzioneTotem = 4"_s); },
     "RisoluzioneTotem vale 4"},
    {"versione_precedente",
     [](const QString &i) {
         sql(impostazioni(i), u"UPDATE Versione SET Numero = 'Versione 3.1.9';"
                              "ALTER TABLE ConfigurazioneTotem DROP COLUMN TestoVisibile;"
                              "ALTER TABLE ConfigurazioneTotem DROP COLUMN DataVisibile"_s);
     },
     "versione 3.1.9: avviare il programma", Nota},
    {"estraneo", [](const QString &i) { sostituisci(impostazioni(i), QByteArray(9000, 'x')); },
     "Zuvora.mdb: il file non è un archivio"},
    {"cartella_al_posto",
     [](const QString &i) {
         QFile::remove(totem(i));
         QDir().mkdir(totem(i));
     },
     "TotemZuvora.mdb: non è un file"},
    {"troncato", [](const QString &i) { QFile::resize(impostazioni(i), 20480); },
     "impianto/Zuvora.mdb: l'archivio è danneggiato"},
    {"pagina_azzerata",
     [](const QString &i) {
         QByteArray byte = leggi(impostazioni(i));
         sostituisci(impostazioni(i), byte.replace(byte.size() - 8192, 4096, QByteArray(4096, '\0')));
     },
     "impianto/Zuvora.mdb: l'archivio è danneggiato"},
    {"wal", [](const QString &i) { sql(impostazioni(i), u"PRAGMA journal_mode = WAL"_s); }, "l'archivio è in modo WAL"},
    {"cornice", [](const QString &i) { QFile::remove(i + u"/ZuvoraDecorazioni/Cornici/stondata.gif"_s); },
     "stondata.gif"},
    {"frase", [](const QString &i) { QFile::remove(i + u"/FraseTTS.txt"_s); }, "impianto/FraseTTS.txt"},
    {"immagine_di_layout",
     [](const QString &i) {
         sql(impostazioni(i), u"UPDATE Layout7 SET PercorsoImmagine = '/nessuna/foto.jpg' WHERE rowid = 40"_s);
     },
     "tabella Layout7, riga 40: manca il file /nessuna/foto.jpg"},
    {"suono", [](const QString &i) { QFile::remove(i + u"/Suoni/Campanella.wav"_s); },
     "tabella DinDon, riga 2: manca il file"},
    {"musica", [](const QString &i) { sql(impostazioni(i), u"UPDATE Configurazione SET cartellamp3 = '/nessuna'"_s); },
     "tabella Configurazione, riga 1: manca la cartella /nessuna"},
    {"catalogo", [](const QString &i) { sql(impostazioni(i), u"DELETE FROM Decorazioni WHERE ID IN (1, 100)"_s); },
     "immagini preimpostate mancanti: 2"},
    {"categoria", [](const QString &i) { sql(impostazioni(i), u"UPDATE Decorazioni SET Tipo = 9 WHERE ID = 5"_s); },
     "tabella Decorazioni, ID 5: il Tipo non è una categoria"},
    {"numeri_del_catalogo", [](const QString &i) { sql(impostazioni(i), u"UPDATE sqlite_sequence SET seq = 9"_s); },
     "non inizierebbero da 172"},
    // What users and sibling programs may do leaves an installation sound.
    {"variabili_del_biglietto",
     [](const QString &i) { sql(totem(i), u"ALTER TABLE DatiDaStampareIMP DROP COLUMN Messaggio"_s); }, "", Sana},
    {"scelte_non_fatte",
     [](const QString &i) {
         sql(impostazioni(i), u"UPDATE Configurazione SET MisuraFormWH = NULL, qualelayout = NULL"_s);
     },
     "", Sana},
    {"tabelle_con_apostrofi", [](const QString &i) { sql(impostazioni(i), u"CREATE TABLE [L'altra] ([c'è] TEXT)"_s); },
     "", Sana},
    {"nomi_in_altre_lettere",
     [](const QString &i) {
         sql(impostazioni(i), u"ALTER TABLE radio RENAME TO r; ALTER TABLE r RENAME TO RADIO;"
                              "ALTER TABLE Configurazione RENAME COLUMN tempo TO TEMPO"_s);
     },
     "", Sana},
    {"layout_senza_sfondo",
     [](const QString &i) {
         sql(impostazioni(i), u"UPDATE Layout3 SET PercorsoImmagine = 'Label2' WHERE rowid = 32"_s);
     },
     "", Sana},
    {"suono_di_altra_macchina",
     [](const QString &i) { sql(impostazioni(i), u"INSERT INTO DinDon(DinDon) VALUES ('\\\\X9\\Suoni\\a.wav')"_s); },
     "", Sana},
};
} // namespace

TEST_P(Danni, OgniDannoHaLaSuaRigaENullaCambia) {
    const QString cartella = impianto();
    GetParam().guasta(cartella);
    const auto prima = istantanea(cartella);

    const Rapporto rapporto = verificaInstallazione(cartella);

    const QString atteso = QString::fromUtf8(GetParam().detto);
    const bool nota = GetParam().esito == Nota;
    EXPECT_EQ(rapporto.difetti.isEmpty(), GetParam().esito != Difetto) << qPrintable(rapporto.difetti.join(u'\n'));
    EXPECT_EQ(rapporto.note.isEmpty(), !nota) << qPrintable(rapporto.note.join(u'\n'));
    EXPECT_FALSE(!atteso.isEmpty() && (nota ? rapporto.note : rapporto.difetti).filter(atteso).isEmpty())
        << qPrintable((rapporto.difetti + rapporto.note).join(u'\n'));
    EXPECT_EQ(istantanea(cartella), prima);
}

INSTANTIATE_TEST_SUITE_P(, Danni, testing::ValuesIn(casi), [](const auto &caso) { return caso.param.nome; });

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
