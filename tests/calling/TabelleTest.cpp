#include "calling/logic/Postazioni.h"
#include "calling/logic/Servizi.h"
#include "calling/logic/Suoni.h"
#include "store/Archivio.h"

namespace zuvora {
namespace {

using namespace Qt::Literals::StringLiterals;
using prova::Fratello;

class ProvaTabelle : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(f.esegui("CREATE TABLE Servizi(ID INTEGER PRIMARY KEY, Servizio TEXT, ServizioAttivo BOOLEAN, "
                           "Percorsofoto TEXT);"
                           "INSERT INTO Servizi VALUES(2,'Cassa',1,'foto.png'),(1,'nessun SERVIZIO',0,''),"
                           "(3,'Esami',0,''),(4,NULL,NULL,NULL);"
                           "CREATE TABLE PostazioneUtente(Posto1SS, Posto2SS, Posto3SS, Posto4SS, Posto5SS, Posto6SS, "
                           "Posto7SS, Posto8SS, Posto9SS, Posto10SS);"
                           "INSERT INTO PostazioneUtente(Posto1SS, Posto2SS, Posto3SS, Posto10SS)"
                           "VALUES('SG', 'ST', 'sg', 'ST');"
                           "CREATE TABLE Configurazione(dindon TEXT, PlayDinDon BOOLEAN);"
                           "INSERT INTO Configurazione VALUES(NULL, NULL);"
                           "CREATE TABLE DinDon(ID INTEGER PRIMARY KEY, DinDon TEXT);"
                           "INSERT INTO DinDon VALUES(1, NULL)"),
                  SQLITE_OK);
    }
    QString riga(const char *id) {
        return f.leggi(QByteArray("SELECT quote(Servizio)||','||quote(ServizioAttivo)||','||quote(Percorsofoto) FROM "
                                  "Servizi WHERE ID=")
                           .append(id)
                           .constData());
    }
    Recordset &servizi() { return apri(Data8, cartella(), SorgenteServizi.toString()); }
    QString cartella() const { return m_cartella.path(); }

    QTemporaryDir m_cartella;
    Fratello f{m_cartella.filePath(u"Zuvora.mdb"_s)};
    Data Data1;
    Data Data8;
};

TEST_F(ProvaTabelle, UnServizioSiAccendeSpegneELibera) {
    EXPECT_EQ(contaAttivi(Data1, cartella()), 1);
    Recordset &s = servizi(); // on row 1, which is free
    EXPECT_FALSE(scambiaStato(s));
    EXPECT_EQ(riga("1"), u"'nessun SERVIZIO',0,''"_s);
    s.SetAbsolutePosition(3); // Null counts as named and off
    EXPECT_TRUE(scambiaStato(s));
    EXPECT_EQ(riga("4"), u"NULL,1,NULL"_s);
    EXPECT_EQ(contaAttivi(Data1, cartella()), 2);
    s.SetAbsolutePosition(1);
    EXPECT_TRUE(scambiaStato(s));
    EXPECT_EQ(riga("2"), u"'Cassa',0,'foto.png'"_s);
    liberaServizio(s);
    EXPECT_EQ(riga("2"), u"'Nessun Servizio',0,''"_s);
    scriviServizio(s, u"L'\"altro\" 100%"_s, true);
    EXPECT_EQ(riga("2"), u"'L''\"altro\" 100%',1,''"_s);
    f.esegui("UPDATE Servizi SET ServizioAttivo=0");
    EXPECT_EQ(contaAttivi(Data1, cartella()), 0);
}

// The row that was opened is the row that is written, whatever another program did meanwhile.
TEST_F(ProvaTabelle, LaRigaApertaELaRigaScritta) {
    Recordset &s = servizi();
    s.SetAbsolutePosition(2);
    f.esegui("DELETE FROM Servizi WHERE ID=1; UPDATE Servizi SET Servizio='Altro nome' WHERE ID=3");
    scriviServizio(s, u"Prelievi"_s, true);
    EXPECT_EQ(riga("3"), u"'Prelievi',1,''"_s);
    EXPECT_EQ(riga("2"), u"'Cassa',1,'foto.png'"_s);
    f.esegui("DELETE FROM Servizi WHERE ID=3");
    EXPECT_THROW(scriviServizio(s, u"Nulla"_s, true), EngineError);
    EXPECT_EQ(f.leggi("SELECT count(*) FROM Servizi"), u"2"_s);
}

TEST_F(ProvaTabelle, OgniPostazioneHaIlSuoTipo) {
    EXPECT_EQ(leggiPostazioni(cartella()), (std::array<int, numeroPostazioni>{0, 3, -1, -1, -1, -1, -1, -1, -1, 19}));
    for (int i = 0; i < 2 * numeroPostazioni; ++i) {
        ImpostaPostazione(cartella(), i);
        EXPECT_EQ(leggiPostazioni(cartella())[std::size_t(i / 2)], i);
    }
    EXPECT_EQ(f.leggi("SELECT Posto1SS||Posto10SS FROM PostazioneUtente"), u"STST"_s);
    EXPECT_THROW(ImpostaPostazione(cartella(), 20), std::out_of_range);
    EXPECT_THROW(ImpostaPostazione(cartella(), -1), std::out_of_range);
}

TEST_F(ProvaTabelle, IlPercorsoDelSuonoSiTagliaPerPosto) {
    const struct {
        QStringView scelto;
        QStringView salvato;
    } casi[] = {
        {u"C:\\Suoni\\din.wav", u"\\\\PC1\\Suoni\\din.wav"},
        {u"\\\\PC2\\Suoni\\din.wav", u"\\\\PC1PC2\\Suoni\\din.wav"},
        {u"suoni\\din.wav", u"\\\\PC1oni\\din.wav"},
        {u"d", u"\\\\PC1"},
    };
    for (const auto &[scelto, salvato] : casi)
        EXPECT_EQ(percorsoSuono(scelto, u"PC1"), salvato);
}

TEST_F(ProvaTabelle, SuonoPredefinitoEUso) {
    Recordset &suoni = apri(Data1, cartella(), SorgenteSuoni.toString());
    EXPECT_EQ(suonoCorrente(suoni), u""_s);
    aggiungiSuono(suoni, u"\\\\PC1\\din.wav"_s);
    EXPECT_EQ(f.leggi("SELECT DinDon FROM DinDon WHERE ID=2"), u"\\\\PC1\\din.wav"_s);
    EXPECT_FALSE(leggiUsoSuono(cartella()));
    salvaUsoSuono(cartella(), true);
    salvaSuonoPredefinito(cartella(), u"x"_s);
    EXPECT_TRUE(leggiUsoSuono(cartella()));
    EXPECT_EQ(f.leggi("SELECT dindon||PlayDinDon FROM Configurazione"), u"x1"_s);
}

} // namespace
} // namespace zuvora
