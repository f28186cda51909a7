// Every record source of the program, as it is spelled there.
#include "store/Archivio.h"

namespace zuvora::prova {

struct Caso {
    const char16_t *sorgente;
    const char16_t *colonna; // whose values are expected, in order
    const char16_t *valori;  // parted by |
    bool modificabile;
};

class Sql : public Archivio {};

TEST_F(Sql, OgniTestoGiraComeSta) {
    const Caso casi[] = {
        {u"Select * from radio order by [NomeRadio]", u"nomeradio", u"alfa|Città|L'Onda|Zeta", true},
        {u"Select * from Servizi order by [ID]asc", u"id", u"1|2|3|4", true},
        {u"Select * from Servizi where[ServizioAttivo]=true", u"ID", u"1", true},
        {u"Select [Servizio] from Servizi", u"Servizio", u"Cassa|Ritiro|Esami|-", false},
        {u"Select [Servizio] from Servizi where [ServizioAttivo]=true", u"Servizio", u"Cassa", false},
        {u"Select * from ComuniMeteo order by [comune]", u"Comune", u"Aromo|Milano|Roma|Romans d'Isonzo", true},
        {u"select * from ComuniMeteo where [Comune] like'rom*' order by [comune]", u"Comune", u"Roma|Romans d'Isonzo",
         true},
        {u"select * from ComuniMeteo where [Comune] like'*' order by [comune]", u"Codice", u"1|015146|058091|030",
         true},
        {u"select * from ComuniMeteo where [Comune] like'romans d?i*' order by [comune]", u"Codice", u"030", true},
        {u"Select * from Decorazioni where [Tipo]=1 order by [file]", u"File", u"a.png|b.png", true},
        {u"Select * from Decorazioni where [tipo]=2 order by [file]", u"File", u"c.png", true},
        {u"Select * from Decorazioni where [tipo]=3 order by [file]", u"ID", u"4", true},
        {u"Select * from [VideoYT]", u"Titolo", u"secondo|primo", true},
        {u"Select * from [VideoYT] order by[Titolo]", u"Titolo", u"primo|secondo", true},
        {u"Select * from [DatiDaStampareIMP]", u"Numero", u"12", false},
        {u"versione", u"NUMERO", u"Versione 3.1.11", true},
        {u"Layout1", u"DescCampo", u"c|a|b", true},
        {u"[VideoYT]", u"id", u"1|2", true},
        {u"attivi", u"Servizio", u"Cassa|Esami", false},
        {u"select ID, Servizio as Nome from Servizi order by Servizio desc", u"Nome", u"Ritiro|Esami|Cassa|-", true},
        {u"select a.ID, b.ID from radio a, radio b where a.ID = b.ID + 2 order by 1", u"ID", u"5|7|9", false},
        {u"select a.ID, b.Url from radio a, VideoYT b where a.ID = b.ID + 2", u"ID", u"3", false},
        {u"select ID, count(*) as Quanti from Servizi group by ServizioAttivo order by 1", u"Quanti", u"1|1|1|1",
         false},
    };
    for (const Caso &caso : casi) {
        const QString sorgente = QString::fromUtf16(caso.sorgente);
        SCOPED_TRACE(sorgente.toStdString());
        Data d;
        Recordset &rs = apri(d, sorgente);
        QStringList valori;
        for (; !rs.Eof(); rs.MoveNext())
            valori.append(testoDi(rs[QString::fromUtf16(caso.colonna)].Value(), u"-"_s));
        EXPECT_EQ(valori.join(u'|'), QString::fromUtf16(caso.valori));
        EXPECT_EQ(rs.RecordCount(), valori.size());
        rs.MoveFirst();
        EXPECT_EQ(numeroDi([&] { rs.Edit(); }), caso.modificabile ? 0 : 3027);
    }
}

TEST_F(Sql, TestiSbagliatiDannoIlLoroNumero) {
    struct {
        const char16_t *sorgente;
        int numero;
    } const casi[] = {{u"Mancante", 3078},
                      {u"", 3078},
                      {u"Select * from Mancante", 3078},
                      {u"Select * from radio order by [Niente]", 3265},
                      {u"Select * from radio order", 3075},
                      {u"Select * from radio where [NomeRadio]='x", 3075},
                      {u"select 1; delete from radio", 3075},
                      {u"with x as (select 1) delete from radio", 3075}};
    for (const auto &caso : casi) {
        Data d;
        EXPECT_EQ(numeroDi([&] { apri(d, QString::fromUtf16(caso.sorgente)); }), caso.numero)
            << QString::fromUtf16(caso.sorgente).toStdString();
        EXPECT_FALSE(d.aperto());
    }
    EXPECT_EQ(Fratello(percorso()).righe(u"SELECT count(*) FROM radio"_s).value(0), u"4"_s);
}

TEST_F(Sql, FindFirstTrovaIlPrimoNellOrdineDellaSorgente) {
    struct {
        const char16_t *sorgente;
        const char16_t *criterio;
        int posto; // -1: no match, the record stays
    } const casi[] = {{u"Select * from radio order by [NomeRadio]", u"[nomeradio]like'ALFA'", 0},
                      {u"Select * from radio order by [NomeRadio]", u"[nomeradio]like'l?onda'", 2},
                      {u"Select * from radio order by [NomeRadio]", u"[nomeradio]like'cittÀ'", 1},
                      {u"Select * from radio order by [NomeRadio]", u"[nomeradio]like'*a'", 0},
                      {u"Select * from radio order by [NomeRadio] desc", u"[nomeradio]like'*a'", 0},
                      {u"Select * from radio where ID > 3", u"[nomeradio]='alfa'", -1},
                      {u"radio", u"[nomeradio]like'nulla'", -1},
                      {u"Select [Servizio] from Servizi", u"[servizio]like'e*'", 2},
                      {u"Attivi", u"[servizio]like'z*'", -1}};
    for (const auto &caso : casi) {
        SCOPED_TRACE(QString::fromUtf16(caso.criterio).toStdString());
        Data d;
        Recordset &rs = apri(d, QString::fromUtf16(caso.sorgente));
        rs.MoveLast();
        rs.FindFirst(QString::fromUtf16(caso.criterio));
        EXPECT_EQ(rs.NoMatch(), caso.posto < 0);
        EXPECT_EQ(rs.AbsolutePosition(), caso.posto < 0 ? rs.RecordCount() - 1 : caso.posto);
    }
    for (const QString &sorgente : {u"radio"_s, u"Attivi"_s}) {
        Data d;
        Recordset &rs = apri(d, sorgente);
        EXPECT_EQ(numeroDi([&] { rs.FindFirst(u"[nomeradio]like'"_s); }), 3075);
        EXPECT_EQ(numeroDi([&] { rs.FindFirst(u"[altra]=1"_s); }), 3265);
        EXPECT_EQ(numeroDi([&] { rs.FindFirst(QString()); }), 3075);
    }
}

TEST_F(Sql, IlDatabaseAggiungeColonneEdEsegue) {
    Database db = Database::OpenDatabase(percorso());
    auto campi = db.TableDefs().Item(u"VERSIONE"_s).Fields();
    campi.Append({u"DataVisibile"_s, TipoCampo::Booleano});
    EXPECT_EQ(numeroDi([&] { campi.Append({u"datavisibile"_s, TipoCampo::Booleano}); }), 3380);
    EXPECT_EQ(campi.Names(), (QStringList{u"Numero"_s, u"Data"_s, u"DataVisibile"_s}));
    EXPECT_EQ(numeroDi([&] { db.TableDefs().Item(u"Mancante"_s); }), 3265);
    EXPECT_EQ(numeroDi([&] { db.Execute(u"Select * from [DatiDaStampareIMP]"_s); }), 3065);
    EXPECT_EQ(numeroDi([&] { db.Execute(u"Select * from [Mancante]"_s); }), 3078);
    EXPECT_EQ(numeroDi([&] { db.Execute(u"update versione set"_s); }), 3075);
    db.Execute(u"update versione set [datavisibile]=true"_s);
    EXPECT_TRUE(db.integro());
    db.Close();
    EXPECT_NE(numeroDi([&] { campi.Names(); }), 0);
    EXPECT_NE(numeroDi([&] { db.Execute(u"delete from versione"_s); }), 0);

    Data d;
    EXPECT_EQ(apri(d, u"versione"_s)[u"DataVisibile"].Value(), Valore(true));
}

} // namespace zuvora::prova
