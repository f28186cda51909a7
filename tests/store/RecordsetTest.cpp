#include "store/Archivio.h"

#include "shell/store/Riga.h"

#include <QDir>

namespace zuvora::prova {

class RecordsetTest : public Archivio {};

TEST_F(RecordsetTest, NullEVuotoRestanoDistinti) {
    Data d;
    Recordset *rs = &apri(d, u"configurazione"_s);
    for (const QString &nome : rs->Fields().Names())
        EXPECT_TRUE(eNull((*rs)[nome].Value())) << nome.toStdString();
    rs->Edit();
    (*rs)[u"NOMINATIVO"].SetValue(QString()); // the text of an empty box
    rs->Update();
    rs = &apri(d, u"Configurazione"_s);
    EXPECT_FALSE(eNull((*rs)[u"Nominativo"].Value()));
    EXPECT_EQ((*rs)[u"Nominativo"].Value().toString(), QString());
    EXPECT_TRUE(eNull((*rs)[u"dindon"].Value()));
    rs->Edit();
    (*rs)[u"nominativo"].SetValue({});
    rs->Update();
    EXPECT_TRUE(eNull((*rs)[u"Nominativo"].Value()));
}

TEST_F(RecordsetTest, IlTipoDichiaratoDecide) {
    Data d;
    Recordset &rs = apri(d, u"Configurazione"_s);
    struct {
        const char16_t *colonna;
        Valore scritto;
        Valore letto; // invalid: refused with 3421
    } const casi[] = {{u"MisuraFormWH", u"12"_s, 12LL},
                      {u"MisuraFormWH", u" 3,5 "_s, 4LL},
                      {u"MisuraFormWH", 2.5, 2LL},
                      {u"MisuraFormWH", u"Label2"_s, {}},
                      {u"MisuraFormWH", QString(), {}},
                      {u"MisuraFormWH", true, -1LL},
                      {u"MisuraFormWH", u"1e30"_s, {}},
                      {u"tempo", u"1500"_s, 1500.0},
                      {u"tempo", 8.1F, 8.1},
                      {u"tempo", u"1.234,5"_s, {}},
                      {u"tempo", u"inf"_s, {}},
                      {u"tempo", 7, 7.0},
                      {u"PlayDinDon", true, true},
                      {u"PlayDinDon", 0, false},
                      {u"PlayDinDon", u"falso"_s, false},
                      {u"PlayDinDon", u"forse"_s, {}},
                      {u"dindon", 27.75, u"27.75"_s},
                      {u"dindon", 1e15, u"1000000000000000"_s},
                      {u"dindon", true, u"True"_s},
                      {u"MeteoCode", u"007"_s, u"007"_s},
                      {u"MeteoCode", -3, u"-3"_s},
                      {u"dindon", u"l'«è» %1 🎵"_s, u"l'«è» %1 🎵"_s}};
    for (const auto &caso : casi) {
        SCOPED_TRACE(QString::fromUtf16(caso.colonna).toStdString() + " " + caso.scritto.toString().toStdString());
        auto campo = rs[QString::fromUtf16(caso.colonna)];
        rs.Edit();
        const int numero = numeroDi([&] { campo.SetValue(caso.scritto); });
        EXPECT_EQ(numero, caso.letto.isValid() ? 0 : 3421);
        if (numero != 0) {
            rs.CancelUpdate();
            continue;
        }
        EXPECT_EQ(campo.Value(), caso.letto) << "before Update";
        rs.Update();
        EXPECT_EQ(campo.Value(), caso.letto);
        EXPECT_EQ(campo.Value().typeId(), caso.letto.typeId());
    }
}

TEST_F(RecordsetTest, UnContenutoDiAltroTipoArrivaComESta) {
    Fratello(percorso()).esegui(u"UPDATE Configurazione SET MisuraFormWH='due', tempo='x', PlayDinDon=-1, dindon=5"_s);
    Data d;
    Recordset &rs = apri(d, u"Configurazione"_s);
    EXPECT_EQ(rs[u"MisuraFormWH"].Value(), Valore(u"due"_s));
    EXPECT_EQ(rs[u"tempo"].Value(), Valore(u"x"_s));
    EXPECT_EQ(rs[u"PlayDinDon"].Value(), Valore(true));
    EXPECT_EQ(rs[u"dindon"].Value(), Valore(u"5"_s));
    EXPECT_EQ(rs[u"PlayDinDon"].TipoDichiarato(), u"BOOLEAN"_s);
}

TEST_F(RecordsetTest, UpdateScriveSoloLeColonneMesse) {
    Data d;
    Recordset &rs = apri(d, u"radio"_s);
    rs.Edit();
    rs[u"PercorsoURL"].SetValue(u"nuovo"_s);
    Fratello f(percorso());
    f.esegui(u"UPDATE radio SET NomeRadio='del fratello' WHERE ID=3"_s);
    rs.Update();
    EXPECT_EQ(f.righe(u"SELECT NomeRadio || PercorsoURL FROM radio WHERE ID=3"_s).value(0), u"del fratellonuovo"_s);
    // A record set on SQL text writes through an alias too.
    Recordset &alias = apri(d, u"select PercorsoURL as U, ID from radio order by ID desc"_s);
    alias.Edit();
    alias[u"u"].SetValue(u"ultimo"_s);
    alias.Update();
    EXPECT_EQ(f.righe(u"SELECT PercorsoURL FROM radio WHERE ID=9"_s).value(0), u"ultimo"_s);
}

TEST_F(RecordsetTest, IlCambioDiUnFratelloSiVede) {
    Data d;
    Recordset &rs = apri(d, u"radio"_s);
    Fratello f(percorso());
    EXPECT_EQ(rs[u"PercorsoURL"].Value(), Valore(u"u3"_s));
    EXPECT_EQ(rs.leggi(1, 2), Valore(u"u5"_s));
    f.esegui(u"UPDATE radio SET PercorsoURL='altro'"_s);
    f.esegui(u"DELETE FROM radio WHERE ID=7"_s);
    rs.SetAbsolutePosition(0); // where it is already
    EXPECT_EQ(rs[u"PercorsoURL"].Value(), Valore(u"altro"_s));
    EXPECT_EQ(rs.leggi(1, 2), Valore(u"altro"_s));
    EXPECT_TRUE(eNull(rs.leggi(2, 2)));
    EXPECT_TRUE(eNull(rs.leggi(99, 0)));
    EXPECT_TRUE(eNull(rs.leggi(0, 99)));

    rs.SetAbsolutePosition(2);
    EXPECT_EQ(numeroDi([&] { rs[u"ID"].Value(); }), 3021);
    rs.Edit();
    rs[u"PercorsoURL"].SetValue(u"perso"_s);
    EXPECT_EQ(numeroDi([&] { rs.Update(); }), 3021);
    EXPECT_EQ(numeroDi([&] { rs.Delete(); }), 3021);
    EXPECT_EQ(f.righe(u"SELECT count(*) FROM radio WHERE PercorsoURL='perso'"_s).value(0), u"0"_s);
    d.Refresh();
    EXPECT_EQ(rs.RecordCount(), 3); // the reference stays good over a Refresh
}

// The statement of the first Refresh is used again by the second: its columns have to be those of the file now.
TEST_F(RecordsetTest, UnaColonnaAggiuntaDaUnFratelloSiVedeDopoRefresh) {
    int giro = 0;
    for (const QString &sorgente : {u"radio"_s, u"select * from radio"_s, u"[Vuota]"_s, u"select * from Attivi"_s}) {
        Data d;
        Recordset &rs = apri(d, sorgente);
        const qsizetype prima = rs.Fields().Count();
        const QString nuova = u"Nuova%1"_s.arg(++giro);
        const bool vista = sorgente.endsWith(u"Attivi"_s);
        Fratello(percorso())
            .esegui(vista
                        ? u"DROP VIEW Attivi; CREATE VIEW Attivi AS SELECT Servizio, 7 AS %1 FROM Servizi"_s.arg(nuova)
                        : u"ALTER TABLE %1 ADD COLUMN %2 INTEGER DEFAULT 7"_s.arg(
                              sorgente.endsWith(u"radio"_s) ? u"radio"_s : u"Vuota"_s, nuova));
        d.Refresh();
        EXPECT_EQ(rs.Fields().Count(), prima + 1) << sorgente.toStdString();
        const Valore letto = rs.RecordCount() > 0 ? rs[nuova].Value() : Valore(7LL);
        EXPECT_EQ(letto, Valore(7LL)) << sorgente.toStdString();
    }
}

TEST_F(RecordsetTest, UnaTabellaSenzaNumeriDiRigaSiLegge) {
    Fratello(percorso())
        .esegui(u"CREATE TABLE Sola(Nome TEXT PRIMARY KEY, Valore TEXT) WITHOUT ROWID; "
                "INSERT INTO Sola VALUES('b','2'),('a','1')"_s);
    Data d;
    Recordset &rs = apri(d, u"sola"_s);
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs[u"Valore"].Value(), Valore(u"1"_s));
    EXPECT_EQ(numeroDi([&] { rs.Edit(); }), 3027);
    EXPECT_EQ(leggiRiga(d, cartella(), u"[Sola]"_s).testo(u"nome"), u"a"_s);
    d.Refresh();
    EXPECT_EQ(rs.RecordCount(), 2) << "the limit of one row was for the reading of one";
}

