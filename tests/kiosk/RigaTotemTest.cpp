#include "kiosk/logic/RigaTotem.h"
#include "kiosk/DueArchivi.h"
#include "kiosk/logic/Aspetto.h"

#include <QDate>

namespace zuvora::prova {
namespace {

class Totem : public DueArchivi {
protected:
    void SetUp() override {
        DueArchivi::SetUp();
        esegui(zuvora(),
               u"INSERT INTO ConfigurazioneTotem VALUES(2,'/totem','/s.jpg','Titolo','Tahoma','36','255',1,0,"
               "'Verdana','18','0',0,1,'Courier','20','65280',1,1,1,0);"
               "INSERT INTO Servizi(ID,Servizio,ServizioAttivo) VALUES(1,'Cassa',1),(2,'Esami',0),(3,NULL,1)"_s);
    }
    void imposta(const QString &assegni) { esegui(zuvora(), u"UPDATE ConfigurazioneTotem SET "_s + assegni); }
    QString riga() { return esegui(zuvora(), u"SELECT * FROM ConfigurazioneTotem"_s).value(0); }
    // All boxes as the load left them.
    static QStringList mostrati(const RigaTotem &a) {
        QStringList testi;
        for (std::size_t i = 0; i < colonneTotem.size(); ++i)
            testi << a.contenuto()[static_cast<CampoTotem>(i)];
        return testi;
    }
};

constexpr QStringView piena = u"2|/totem|/s.jpg|Titolo|Tahoma|36|255|1|0|Verdana|18|0|0|1|Courier|20|65280|1|1|1|0";
constexpr QStringView prima = u"|||||Arial|10|0|0|0|Arial|10|0|0|0|Arial|10|0|0|0|0|0";

TEST_F(Totem, EveryColumnGoesToItsBoxAndBack) {
    RigaTotem a(cartella());
    a.carica();
    EXPECT_FALSE(a.guasto());
    EXPECT_EQ(mostrati(a).join(u'|'), piena.toString());
    EXPECT_EQ(a.servizi(), (QStringList{u"Cassa"_s, u""_s}));

    // What the boxes show is saved, whatever another program wrote meanwhile.
    imposta(u"TitoloTotem='altro',TestoVisibile=0"_s);
    a.salva(a.contenuto());
    EXPECT_EQ(riga(), piena.toString());

    // Every box gets a value of its own; the row must hold them column by column.
    ContenutoTotem adesso;
    const QStringList valori = u"3|/q|/r|T|A|1|11|0|1|B|2|22|1|0|C|3|33|0|0|0|1"_s.split(u'|');
    for (std::size_t i = 0; i < colonneTotem.size(); ++i)
        adesso[static_cast<CampoTotem>(i)] = valori[static_cast<int>(i)];
    a.salva(adesso);
    EXPECT_EQ(riga(), valori.join(u'|'));
    RigaTotem dopo(cartella());
    dopo.carica();
    EXPECT_EQ(mostrati(dopo), valori);
}

TEST_F(Totem, NullShowsAnEmptyBoxButASizeItsFirstValue) {
    imposta(u"RisoluzioneTotem=NULL,SfondoTotem=NULL,FontTitolo=NULL,FontSizeTitolo=NULL,FontForecolorTitolo=NULL,"
            "FontBoldTitolo=NULL,DataVisibile=NULL"_s);
    RigaTotem a(cartella());
    a.carica();
    EXPECT_EQ(mostrati(a).join(u'|'), u"|/totem||Titolo||10||0|0|Verdana|18|0|0|1|Courier|20|65280|1|1|1|0"_s);
}

TEST_F(Totem, AScreenThatIsNoneOfTheFourStaysUntilOneIsChosen) {
    for (const QString &stored : {u"7"_s, u"NULL"_s, u"-1"_s}) {
        imposta(u"RisoluzioneTotem="_s + stored);
        RigaTotem a(cartella());
        a.carica();
        ContenutoTotem adesso = a.contenuto();
        EXPECT_EQ(adesso[CampoTotem::RisoluzioneTotem], u""_s);
        adesso[CampoTotem::TitoloTotem] = u"nuovo"_s;
        a.salva(adesso);
        EXPECT_EQ(esegui(zuvora(), u"SELECT RisoluzioneTotem, TitoloTotem FROM ConfigurazioneTotem"_s).value(0),
                  stored + u"|nuovo"_s);
    }
}

TEST_F(Totem, WithoutServicesTheLoadStopsAndTheSaveKeepsWhatWasNotShown) {
    esegui(zuvora(), u"UPDATE Servizi SET ServizioAttivo=0"_s);
    RigaTotem a(cartella());
    a.carica();
    EXPECT_FALSE(a.guasto());
    EXPECT_EQ(mostrati(a).join(u'|'), u"2|/totem|||Arial|10|0|0|0|Arial|10|0|0|0|Arial|10|0|0|0|0|0"_s);
    ContenutoTotem adesso = a.contenuto();
    a.salva(adesso);
    EXPECT_EQ(riga(), piena.toString());

    adesso[CampoTotem::FontTitolo] = u"Verdana"_s;
    adesso[CampoTotem::PercorsoReteTotem] = u""_s;
    adesso[CampoTotem::DataVisibile] = u"1"_s;
    a.salva(adesso);
    const QString dopo = u"2||/s.jpg|Titolo|Verdana|36|255|1|0|Verdana|18|0|0|1|Courier|20|65280|1|1|1|1"_s;
    EXPECT_EQ(riga(), dopo);
    // What was written once belongs to the form: taken back, it is written back.
    adesso[CampoTotem::FontTitolo] = u"Arial"_s;
    a.salva(adesso);
    EXPECT_EQ(riga(), QString(dopo).replace(u"Titolo|Verdana"_s, u"Titolo|Arial"_s));
}

TEST_F(Totem, AFileThatGoesDuringTheLoadEmptiesThePathInTheBoxAloneAnotherFailureDoesNot) {
    for (const bool file : {true, false}) {
        RigaTotem a(cartella());
        a.caricaInizio();
        ASSERT_TRUE(a.caricaServizi());
        if (file)
            ASSERT_TRUE(QFile::rename(zuvora(), zuvora() + u"x"_s));
        else
            esegui(zuvora(), u"ALTER TABLE ConfigurazioneTotem RENAME TO Altra"_s);
        a.caricaResto();
        ASSERT_TRUE(a.guasto());
        EXPECT_EQ(a.contenuto()[CampoTotem::PercorsoReteTotem], file ? u""_s : u"/totem"_s);
        EXPECT_EQ(a.contenuto()[CampoTotem::FontTitolo], u"Arial"_s);
        if (!file)
            break;
        ASSERT_TRUE(QFile::rename(zuvora() + u"x"_s, zuvora()));
        a.salva(a.contenuto());
        EXPECT_EQ(riga(), piena.toString());
    }
}

TEST_F(Totem, AnOlderDatabaseGainsItsTwoColumns) {
    const std::vector<std::pair<QStringList, QString>> casi = {{{u"DataVisibile"_s, u"TestoVisibile"_s}, u"|0|0"_s},
                                                               {{u"DataVisibile"_s}, u"|1|0"_s},
                                                               {{u"TestoVisibile"_s}, u"|0|1"_s}};
    for (const auto &[mancanti, mostrate] : casi) {
        for (const QString &colonna : mancanti)
            esegui(zuvora(), u"ALTER TABLE ConfigurazioneTotem DROP COLUMN "_s + colonna);
        RigaTotem a(cartella());
        a.carica();
        EXPECT_FALSE(a.guasto());
        EXPECT_EQ(mostrati(a).join(u'|'), piena.chopped(4).toString() + mostrate);
        EXPECT_EQ(esegui(zuvora(), u"SELECT name, type FROM pragma_table_info('ConfigurazioneTotem') "
                                   "WHERE name LIKE '%Visibile' ORDER BY name DESC"_s),
                  (QStringList{u"TestoVisibile|BOOLEAN"_s, u"DataVisibile|BOOLEAN"_s}));
        imposta(u"TestoVisibile=1,DataVisibile=1"_s);
    }
}

TEST_F(Totem, AMissingOldColumnEndsTheLoadWithTheBoxesFilledSoFar) {
    esegui(zuvora(), u"ALTER TABLE ConfigurazioneTotem DROP COLUMN FontData"_s);
    RigaTotem a(cartella());
    a.carica();
    ASSERT_TRUE(a.guasto());
    EXPECT_EQ(a.guasto()->numero(), Errore::ColonnaNonTrovata);
    EXPECT_EQ(a.contenuto()[CampoTotem::FontTitolo], u"Tahoma"_s);
    EXPECT_EQ(a.contenuto()[CampoTotem::FontSize], u"10"_s);

    esegui(zuvora(), u"ALTER TABLE Servizi RENAME TO Altri"_s);
    RigaTotem b(cartella());
    b.carica();
    EXPECT_TRUE(b.guasto()) << "no services for another reason than that none is active";
    EXPECT_EQ(b.contenuto()[CampoTotem::PercorsoReteTotem], u"/totem"_s);
}

TEST_F(Totem, WithoutItsRowNothingOpensAndNothingIsWritten) {
    esegui(zuvora(), u"DELETE FROM ConfigurazioneTotem"_s);
    RigaTotem a(cartella());
    EXPECT_EQ(numeroErrore([&] { a.carica(); }), 3021);
    EXPECT_EQ(numeroErrore([&] { leggiAspetto(cartella()); }), 3021);
}

TEST_F(Totem, TheLookIsTheStoredRow) {
    imposta(u"FontTitolo=NULL,FontSizeTitolo='grande',FontForecolorData='rosso',FontForecolor=''"_s);
    const AspettoTotem aspetto = leggiAspetto(cartella());
    EXPECT_EQ(aspetto.stileTitolo.font, u"Arial"_s);
    EXPECT_EQ(aspetto.stileTitolo.colore, 255);
    EXPECT_TRUE(aspetto.stileTitolo.grassetto);
    EXPECT_FALSE(aspetto.stileTitolo.italico);
    EXPECT_FALSE(aspetto.stileData.grassetto);
    EXPECT_TRUE(aspetto.stileData.italico);
    EXPECT_FALSE(aspetto.stilePulsanti.coloreDato);
    EXPECT_EQ(aspetto.rifiutati, (QStringList{u"misura del font del titolo"_s, u"colore della data"_s}));
}

TEST_F(Totem, SizesAndColoursBecomeWholeNumbersWithinTheirBounds) {
    struct Caso {
        const char *assegno;
        int atteso;
        bool rifiutato = false;
    };
    for (const Caso &caso : std::initializer_list<Caso>{{"FontSize='19,5'", 20},
                                                        {"FontSize='18,5'", 18},
                                                        {"FontSize=NULL", 10},
                                                        {"FontSize='0'", 10, true},
                                                        {"FontSize='1000'", 1000},
                                                        {"FontSize='1001'", 10, true},
                                                        {"FontSize='1e30'", 10, true},
                                                        {"FontForecolor='-5'", -5},
                                                        {"FontForecolor=NULL", 0},
                                                        {"FontForecolor='3e9'", 0, true}}) {
        imposta(u"FontSize='12',FontForecolor='12'"_s);
        imposta(QString::fromLatin1(caso.assegno));
        const AspettoTotem aspetto = leggiAspetto(cartella());
        const StileTotem &stile = aspetto.stilePulsanti;
        EXPECT_EQ(QLatin1String(caso.assegno).startsWith(u"FontSize"_s) ? stile.misura : stile.colore, caso.atteso)
            << caso.assegno;
        EXPECT_EQ(!aspetto.rifiutati.isEmpty(), caso.rifiutato) << caso.assegno;
        EXPECT_TRUE(stile.coloreDato) << caso.assegno;
    }
}

TEST(DataTotem, IsInItalianWords) {
    EXPECT_EQ(dataInParole(QDate(2018, 3, 5)), u"lunedì 05 marzo 2018"_s);
    EXPECT_EQ(dataInParole(QDate(2026, 11, 29)), u"domenica 29 novembre 2026"_s);
}

} // namespace
} // namespace zuvora::prova
