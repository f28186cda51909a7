#include "Composizione.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "pannello/forms/SplasModule.h"

#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaPostazioni : public testing::Test {
protected:
    void SetUp() override {
        i.valori.PercorsoApplicazione = i.cartella();
        i.esegui(u"UPDATE PostazioneUtente SET Posto1SS='ST', Posto2SS=NULL, Posto3SS='altro', Posto10SS='SG'"_s);
        pannello = std::make_unique<SplasModule>(i.ambiente, vociDelPannello(), QUrl(u"https://www.zuvora.example/"_s));
        pannello->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(pannello.get()));
        clicca(*pannello, "PB1(10)");
    }
    int scelto(int postazione) {
        for (int n = 2 * postazione; n < 2 * postazione + 2; ++n)
            if (bottone(n).isChecked())
                return n;
        return -1;
    }
    QRadioButton &bottone(int n) {
        return trova<QRadioButton>(*pannello, u"PosSS(%1)"_s.arg(n).toLatin1().constData());
    }
    QStringList riga() const { return i.righe(u"SELECT * FROM PostazioneUtente"_s); }

    InstallazioneProva i;
    std::unique_ptr<SplasModule> pannello;
};

TEST_F(ProvaPostazioni, MostraQuelloCheCEEScriveUnaColonna) {
    EXPECT_EQ(scelto(0), 1);
    EXPECT_EQ(scelto(1), -1);
    EXPECT_EQ(scelto(2), -1);
    EXPECT_EQ(scelto(9), 18);
    clicca(*pannello, "PosSS(3)");
    EXPECT_EQ(i.valore(u"SELECT Posto2SS FROM PostazioneUtente"_s), u"ST"_s);
    EXPECT_EQ(i.valore(u"SELECT Posto3SS FROM PostazioneUtente"_s), u"altro"_s);
    bottone(3).setFocus();
    QTest::keyClick(&bottone(3), Qt::Key_Left);
    EXPECT_EQ(i.valore(u"SELECT Posto2SS FROM PostazioneUtente"_s), u"SG"_s);
    i.esegui(u"UPDATE PostazioneUtente SET Posto10SS='ST'"_s);
    clicca(*pannello, "PB1(10)");
    EXPECT_EQ(scelto(9), 19);
}

TEST_F(ProvaPostazioni, UnaScritturaFallitaRimetteIlTipo) {
    i.esegui(u"CREATE TRIGGER no BEFORE UPDATE ON PostazioneUtente BEGIN SELECT RAISE(FAIL, 'no'); END"_s);
    clicca(*pannello, "PosSS(0)");
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
    EXPECT_EQ(scelto(0), 1);
}

TEST_F(ProvaPostazioni, Aspetto) {
    EXPECT_EQ(didascalieTagliate(*pannello), QStringList());
    EXPECT_EQ(campiSenzaNome(*pannello), QStringList());
    fotografa(*pannello, u"PaginaClient"_s);
}

} // namespace
} // namespace zuvora