TEST_F(RecordsetTest, AggiungereECancellare) {
    Data d;
    Recordset &rs = apri(d, u"Select * from radio order by [NomeRadio]"_s);
    rs.AddNew();
    EXPECT_TRUE(eNull(rs[u"NomeRadio"].Value()));
    rs[u"NomeRadio"].SetValue(u"Beta"_s);
    rs.Update();
    EXPECT_EQ(rs.RecordCount(), 5);
    EXPECT_EQ(rs[u"NomeRadio"].Value(), Valore(u"alfa"_s));
    rs.MoveLast();
    EXPECT_EQ(rs[u"NomeRadio"].Value(), Valore(u"Beta"_s));
    EXPECT_EQ(rs[u"ID"].Value(), Valore(10LL));
    rs.MoveFirst();
    rs.Delete();
    EXPECT_EQ(numeroDi([&] { rs[u"ID"].Value(); }), 3021);
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    rs.MoveNext();
    EXPECT_EQ(rs[u"NomeRadio"].Value(), Valore(u"Città"_s));
    d.Refresh();
    EXPECT_EQ(rs.RecordCount(), 4);
    while (rs.RecordCount() > 0) {
        rs.Delete();
        rs.MoveNext();
    }
    EXPECT_TRUE(rs.Eof());
    rs.AddNew();
    rs.Update(); // nothing stored: a record of Nulls
    EXPECT_EQ(rs.AbsolutePosition(), 0);
    EXPECT_EQ(Fratello(percorso()).righe(u"SELECT NomeRadio FROM radio"_s).value(0), u"NULL"_s);
}

