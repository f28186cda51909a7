// The panel's own pages: resolutions, position, client.
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

struct Pagine : testing::Test {
    InstallazioneProva prova;
    Guida guida;
    SplasModule pannello{prova.ambiente, vociDelPannello(), QUrl(u"https://www.zuvora.example/"_s)};
    QWidget &apriPagina(const char *bottone, const char *pagina) {
        clicca(pannello, bottone);
        return trova<QWidget>(pannello, pagina);
    }
    QString testo(QWidget &pagina, const char *nome) {
        const auto &label = trova<QLabel>(pagina, nome);
        return label.isHidden() ? u"(nascosta)"_s : label.text();
    }
    QVariant colonna(const QString &nome) { return prova.valore(u"SELECT "_s + nome + u" FROM Configurazione"_s); }
};

TEST_F(Pagine, LaRisoluzioneSceltaSiScriveEArrivaAlPannello) {
    QWidget &pagina = apriPagina("PB1(9)", "BoxImpostazioni(0)");
    for (int i = 0; i < 4; ++i) {
        clicca(pagina, QByteArray("RB1(" + QByteArray::number(i) + ")").constData());
        EXPECT_EQ(colonna(u"MisuraFormWH"_s), i + 1);
        EXPECT_EQ(pannello.risoluzione(), i + 1);
    }
}

TEST_F(Pagine, LaPosizioneDiceSeIlSecondoMonitorManca) {
    pannello.show();
    QWidget &pagina = apriPagina("Position", "BoxImpostazioni(4)");
    EXPECT_TRUE(testo(pagina, "Avviso").startsWith(u"Il secondo monitor non è collegato"_s));
    EXPECT_EQ(didascalieTagliate(pannello), QStringList());
    prova.piattaforma.monitors.monitor.emplace_back(1920, 0, 1920, 1080);
    apriPagina("Position", "BoxImpostazioni(4)");
    EXPECT_EQ(testo(pagina, "Avviso"), QString());
}

TEST_F(Pagine, RisoluzioneNonSalvataTornaQuellaDiPrimaAncheNessuna) {
    for (const int prima : {3, 0}) {
        prova.esegui(
            u"DROP TRIGGER IF EXISTS pieno; UPDATE Configurazione SET MisuraFormWH=nullif(%1,0);"
            "CREATE TRIGGER pieno BEFORE UPDATE ON Configurazione BEGIN SELECT RAISE(ABORT,'no'); END"_s.arg(prima));
        SplasModule nuovo(prova.ambiente, vociDelPannello(), QUrl());
        nuovo.show();
        clicca(nuovo, "PB1(9)");
        if (prima == 3) {
            EXPECT_EQ(nuovo.focusWidget(), &trova<QWidget>(nuovo, "RB1(2)"));
        }
        clicca(nuovo, "RB1(0)");
        EXPECT_FALSE(prova.dialoghi.unicoMessaggio().isEmpty());
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(trova<QRadioButton>(nuovo, qPrintable(u"RB1(%1)"_s.arg(i))).isChecked(), i == prima - 1);
        EXPECT_EQ(nuovo.risoluzione(), prima);
    }
}

TEST_F(Pagine, INumeriDegliSchermiApronoIlSito) {
    pannello.show();
    QWidget &pagina = apriPagina("Position", "BoxImpostazioni(4)");
    for (const char *numero : {"Label1(3)", "Label1(4)"})
        QTest::mouseClick(&trova<QWidget>(pagina, numero), Qt::LeftButton);
    EXPECT_EQ(prova.piattaforma.aperti.size(), 2);
}

TEST_F(Pagine, ChiSalvaInSilenzioMostraUnaSpunta) {
    const struct {
        const char *voce;
        const char *pagina;
        const char *controllo;
    } casi[] = {{"Position", "BoxImpostazioni(4)", "PosSchermo(1)"}, {"PB1(9)", "BoxImpostazioni(0)", "RB1(1)"},
                {"PushButton1", "BoxImpostazioni(8)", "CheckBox1"},  {"PB1(10)", "BoxImpostazioni(1)", "PosSS(3)"},
                {"PB1(10)", "BoxImpostazioni(1)", "SaveIP"},         {"IlMenu", nullptr, "cbAutoaccensioneFE"}};
    QWidget *ultimo = nullptr;
    for (const auto &caso : casi) {
        clicca(pannello, caso.voce);
        ultimo = &trova<QWidget>(caso.pagina ? trova<QWidget>(pannello, caso.pagina) : pannello, caso.controllo);
        EXPECT_FALSE(conSpunta(*ultimo)) << caso.controllo;
        clicca(pannello, caso.controllo);
        EXPECT_TRUE(conSpunta(*ultimo)) << caso.controllo;
        EXPECT_EQ(ultimo->accessibleDescription(), u"Salvato"_s) << caso.controllo;
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !conSpunta(*ultimo); }));
    EXPECT_EQ(ultimo->accessibleDescription(), QString());
    prova.esegui(u"CREATE TRIGGER pieno BEFORE UPDATE ON Configurazione BEGIN SELECT RAISE(ABORT,'no'); END"_s);
    clicca(pannello, "cbAutoaccensioneFE");
    EXPECT_FALSE(prova.dialoghi.unicoMessaggio().isEmpty());
    EXPECT_FALSE(conSpunta(*ultimo)) << "nothing was saved";
}

