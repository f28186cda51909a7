#include "content/Premi.h"
#include "content/forms/Form3.h"
#include "kit/InstallazioneProva.h"
#include "store/Ostacoli.h"

#include <QLineEdit>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct ProvaMeteo : testing::Test {
    std::unique_ptr<Form3> apri() {
        auto form = std::make_unique<Form3>(i.ambiente, u"https://meteo.example"_s, nullptr);
        form->show();
        return form;
    }
    QString riga(const QString &colonna) {
        return i.valore(u"SELECT "_s + colonna + u" FROM Configurazione"_s).toString();
    }
    InstallazioneProva i;
};

TEST_F(ProvaMeteo, EveryKeySearchesAndTheTownIsStored) {
    const auto form = apri();
    auto &grid = trova<Grid>(*form, "grid");
    auto &cerca = trova<QLineEdit>(*form, "Text4");
    auto &codice = trova<QLineEdit>(*form, "FE1");
    EXPECT_EQ(codice.text(), u"0000"_s);
    EXPECT_EQ(grid.Rows(), 7896);
    int prima = grid.Rows();
    for (const QChar c : u"l'aquil"_s) {
        QTest::keyClicks(&cerca, QString(c));
        EXPECT_LE(grid.Rows(), prima);
        prima = grid.Rows();
    }
    ASSERT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.testo(0, 1), u"L'Aquila"_s);
    QTest::keyClick(&cerca, Qt::Key_Return); // as "Prova Comune Tabella"
    EXPECT_EQ(codice.text(), grid.testo(0, 0));
    const QString scelto = codice.text();
    EXPECT_EQ(premi(*form, "CBT(2)"), u"Impostazioni Meteo aggiornate !"_s);
    EXPECT_EQ(cerca.text(), QString());
    EXPECT_EQ(grid.Rows(), 7896);
    EXPECT_EQ(riga(u"MeteoCode"_s), scelto);
    EXPECT_TRUE(
        riga(u"meteo"_s).startsWith(u"https://meteo.example/box/previsioni.php?citta="_s + scelto + u"&type="_s));
    EXPECT_EQ(trova<QLineEdit>(*apri(), "FE1").text(), scelto);
}

TEST_F(ProvaMeteo, NoCodeIsNotStoredAndATypedOneIs) {
    const auto form = apri();
    auto &codice = trova<QLineEdit>(*form, "FE1");
    for (const QString &testo : {u"0000"_s, u""_s, u"abc"_s}) {
        codice.setText(testo);
        clic(*form, "CBT(2)");
        EXPECT_EQ(i.valore(u"SELECT meteo FROM Configurazione"_s), QVariant());
    }
    codice.setText(u"99"_s);
    premi(*form, "CBT(2)");
    EXPECT_EQ(riga(u"MeteoCode"_s), u"99"_s);
}

TEST_F(ProvaMeteo, WithoutTownsACodeCanStillBeStored) {
    for (const QString &sql : {u"DELETE FROM ComuniMeteo"_s, u"DROP TABLE ComuniMeteo"_s}) {
        i.esegui(sql);
        const auto form = apri();
        EXPECT_EQ(i.dialoghi.prendiBox().size(), sql.startsWith(u'D') && sql.contains(u"TABLE"_s) ? 1U : 0U);
        EXPECT_EQ(trova<Grid>(*form, "grid").Rows(), 0);
        clic(*form, "CBT(3)");
        EXPECT_EQ(trova<QLineEdit>(*form, "FE1").text(), sql.contains(u"TABLE"_s) ? u"58"_s : u"0000"_s);
        trova<QLineEdit>(*form, "FE1").setText(u"58"_s);
        premi(*form, "CBT(2)");
        EXPECT_EQ(riga(u"MeteoCode"_s), u"58"_s);
    }
}

TEST_F(ProvaMeteo, ALockedDatabaseKeepsWhatWasTyped) {
    const auto form = apri();
    trova<QLineEdit>(*form, "FE1").setText(u"58"_s);
    QTest::keyClicks(&trova<QLineEdit>(*form, "Text4"), u"rom"_s);
    {
        const prova::AltroProcesso altro(i.archivio(), "BEGIN IMMEDIATE");
        clic(*form, "CBT(2)");
    }
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
    EXPECT_EQ(trova<QLineEdit>(*form, "Text4").text(), u"rom"_s);
    EXPECT_EQ(i.valore(u"SELECT meteo FROM Configurazione"_s), QVariant());
}

TEST_F(ProvaMeteo, Aspetto) {
    i.esegui(u"UPDATE Configurazione SET meteo='https://meteo.example/', MeteoCode='058091'"_s);
    const auto form = apri();
    EXPECT_EQ(didascalieTagliate(*form), QStringList());
    EXPECT_EQ(campiSenzaNome(*form), QStringList());
    fotografa(*form);
}

} // namespace
} // namespace zuvora