TEST_F(RecordsetTest, SenzaRecordOSenzaEdit) {
    Data d;
    EXPECT_EQ(numeroDi([&] { d.Recordset(); }), 3021);
    Recordset &rs = apri(d, u"Vuota"_s);
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(numeroDi([&] { rs[u"Testo"].Value(); }), 3021);
    EXPECT_EQ(numeroDi([&] { rs.MoveFirst(); }), 3021);
    EXPECT_EQ(numeroDi([&] { rs.MoveLast(); }), 3021);
    EXPECT_EQ(numeroDi([&] { rs.MoveNext(); }), 3021);
    EXPECT_EQ(numeroDi([&] { rs.Edit(); }), 3021);
    EXPECT_EQ(numeroDi([&] { rs.Delete(); }), 3021);
    EXPECT_EQ(numeroDi([&] { rs[u"Manca"].Value(); }), 3265);
    EXPECT_EQ(numeroDi([&] { rs.Fields().Item(1); }), 3265);
    EXPECT_EQ(numeroDi([&] { rs.Update(); }), 3020);

    Recordset &radio = apri(d, u"radio"_s);
    EXPECT_EQ(numeroDi([&] { radio[u"ID"].SetValue(1); }), 3020);
    radio.Edit();
    radio[u"NomeRadio"].SetValue(u"persa"_s);
    radio.MoveNext(); // leaving the record drops what was not written
    EXPECT_EQ(numeroDi([&] { radio.Update(); }), 3020);
    radio.MoveLast();
    radio.MoveNext();
    EXPECT_TRUE(radio.Eof());
    EXPECT_EQ(numeroDi([&] { radio.MoveNext(); }), 3021);
    EXPECT_EQ(Fratello(percorso()).righe(u"SELECT count(*) FROM radio WHERE NomeRadio='persa'"_s).value(0), u"0"_s);
}

TEST_F(RecordsetTest, LaFinestraDelleListeTieneLOrdine) {
    Fratello(percorso())
        .esegui(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<200) "
                "INSERT INTO VideoYT SELECT i+100, printf('t%03d', 1000-i), '' FROM n"_s);
    Data d;
    Recordset &rs = apri(d, u"Select * from [VideoYT] where ID>100 order by[Titolo]"_s);
    ASSERT_EQ(rs.RecordCount(), 200);
    for (const int riga : {0, 199, 31, 32, 100, 92, 91, 199, 0})
        EXPECT_EQ(rs.leggi(riga, 1), Valore(u"t%1"_s.arg(800 + riga))) << riga;
}

TEST_F(RecordsetTest, LaConnessioneSegueIlFile) {
    Data d;
    Recordset &rs = apri(d, u"radio"_s);
    const QString copia = cartella() + u"/copia.mdb"_s;
    ASSERT_TRUE(QFile::copy(percorso(), copia));
    Fratello(copia).esegui(u"DELETE FROM radio"_s);
    rs.Edit();
    rs[u"NomeRadio"].SetValue(u"persa"_s);
    ASSERT_TRUE(QFile::remove(percorso()));
    EXPECT_EQ(numeroDi([&] { rs.Update(); }), 3024); // not written to a file that is gone
    ASSERT_TRUE(QFile::rename(copia, percorso()));
    EXPECT_EQ(numeroDi([&] { rs.Update(); }), 3024); // nor to another one in its place
    d.Refresh();
    EXPECT_EQ(rs.RecordCount(), 0);
    // A name that differs by case serves when the exact one isn't there.
    ASSERT_TRUE(QFile::rename(percorso(), cartella() + u"/ZUVORA.mdb"_s));
    EXPECT_EQ(apri(d, u"versione"_s).RecordCount(), 1);
    EXPECT_FALSE(QFile::exists(percorso()));
}

} // namespace zuvora::prova
