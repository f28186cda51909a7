// Music, ticker, radio stations, weather.
#include "content/forms/Form3.h"
#include "content/forms/PaginaMusica.h"
#include "content/forms/PaginaRadio.h"
#include "content/forms/PaginaScorrevole.h"
#include "kit/Stanza.h"
#include "store/Ostacoli.h"

namespace zuvora {
namespace {

using ProvaPagine = Stanza;

TEST_F(ProvaPagine, TheTickerKeepsItsLines) {
    i.esegui(u"UPDATE Configurazione SET StringaScorrevole='uno' || char(13,10) || 'due'"_s);
    PaginaAperta<PaginaScorrevole> aperta(i);
    auto &testo = trova<EditMultilinea>(aperta, "testo");
    testo.setFocus();
    QTest::keyClick(&testo, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(&testo, Qt::Key_Return);
    QTest::keyClicks(&testo, u"tre"_s);
    for (const QString &atteso : {u"uno\r\ndue\r\ntre"_s, QString()}) {
        clic(aperta, "salva6");
        EXPECT_EQ(riga(u"StringaScorrevole"_s).toString(), atteso);
        EXPECT_TRUE(conSpunta(trova<Button>(aperta, "salva6")));
        testo.setText({});
    }
    i.esegui(u"UPDATE Configurazione SET StringaScorrevole=NULL"_s);
    aperta.pagina.apri();
    EXPECT_EQ(testo.text(), QString());
}

TEST_F(ProvaPagine, TheTrialMovesAndEndsWithThePage) {
    PaginaAperta<PaginaScorrevole> aperta(i);
    auto &mostrato = trova<QLineEdit>(aperta, "Text1");
    trova<EditMultilinea>(aperta, "testo").setText(u"AB"_s);
    clic(aperta, "PushButton3");
    EXPECT_TRUE(aspetta([&] { return mostrato.text() == QString(29, u' ') + u"AB "_s; }));
    EXPECT_TRUE(aspetta([&] { return mostrato.text() == QString(28, u' ') + u"AB  "_s; }));
    EXPECT_FALSE(mostrato.hasFocus());
    aperta.pagina.nascondi();
    aperta.pagina.apri();
    mostrato.setText(u"x"_s); // until the next turn
    EXPECT_TRUE(aspetta([&] { return mostrato.text().isEmpty(); }));
    clic(aperta, "PushButton3");
    EXPECT_TRUE(aspetta([&] { return !mostrato.text().isEmpty(); }));
}

TEST_F(ProvaPagine, AnEmptyMusicFolderKeepsTheStoredOne) {
    i.esegui(u"UPDATE Configurazione SET cartellamp3=NULL"_s);
    PaginaAperta<PaginaMusica> aperta(i);
    EXPECT_EQ(trova<QLineEdit>(aperta, "FE1(1)").text(), QString());
    i.dialoghi.cartelle = {u"/musica/sala"_s, std::nullopt};
    clic(aperta, "CBT(2)");
    clic(aperta, "CBT(2)"); // cancelled
    clic(aperta, "Salva5");
    EXPECT_EQ(riga(u"cartellamp3"_s), u"/musica/sala"_s);
    digita(aperta, "FE1(1)", {});
    clic(aperta, "Salva5");
    EXPECT_EQ(riga(u"cartellamp3"_s), u"/musica/sala"_s);
}

struct ProvaRadio : Stanza {
    ProvaRadio() {
        i.esegui(u"DELETE FROM radio; INSERT INTO radio (NomeRadio, PercorsoURL) VALUES ('Zeta', 'http://z/'), "
                 "('Alfa', 'http://a/')"_s);
        aperta.emplace(i);
    }
    QString righe() { return i.righe(u"SELECT NomeRadio, PercorsoURL FROM radio ORDER BY NomeRadio"_s).join(u' '); }
    Grid &grid() { return trova<Grid>(*aperta, "GridRadio"); }
    std::optional<PaginaAperta<PaginaRadio>> aperta;
};

TEST_F(ProvaRadio, NewChangedAndRefused) {
    const QString altre = u"Alfa|http://a/ %1Zeta|http://z/"_s;
    const struct {
        const char *bottone;
        QString nome, url, detto, dopo, prima = {};
    } passi[] = {
        {"btnRadio(3)", {}, u"http://x/"_s, u"Inserire i dati Utente prima di salvare !"_s, altre.arg(u""_s)},
        {"btnRadio(3)", u"Nuova"_s, {}, u"Inserire il percorso prima di salvare !"_s, altre.arg(u""_s)},
        {"btnRadio(3)", u"aLFa"_s, u"http://x/"_s, u"Voce già presente in archivio !"_s, altre.arg(u""_s)},
        {"btnRadio(3)", u"Onda"_s, u"http://o/"_s, {}, altre.arg(u"Onda|http://o/ "_s)},
        {"btnRadio(1)", u"ONDA"_s, u"http://p/"_s, {}, altre.arg(u"ONDA|http://p/ "_s), u"http://o/"_s},
    };
    for (const auto &passo : passi) {
        QString detto;
        guida.quando("GestioneRadio", [&](QWidget &form) {
            EXPECT_EQ(trova<QLineEdit>(form, "text1(1)").text(), passo.prima);
            digita(form, "text1(0)", passo.nome);
            digita(form, "text1(1)", passo.url);
            if (!passo.detto.isEmpty())
                guida.messaggio(&detto);
            QTest::keyClick(&trova<QLineEdit>(form, "text1(1)"), Qt::Key_Return);
            if (form.isVisible())
                clic(form, "ctButton2(0)");
        });
        clic(*aperta, passo.bottone);
        EXPECT_TRUE(guida.finita());
        EXPECT_EQ(detto, passo.detto);
        EXPECT_EQ(righe(), passo.dopo);
    }
    EXPECT_EQ(grid().testo(grid().Row(), 0), u"ONDA"_s);
}

// A list that could not be read again is empty: nothing of it is taken for the station that is changed next.
TEST_F(ProvaRadio, ALockedDatabaseBetweenSaveAndList) {
    std::optional<prova::AltroProcesso> altro;
    guida.quando("GestioneRadio", [&](QWidget &form) {
        clic(form, "CBT(1)");
        altro.emplace(i.archivio(), "BEGIN EXCLUSIVE");
    });
    clic(*aperta, "btnRadio(1)");
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
    altro.reset();
    for (const char *bottone : {"btnRadio(1)", "btnRadio(2)", "btnRadio(4)"})
        clic(*aperta, bottone);
    aperta->pagina.apri();
    EXPECT_EQ(grid().Rows(), 2);
}

TEST_F(ProvaRadio, TriedAndDeleted) {
    grid().seleziona(1);
    guida.quando("AnteprimaRadio", [](QWidget &form) {
        EXPECT_EQ(scritto(form, "nome"), u"Zeta"_s);
        form.close();
    });
    clic(*aperta, "btnRadio(4)");
    EXPECT_EQ(cancella(*aperta, "btnRadio(2)"), u"Voce cancellata !"_s);
    EXPECT_EQ(righe(), u"Alfa|http://a/"_s);
    EXPECT_EQ(grid().Rows(), 1);
}

struct ProvaMeteo : Stanza {
    auto apri() { return apriForm<Form3>(i.ambiente, u"https://meteo.example"_s, nullptr); }
};

TEST_F(ProvaMeteo, EveryKeySearchesAndTheTownIsStored) {
    const auto form = apri();
    auto &grid = trova<Grid>(*form, "grid");
    auto &cerca = trova<QLineEdit>(*form, "Text4");
    auto &codice = trova<QLineEdit>(*form, "FE1");
    clic(*form, "CBT(2)"); // "0000" is not stored
    EXPECT_EQ(riga(u"meteo"_s), QVariant());
    cerca.setFocus();
    EXPECT_EQ(grid.Rows(), 7896);
    QTest::keyClicks(&cerca, u"aquila"_s); // at the beginning of a name
    EXPECT_EQ(grid.Rows(), 1);
    digita(*form, "Text4", u"l'aquil"_s);
    ASSERT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.testo(0, 1), u"L'Aquila"_s);
    QTest::keyClick(&cerca, Qt::Key_Return); // as "Prova Comune Tabella"
    EXPECT_EQ(codice.text(), grid.testo(0, 0));
    EXPECT_EQ(premi(*form, "CBT(2)"), u"Impostazioni Meteo aggiornate !"_s);
    EXPECT_EQ(cerca.text(), QString());
    EXPECT_EQ(grid.Rows(), 7896);
    EXPECT_EQ(trova<QLineEdit>(*apri(), "FE1").text(), codice.text());
}

TEST_F(ProvaMeteo, WithoutTownsACodeCanStillBeStored) {
    for (const QString &sql : {u"DELETE FROM ComuniMeteo"_s, u"DROP TABLE ComuniMeteo"_s}) {
        i.esegui(sql);
        const auto form = apri();
        digita(*form, "Text4", u"roma"_s); // told once, not at each key
        EXPECT_EQ(i.dialoghi.prendiBox().size(), sql.startsWith(u"DROP"_s) ? 1U : 0U);
        EXPECT_EQ(trova<Grid>(*form, "grid").Rows(), 0);
        const QString prima = trova<QLineEdit>(*form, "FE1").text();
        clic(*form, "CBT(3)");
        EXPECT_EQ(trova<QLineEdit>(*form, "FE1").text(), prima);
        digita(*form, "FE1", u"58"_s);
        premi(*form, "CBT(2)");
        EXPECT_EQ(riga(u"MeteoCode"_s), u"58"_s);
    }
}

} // namespace
} // namespace zuvora