struct CasoPagina {
    std::vector<QRect> monitor;
    QStringList testi; // QMonitor, RisM1, L1, RisM2, L2
    int leftImage2;
};

TEST_F(Pagine, MonitorDellaMacchina) {
    const QString no = u"(nascosta)"_s;
    const CasoPagina casi[] = {
        {{{0, 0, 1920, 1080}}, {u"1"_s, u"1920 x 1080"_s, u"0"_s, no, no}, 1680},
        {{{0, 0, 1920, 1080}, {-1280, 0, 1280, 1024}},
         {u"2"_s, u"1280 x 1024"_s, u"-1280"_s, u"1920 x 1080"_s, u"0"_s},
         600},
        {{{0, 0, 1920, 1080}, {1920, 0, 1920, 1080}, {3840, 0, 1920, 1080}}, {u"3"_s, {}, {}, {}, {}}, 600}};
    for (const CasoPagina &caso : casi) {
        prova.piattaforma.monitors.monitor = caso.monitor;
        QWidget &pagina = apriPagina("PB1(9)", "BoxImpostazioni(0)");
        QStringList testi;
        for (const char *nome : {"QMonitor", "RisM1", "L1", "RisM2", "L2"})
            testi << testo(pagina, nome);
        EXPECT_EQ(testi, caso.testi);
        EXPECT_EQ(trova<PictureBox>(pagina, "Image2").Left(), caso.leftImage2);
    }
    prova.piattaforma.monitors.monitor = {QRect(0, 0, 1280, 720)};
    prova.piattaforma.monitors.scala = 1.5; // a screen has its own pixels
    EXPECT_EQ(testo(apriPagina("PB1(9)", "BoxImpostazioni(0)"), "RisM1"), u"1920 x 1080"_s);
}

TEST_F(Pagine, SchermoDelDesigner) {
    pannello.show();
    QWidget &pagina = apriPagina("Position", "BoxImpostazioni(4)");
    const auto &segno = trova<PictureBox>(pagina, "Image4");
    EXPECT_EQ(segno.Left(), 840);
    clicca(pagina, "PosSchermo(1)");
    EXPECT_EQ(colonna(u"MisuraFormLeft"_s), 1920 * 15 + 20);
    EXPECT_EQ(segno.Left(), 3600);
    clicca(pagina, "PosSchermo(0)");
    EXPECT_EQ(colonna(u"MisuraFormLeft"_s), 0);
    EXPECT_EQ(segno.Left(), 840);
    for (const char *altro : {"NULL", "7", "-300"}) {
        prova.esegui(u"UPDATE Configurazione SET MisuraFormLeft="_s + QString::fromLatin1(altro));
        clicca(pannello, "Position");
        EXPECT_EQ(segno.Left(), 3600) << altro;
    }
}

TEST_F(Pagine, ClientProponeQuestaMacchinaESalva) {
    prova.esegui(u"UPDATE Configurazione SET IPServer='10.0.0.9', ServerName='ALTRO', RHPort='5010', ModoClient=1"_s);
    QWidget &pagina = apriPagina("PB1(10)", "BoxImpostazioni(1)");
    auto &indirizzo = trova<QLineEdit>(pagina, "ipS1");
    auto &porta = trova<QLineEdit>(pagina, "LaPorta");
    EXPECT_EQ(indirizzo.text(), u"192.0.2.7"_s);
    EXPECT_EQ(trova<QLineEdit>(pagina, "NameS1").text(), u"PC-PROVA"_s);
    EXPECT_EQ(porta.text(), u"5010"_s);
    EXPECT_TRUE(trova<QRadioButton>(pagina, "XZ(0)").isChecked());
    porta.clear();
    QTest::keyClicks(&porta, u"7a0 0-0x0"_s);
    indirizzo.setText(u"10.1.1.1"_s);
    trova<QRadioButton>(pagina, "XZ(1)").setChecked(true);
    clicca(pagina, "SaveIP");
    EXPECT_EQ(prova.righe(u"SELECT ModoClient,IPServer,ServerName,RHPort FROM Configurazione"_s),
              QStringList{u"2|10.1.1.1|PC-PROVA|70000"_s});
    clicca(pannello, "PB1(10)");
    EXPECT_EQ(indirizzo.text(), u"192.0.2.7"_s); // what was typed is stored, this machine is proposed again
}

TEST_F(Pagine, ClientSenzaPortaNonScrive) {
    prova.esegui(u"UPDATE Configurazione SET RHPort=NULL, ModoClient=NULL"_s);
    QWidget &pagina = apriPagina("PB1(10)", "BoxImpostazioni(1)");
    EXPECT_EQ(trova<QLineEdit>(pagina, "LaPorta").text(), QString());
    EXPECT_TRUE(trova<QRadioButton>(pagina, "XZ(1)").isChecked());
    const QByteArray prima = prova.contenuto();
    QString righe;
    guida.messaggio(&righe);
    clicca(pagina, "SaveIP");
    EXPECT_EQ(righe, u"Inserire porta di ascolto Server !"_s);
    EXPECT_EQ(prova.contenuto(), prima);
}

} // namespace
} // namespace zuvora
