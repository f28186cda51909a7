#include "Archivio.h"

#include "shell/store/Riga.h"
#include "shell/store/Scrittura.h"

namespace zuvora::prova {
namespace {

class RigaTest : public Archivio {};

TEST_F(RigaTest, SiLeggeESiScriveLaPrima) {
    scriviRiga(cartella(), u"configurazione"_s, {{u"nominativo", u"SERVER1"_s}, {u"TEMPO", 1500}});
    const Riga riga = leggiRiga(cartella(), u"Configurazione"_s);
    EXPECT_EQ(riga.testo(u"NOMINATIVO"), u"SERVER1"_s);
    EXPECT_EQ(riga[u"tempo"], Valore(1500.0));
    EXPECT_TRUE(eNull(riga[u"MeteoCode"]));
    EXPECT_EQ(riga.testo(u"MeteoCode", u"0000"_s), u"0000"_s);
    EXPECT_EQ(numeroDi([&] { riga.testo(u"assente"); }), 3265);

    scriviRigaDi(percorso(), u"Select * from radio order by [NomeRadio]"_s, {{u"PercorsoURL", u"nuovo"_s}});
    EXPECT_EQ(leggiRigaDi(percorso(), u"Select * from radio order by [NomeRadio]"_s).testo(u"NomeRadio"), u"alfa"_s);
    EXPECT_EQ(Fratello(percorso()).righe(u"SELECT group_concat(ID) FROM radio WHERE PercorsoURL='nuovo'"_s).value(0),
              u"3"_s);
}

TEST_F(RigaTest, UnaColonnaSbagliataNonScriveLeAltre) {
    const QByteArray prima = contenuto(percorso());
    for (const Assegno &guasto : {Assegno{u"assente", 1}, Assegno{u"MisuraFormWH", u"molto"_s}})
        EXPECT_NE(numeroDi([&] {
                      scriviRiga(cartella(), u"Configurazione"_s, {{u"Nominativo", u"perso"_s}, guasto});
                  }),
                  0);
    EXPECT_EQ(contenuto(percorso()), prima);
}

TEST_F(RigaTest, UnRecordNonScrittoNonRestaInSospeso) {
    Data d;
    Recordset &radio = apri(d, u"Select * from radio order by [NomeRadio]"_s);
    for (const Record quale : {Record::Corrente, Record::Nuovo}) {
        const auto scrivi = [&](QStringView seconda) {
            scriviRecord(radio, quale, {{u"NomeRadio", u"scritta"_s}, {seconda, u"x"_s}});
        };
        EXPECT_EQ(numeroDi([&] { scrivi(u"assente"); }), 3265);
        EXPECT_EQ(radio[u"NomeRadio"].Value(), Valore(u"alfa"_s));
        EXPECT_EQ(radio.RecordCount(), 4);
    }
    scriviRecord(radio, Record::Nuovo, {{u"NomeRadio", u"quinta"_s}});
    scriviRecord(radio, Record::Corrente, {{u"NomeRadio", u"prima"_s}});
    EXPECT_EQ(radio[u"NomeRadio"].Value(), Valore(u"prima"_s));
    EXPECT_EQ(radio.RecordCount(), 5);
}

TEST_F(RigaTest, SenzaRigaLoDiceConLaTabella) {
    try {
        leggiRiga(cartella(), u"Vuota"_s);
        FAIL();
    } catch (const EngineError &e) {
        EXPECT_EQ(e.Number(), 3021);
        EXPECT_TRUE(testoErrore(e, u"aggiunta"_s).contains(u"«Vuota»"_s));
    }
    EXPECT_EQ(numeroDi([&] { scriviRiga(cartella(), u"Vuota"_s, {{u"Testo", u"x"_s}}); }), 3021);
}

TEST_F(RigaTest, UnaVistaSenzaFineSiFermaAlLimite) {
    Fratello(percorso())
        .esegui(u"CREATE VIEW Infinita AS WITH RECURSIVE n(Testo) AS (SELECT 1 UNION ALL SELECT Testo+1 FROM n) "
                "SELECT Testo FROM n"_s);
    Data d;
    for (const auto &[sorgente, limite] :
         {std::pair(u"Infinita"_s, 70), std::pair(u"Select * from Infinita"_s, 3), std::pair(u"radio"_s, 3)}) {
        d.limite = limite;
        EXPECT_EQ(apri(d, sorgente).RecordCount(), limite) << sorgente.toStdString();
    }
    Fratello(percorso()).esegui(u"CREATE VIEW Muta AS SELECT * FROM Infinita WHERE Testo < 0"_s);
    EXPECT_EQ(numeroDi([&] { apri(d, u"Muta"_s); }), 3000);
    EXPECT_EQ(leggiRiga(cartella(), u"Infinita"_s).testo(u"Testo"), u"1"_s);
}

TEST_F(RigaTest, GliElenchiDiUnDataSonoAvvisatiFinoAllaLoroFine) {
    Data d;
    QString avvisi;
    const QObject primo;
    auto secondo = std::make_unique<QObject>();
    d.seAggiornato(primo, [&] { avvisi += d.aperto() ? u'1' : u'-'; });
    d.seAggiornato(*secondo, [&] { avvisi += u'2'; });
    apri(d, u"radio"_s);
    secondo.reset();
    d.Refresh();
    d.RecordSource = u"assente"_s;
    EXPECT_EQ(numeroDi([&] { d.Refresh(); }), 3078);
    EXPECT_EQ(avvisi, u"121-"_s);
}

TEST(Messaggi, UnTestoLunghissimoSiAccorcia) {
    EXPECT_EQ(accorciato(u"breve"_s), u"breve"_s);
    const QString lungo = accorciato(QString(1'000'000, u'a') + u"fine"_s, 30);
    EXPECT_EQ(lungo.size(), 30);
    EXPECT_TRUE(lungo.endsWith(u"fine"_s));
}

} // namespace
} // namespace zuvora::prova
