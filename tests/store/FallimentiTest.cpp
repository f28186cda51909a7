// What is wrong with a database file, a disk or a neighbour gets its number and a sentence, and the file stays as it
// is.
#include "store/Archivio.h"
#include "store/Ostacoli.h"

#include <QDir>
#include <QFileInfo>

namespace zuvora::prova {

using namespace std::chrono_literals;

class Fallimenti : public Archivio {
protected:
    void scrivi(const QByteArray &contenutoNuovo) const {
        QFile f(percorso());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(contenutoNuovo);
    }
    QByteArray conByte(qsizetype posto, char valore, qsizetype quanti) const {
        QByteArray b = contenuto(percorso());
        for (qsizetype i = posto; i < posto + quanti && i < b.size(); ++i)
            b[i] = valore;
        return b;
    }
    QStringList elenco() const { return QDir(cartella()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    // The operation fails with the number; its sentence is whole and names the file; the file's bytes stay.
    template <class F> void fallisce(int numero, F &&operazione) {
        const QByteArray prima = contenuto(percorso());
        try {
            operazione();
            ADD_FAILURE() << "expected " << numero;
        } catch (const EngineError &e) {
            EXPECT_EQ(e.Number(), numero) << e.what();
            EXPECT_TRUE(e.frase().contains(u"«Zuvora.mdb»"_s)) << e.frase().toStdString();
            EXPECT_FALSE(e.frase().contains(u'%') || e.frase().contains(u"«»"_s)) << e.frase().toStdString();
        }
        EXPECT_EQ(contenuto(percorso()) == prima, true) << "the file was changed";
    }
    void modifica(Data &d) const {
        Recordset &rs = d.Recordset();
        rs.Edit();
        rs[u"Nominativo"].SetValue(u"nuovo"_s);
        rs.Update();
    }
};

TEST_F(Fallimenti, FileCheNonSonoDatabase) {
    const QByteArray sano = contenuto(percorso());
    struct {
        const char *nome;
        QByteArray contenuto;
        int numero;
    } const casi[] = {{"empty", {}, 3343},
                      {"short garbage", "ciao", 3343},
                      {"long garbage", QByteArray(20000, 'x'), 3343},
                      {"zeroes", QByteArray(8192, '\0'), 3343},
                      {"truncated", sano.left(sano.size() / 2), 3049},
                      {"cut inside the first page", sano.left(600), 3049},
                      {"schema destroyed", conByte(100, '\xEE', 3900), 3049}};
    for (const auto &caso : casi) {
        SCOPED_TRACE(caso.nome);
        scrivi(caso.contenuto);
        Data d;
        fallisce(caso.numero, [&] { apri(d, u"Configurazione"_s); });
        fallisce(caso.numero, [&] { Database::OpenDatabase(percorso()); });
        EXPECT_FALSE(d.aperto());
        EXPECT_EQ(elenco(), QStringList{u"Zuvora.mdb"_s});
        // The same Data is good again once the file is.
        scrivi(sano);
        EXPECT_EQ(apri(d, u"Configurazione"_s).RecordCount(), 1);
    }
}

TEST_F(Fallimenti, UnaPaginaAzzerata) {
    const QString pagina =
        Fratello(percorso()).righe(u"SELECT rootpage FROM sqlite_master WHERE name='Configurazione'"_s).value(0);
    scrivi(conByte((pagina.toLongLong() - 1) * 4096, '\0', 4096));
    Data d;
    fallisce(3049, [&] { apri(d, u"Configurazione"_s); });
    EXPECT_EQ(apri(d, u"Versione"_s).RecordCount(), 1);
    EXPECT_FALSE(Database::OpenDatabase(percorso()).integro());
}

TEST_F(Fallimenti, FileOCartellaMancanti) {
    struct {
        QString percorso;
        int numero;
    } const casi[] = {{cartella() + u"/altra/Zuvora.mdb"_s, 3044},
                      {percorso() + u"/Zuvora.mdb"_s, 3044},
                      {cartella() + u"/Totem.mdb"_s, 3024},
                      {u"\\TotemZuvora.mdb"_s, 3024},
                      {QString(), 3024},
                      {cartella(), 3343}};
    for (const auto &caso : casi) {
        Data d;
        d.DatabaseName = caso.percorso;
        d.RecordSource = u"Versione"_s;
        EXPECT_EQ(numeroDi([&] { d.Refresh(); }), caso.numero) << caso.percorso.toStdString();
        EXPECT_EQ(numeroDi([&] { Database::OpenDatabase(caso.percorso); }), caso.numero);
        EXPECT_FALSE(caso.numero != 3343 && QFileInfo::exists(caso.percorso));
    }
    EXPECT_EQ(elenco(), QStringList{u"Zuvora.mdb"_s});
    ASSERT_TRUE(QFile::remove(percorso()));
    ASSERT_TRUE(creaCoda(percorso())); // a pipe in the file's place must not block
    Data d;
    EXPECT_EQ(numeroDi([&] { apri(d, u"Versione"_s); }), 3343);
}

TEST_F(Fallimenti, TabellaColonnaRigaMancanti) {
    Data d;
    fallisce(3078, [&] { apri(d, u"ConfigurazioneTotem"_s); });
    fallisce(3265, [&] { apri(d, u"Configurazione"_s)[u"TestoVisibile"].Value(); });
    fallisce(3021, [&] { apri(d, u"Vuota"_s)[u"Testo"].Value(); });
    // The column goes away between opening and reading.
    Recordset &rs = apri(d, u"Configurazione"_s);
    Fratello(percorso()).esegui(u"ALTER TABLE Configurazione DROP COLUMN Nominativo"_s);
    fallisce(3265, [&] { rs[u"dindon"].Value(); });
    fallisce(3265, [&] { modifica(d); });
}

TEST_F(Fallimenti, SolaLettura) {
    scrivi(conByte(18, 3, 1)); // a write version of the future: readable, not writable
    Data d;
    EXPECT_EQ(apri(d, u"Versione"_s)[u"Numero"].Value(), Valore(u"Versione 3.1.11"_s));
    apri(d, u"Configurazione"_s);
    fallisce(3027, [&] { modifica(d); });
    fallisce(3027, [&] { d.Recordset().AddNew(); });
    fallisce(3027, [&] { d.Recordset().Delete(); });
    Database db = Database::OpenDatabase(percorso());
    fallisce(3027, [&] { db.Execute(u"delete from radio"_s); });
    fallisce(3027, [&] { db.TableDefs().Item(u"radio"_s).Fields().Append({u"Nuovo"_s, TipoCampo::Testo}); });
}

TEST_F(Fallimenti, PermessiDellaPiattaforma) {
    const QFile::Permissions legge = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    const QFile::Permissions scrive = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const QFile::Permissions entra = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    struct {
        const char *nome;
        QFile::Permissions cartella;
        QFile::Permissions file;
        int apertura;
        int modifica;
    } const casi[] = {{"closed file", legge | scrive | entra, {}, 3051, 0},
                      {"read-only file", legge | scrive | entra, legge, 0, 3027},
                      {"protected folder", legge | entra, legge | scrive, 0, 3027},
                      {"closed folder", {}, legge | scrive, 3051, 0}};
    for (const auto &caso : casi) {
        SCOPED_TRACE(caso.nome);
        QFile::setPermissions(percorso(), caso.file);
        QFile::setPermissions(cartella(), caso.cartella);
        {
            const UtenteQualunque qualunque;
            Data d;
            EXPECT_EQ(numeroDi([&] { apri(d, u"Configurazione"_s); }), caso.apertura);
            if (caso.apertura == 0) {
                EXPECT_EQ(numeroDi([&] { modifica(d); }), caso.modifica);
            }
        }
        QFile::setPermissions(cartella(), legge | scrive | entra);
        QFile::setPermissions(percorso(), legge | scrive);
        EXPECT_EQ(Fratello(percorso()).righe(u"SELECT Nominativo FROM Configurazione"_s).value(0), u"NULL"_s);
    }
}

TEST_F(Fallimenti, BloccatoDaUnAltroProcesso) {
    Data d;
    d.attesa = 30ms;
    apri(d, u"Configurazione"_s);
    {
        const AltroProcesso altro(percorso(), "BEGIN EXCLUSIVE");
        Data nuovo;
        nuovo.attesa = 30ms;
        fallisce(3006, [&] { apri(nuovo, u"Versione"_s); });
        fallisce(3006, [&] { Database::OpenDatabase(percorso(), 30ms); });
        fallisce(3260, [&] { d.Recordset()[u"Nominativo"].Value(); });
        fallisce(3260, [&] { modifica(d); });
    }
    {
        const AltroProcesso altro(percorso(), "BEGIN IMMEDIATE"); // about to write: reading goes on
        EXPECT_TRUE(eNull(d.Recordset()[u"dindon"].Value()));
        fallisce(3260, [&] { modifica(d); });
    }
    {
        const AltroProcesso altro(percorso(), "BEGIN; SELECT count(*) FROM radio"); // a reader keeps the write out
        fallisce(3260, [&] { modifica(d); });
    }
    d.Recordset().Update(); // what was stored is still there to be written
    EXPECT_EQ(d.Recordset()[u"Nominativo"].Value(), Valore(u"nuovo"_s));
}

TEST_F(Fallimenti, UnBloccoBreveSiAspetta) {
    Data d;
    apri(d, u"Configurazione"_s);
    AltroProcesso altro(percorso(), "BEGIN EXCLUSIVE");
    altro.finisciFra(100ms);
    modifica(d);
    EXPECT_EQ(d.Recordset()[u"Nominativo"].Value(), Valore(u"nuovo"_s));
}

TEST_F(Fallimenti, NessunBloccoFraLeOperazioni) {
    Data d;
    Recordset &rs = apri(d, u"Select * from radio order by [NomeRadio]"_s);
    rs.MoveLast();
    (void)rs[u"ID"].Value();
    (void)rs.leggi(1, 1);
    rs.FindFirst(u"[nomeradio]like'*a'"_s);
    rs.Edit();
    rs[u"NomeRadio"].SetValue(u"in corso"_s);
    Fratello f(percorso());
    EXPECT_EQ(f.esegui(u"BEGIN EXCLUSIVE; UPDATE radio SET PercorsoURL=''; COMMIT"_s), SQLITE_OK);
    rs.Update();
    EXPECT_EQ(numeroDi([&] { rs.FindFirst(u"[nomeradio]like"_s); }), 3075); // not behind a failure either
    EXPECT_EQ(f.esegui(u"BEGIN EXCLUSIVE; COMMIT"_s), SQLITE_OK);
}

TEST_F(Fallimenti, DiscoPieno) {
    Data d;
    const QString molto(200000, u'x');
    const qint64 misura = QFileInfo(percorso()).size();
    for (const qint64 limite : {qint64{512}, misura / 2, misura + 4096}) {
        SCOPED_TRACE(limite);
        apri(d, u"Configurazione"_s);
        {
            const LimiteFile pieno(limite);
            fallisce(3026, [&] {
                d.Recordset().Edit();
                d.Recordset()[u"Nominativo"].SetValue(molto);
                d.Recordset().Update();
            });
            EXPECT_TRUE(eNull(apri(d, u"Configurazione"_s)[u"Nominativo"].Value()));
        }
        EXPECT_TRUE(Database::OpenDatabase(percorso()).integro());
    }
    modifica(d);
    EXPECT_EQ(d.Recordset()[u"Nominativo"].Value(), Valore(u"nuovo"_s));
}

TEST_F(Fallimenti, UnFileInWalTornaAlGiornale) {
    Fratello(percorso()).esegui(u"PRAGMA journal_mode=WAL"_s);
    Data d;
    {
        Fratello f(percorso());
        EXPECT_EQ(f.righe(u"PRAGMA journal_mode"_s).value(0), u"wal"_s);
        apri(d, u"Configurazione"_s); // somebody has it open: it works all the same
        modifica(d);
        EXPECT_EQ(f.righe(u"SELECT Nominativo FROM Configurazione"_s).value(0), u"nuovo"_s);
    }
    Data altro;
    d.DatabaseName = cartella() + u"/manca.mdb"_s; // lets its connection go
    EXPECT_EQ(numeroDi([&] { d.Refresh(); }), 3024);
    EXPECT_EQ(apri(altro, u"Configurazione"_s)[u"Nominativo"].Value(), Valore(u"nuovo"_s));
    EXPECT_EQ(contenuto(percorso()).mid(18, 2), QByteArray("\1\1"));
}

} // namespace zuvora::prova
