#include "kiosk/logic/Numerazione.h"
#include "kiosk/DueArchivi.h"
#include "kiosk/logic/ArchivioTotem.h"

namespace zuvora::prova {
namespace {

class Numeri : public DueArchivi {
protected:
    void SetUp() override {
        DueArchivi::SetUp();
        esegui(totem(), u"INSERT INTO Numerazione(P1,P2,P20) VALUES(7,NULL,99);"
                        "INSERT INTO NumerazioneIniziale(P1,P20) VALUES(1,20)"_s);
    }
    QStringList riga(const QString &tabella) {
        return esegui(totem(), u"SELECT * FROM "_s + tabella).value(0).split(u'|');
    }
};

TEST_F(Numeri, BelongToTheServicesByPosition) {
    esegui(zuvora(),
           u"INSERT INTO Servizi(ID,Servizio,ServizioAttivo) VALUES(5,'Quinto',0),(2,'Secondo',1),(9,NULL,1)"_s);
    const ColonnaServizi nomi = nomiServizi(cartella());
    // The order is the query's own; the key orders the table.
    EXPECT_EQ(nomi[0], u"Secondo"_s);
    EXPECT_EQ(nomi[1], u"Quinto"_s);
    EXPECT_EQ(nomi[2], u""_s);
    EXPECT_EQ(nomi[3], u""_s) << "the table has no such row";
    const ColonnaServizi numeri = leggiNumeri(totem(), TabellaNumeri::Numerazione);
    EXPECT_EQ(numeri[0], u"7"_s);
    EXPECT_EQ(numeri[1], u""_s);
    EXPECT_EQ(numeri[19], u"99"_s);
    EXPECT_EQ(leggiNumeri(totem(), TabellaNumeri::NumerazioneIniziale)[19], u"20"_s);
}

TEST_F(Numeri, TheFirstNumbersAreWrittenTogetherOrNotAtAll) {
    ColonnaServizi numeri;
    for (std::size_t i = 0; i < numeri.size(); ++i)
        numeri[i] = QString::number(100 + i);
    scriviNumeriIniziali(totem(), numeri);
    EXPECT_EQ(riga(u"NumerazioneIniziale"_s).value(0), u"100"_s);
    EXPECT_EQ(riga(u"NumerazioneIniziale"_s).value(19), u"119"_s);
    EXPECT_EQ(riga(u"Numerazione"_s).value(0), u"7"_s);
    numeri[0] = u"1"_s;
    numeri[7] = u"123456789012345678901234567890"_s;
    EXPECT_EQ(numeroErrore([&] { scriviNumeriIniziali(totem(), numeri); }), 3421);
    EXPECT_EQ(riga(u"NumerazioneIniziale"_s).value(0), u"100"_s);
}

TEST_F(Numeri, TheKioskIsMissingOnlyWhenItsFileOrFolderIs) {
    EXPECT_FALSE(totemRaggiungibile(cartella() + u"/TotemZuvora.mdb"_s));
    EXPECT_FALSE(totemRaggiungibile(u"/TotemZuvora.mdb"_s)) << "no path is set";
    for (const int numero : {76, 3024, 3044})
        EXPECT_TRUE(percorsoMancante(static_cast<Errore>(numero))) << numero;
    QFile file(totem());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no database, but a text that is long enough to be taken for one at first sight");
    file.close();
    EXPECT_TRUE(totemRaggiungibile(totem())) << "a foreign file is there";
    EXPECT_EQ(numeroErrore([&] { leggiNumeri(totem(), TabellaNumeri::Numerazione); }), 3343);
}

} // namespace
} // namespace zuvora::prova
