#include "calling/logic/Postazioni.h"
#include "calling/logic/Servizi.h"
#include "calling/logic/Suoni.h"
#include "kit/Fratello.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zuvora {
namespace {

using namespace Qt::Literals::StringLiterals;

class ProvaTabelle : public testing::Test {
protected:
    void SetUp() override {
        f.esegui(u"CREATE TABLE Servizi(ID INTEGER PRIMARY KEY, Servizio TEXT, ServizioAttivo BOOLEAN, "
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
                 "INSERT INTO DinDon VALUES(1, NULL)"_s);
    }
    QString leggi(const QString &sql) { return f.valore(sql).toString(); }
    QString riga(int id) {
        return leggi(u"SELECT quote(Servizio)||','||quote(ServizioAttivo)||','||quote(Percorsofoto) FROM Servizi "
                     "WHERE ID=%1"_s.arg(id));
    }
    Recordset &servizi() { return apri(Data8, cartella(), sorgenteServizi.toString()); }
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
    EXPECT_EQ(riga(1), u"'nessun SERVIZIO',0,''"_s);
    s.SetAbsolutePosition(3); // Null counts as named and off
    EXPECT_TRUE(scambiaStato(s));
    EXPECT_EQ(riga(4), u"NULL,1,NULL"_s);
    EXPECT_EQ(contaAttivi(Data1, cartella()), 2);
    s.SetAbsolutePosition(1);
    EXPECT_TRUE(scambiaStato(s));
    EXPECT_EQ(riga(2), u"'Cassa',0,'foto.png'"_s);
    liberaServizio(s);
    EXPECT_EQ(riga(2), u"'Nessun Servizio',0,''"_s);
    scriviServizio(s, u"L'\"altro\" 100%"_s, true);
    EXPECT_EQ(riga(2), u"'L''\"altro\" 100%',1,''"_s);
    f.esegui(u"UPDATE Servizi SET ServizioAttivo=0"_s);
    EXPECT_EQ(contaAttivi(Data1, cartella()), 0);
}

// The row that was opened is the row that is written, whatever another program did meanwhile.
TEST_F(ProvaTabelle, LaRigaApertaELaRigaScritta) {
    Recordset &s = servizi();
    s.SetAbsolutePosition(2);
    f.esegui(u"DELETE FROM Servizi WHERE ID=1; UPDATE Servizi SET Servizio='Altro nome' WHERE ID=3"_s);
    scriviServizio(s, u"Prelievi"_s, true);
    EXPECT_EQ(riga(3), u"'Prelievi',1,''"_s);
    EXPECT_EQ(riga(2), u"'Cassa',1,'foto.png'"_s);
    f.esegui(u"DELETE FROM Servizi WHERE ID=3"_s);
    EXPECT_THROW(scriviServizio(s, u"Nulla"_s, true), EngineError);
    EXPECT_EQ(leggi(u"SELECT count(*) FROM Servizi"_s), u"2"_s);
}

TEST_F(ProvaTabelle, OgniPostazioneHaIlSuoTipo) {
    EXPECT_EQ(leggiPostazioni(cartella()), (std::array<int, numeroPostazioni>{0, 3, -1, -1, -1, -1, -1, -1, -1, 19}));
    for (int i = 0; i < 2 * numeroPostazioni; ++i) {
        ImpostaPostazione(cartella(), i);
        EXPECT_EQ(leggiPostazioni(cartella())[std::size_t(i / 2)], i);
    }
    EXPECT_EQ(leggi(u"SELECT Posto1SS||Posto10SS FROM PostazioneUtente"_s), u"STST"_s);
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
    Recordset &suoni = apri(Data1, cartella(), sorgenteSuoni.toString());
    EXPECT_EQ(suonoCorrente(suoni), u""_s);
    aggiungiSuono(suoni, u"\\\\PC1\\din.wav"_s);
    EXPECT_EQ(leggi(u"SELECT DinDon FROM DinDon WHERE ID=2"_s), u"\\\\PC1\\din.wav"_s);
    EXPECT_FALSE(leggiUsoSuono(cartella()));
    salvaUsoSuono(cartella(), true);
    salvaSuonoPredefinito(cartella(), u"x"_s);
    EXPECT_TRUE(leggiUsoSuono(cartella()));
    EXPECT_EQ(leggi(u"SELECT dindon||PlayDinDon FROM Configurazione"_s), u"x1"_s);
}

} // namespace
} // namespace zuvora
