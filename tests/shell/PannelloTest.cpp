#include "Composizione.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "pannello/forms/FormUscita.h"
#include "pannello/forms/SplasModule.h"
#include "shell/host/MsgForm.h"
#include "shell/host/Pagina.h"
#include "shell/host/QtPiattaforma.h"

#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QUrl Sito(QStringLiteral("https://www.zuvora.example/"));
constexpr const char *SoloPrincipale[] = {"PB1(2)", "PB1(12)", "PB1(13)"};

struct Pannello : testing::Test {
    InstallazioneProva prova;
    Guida guida;
    std::unique_ptr<SplasModule> pannello;
    SplasModule &apriPannello(std::vector<VoceMenu> voci = vociDelPannello()) {
        pannello = std::make_unique<SplasModule>(prova.ambiente, std::move(voci), Sito);
        pannello->show();
        return *pannello;
    }
    QString testo(const char *label) const { return trova<QLabel>(*pannello, label).text(); }
    QStringList pagineAperte() const {
        QStringList aperte;
        for (const Pagina *p : pannello->findChildren<Pagina *>())
            if (p->aperta())
                aperte << p->objectName();
        return aperte;
    }
};

TEST_F(Pannello, MostraIValoriDellArchivio) {
    prova.esegui(u"UPDATE Configurazione SET MisuraFormWH=2, Nominativo='Server1', TempoChiamata=1"_s);
    apriPannello();
    EXPECT_EQ(testo("Label5"), u"Versione 3.1.11"_s);
    EXPECT_EQ(testo("Label6"), u"del 03 Ottobre 2013"_s);
    EXPECT_EQ(testo("Label9(1)"), u"Server1"_s);
    EXPECT_EQ(testo("Label8"), u"PC-PROVA"_s);
    EXPECT_EQ(pannello->risoluzione(), 2);
    EXPECT_TRUE(trova<QCheckBox>(*pannello, "cbAutoaccensioneFE").isChecked());
    EXPECT_EQ(didascalieTagliate(*pannello), QStringList());
    QTest::mouseClick(&trova<QWidget>(*pannello, "Label1(0)"), Qt::LeftButton);
    EXPECT_EQ(prova.piattaforma.aperti, QList<QUrl>{Sito});
}

TEST_F(Pannello, TuttoNull) {
    prova.esegui(u"UPDATE Versione SET Numero=NULL, Data=NULL"_s);
    QStringList nulle;
    for (const QString &colonna : prova.righe(u"SELECT name FROM pragma_table_info('Configurazione')"_s))
        nulle << u"["_s + colonna + u"]=NULL"_s;
    prova.esegui(u"UPDATE Configurazione SET "_s + nulle.join(u','));
    apriPannello();
    EXPECT_EQ(testo("Label5"), u"n.d."_s);
    EXPECT_EQ(testo("Label6"), u"n.d."_s);
    EXPECT_EQ(testo("Label9(1)"), u"Non definito"_s);
    EXPECT_EQ(pannello->risoluzione(), 0);
    EXPECT_FALSE(trova<QCheckBox>(*pannello, "cbAutoaccensioneFE").isChecked());
    for (const char *nome : SoloPrincipale)
        EXPECT_FALSE(trova<QPushButton>(*pannello, nome).isEnabled()) << nome;
    int attivi = 0;
    const auto voci = vociDelPannello();
    for (const VoceMenu &voce : voci)
        attivi += trova<QPushButton>(*pannello, voce.nome).isEnabled() ? 1 : 0;
    EXPECT_EQ(attivi, int(voci.size()) - int(std::size(SoloPrincipale)));
}

TEST_F(Pannello, OgniVoceApreIlSuoESoloChiHaUnTitoloLoCambia) {
    QStringList aperti;
    auto voci = vociDelPannello();
    for (VoceMenu &voce : voci)
        voce.apri = ApriForm([&, nome = QByteArray(voce.nome)](const Apertura &a) {
            aperti << QString::fromLatin1(nome) + u'=' + trova<QLabel>(*a.padre, "Comando").text();
        });
    apriPannello(voci);
    pannello->setComando(u"prima"_s);
    clicca(*pannello, "PB1(7)");
    EXPECT_EQ(testo("Comando"), u"prima"_s);
    clicca(*pannello, "PushButton2");
    EXPECT_EQ(testo("Comando"), QString()); // the form has closed
    EXPECT_EQ(aperti, (QStringList{u"PB1(7)=prima"_s, u"PushButton2=Gestione Decorazioni"_s}));
}

TEST_F(Pannello, UnaPaginaAllaVolta) {
    apriPannello();
    const struct {
        const char *bottone;
        QString pagina;
        QString titolo;
        int top;
    } passi[] = {{"PB1(9)", u"BoxImpostazioni(0)"_s, u"Risoluzione Video (Monitor/TV)"_s, 1200},
                 {"PB1(10)", u"BoxImpostazioni(1)"_s, u"Modalità Client"_s, 1680},
                 {"Position", u"BoxImpostazioni(4)"_s, u"Posizione Schermi"_s, 1200},
                 {"PB1(9)", u"BoxImpostazioni(0)"_s, u"Risoluzione Video (Monitor/TV)"_s, 1200}};
    for (const auto &passo : passi) {
        clicca(*pannello, passo.bottone);
        EXPECT_EQ(pagineAperte(), QStringList{passo.pagina});
        EXPECT_EQ(testo("Comando"), passo.titolo);
        const auto &pagina = trova<Pagina>(*pannello, passo.pagina.toLatin1().constData());
        EXPECT_EQ(pagina.Top(), passo.top);
        EXPECT_EQ(pagina.Left(), 2880);
        EXPECT_EQ(didascalieTagliate(*pannello) + campiSenzaNome(*pannello), QStringList());
    }
    clicca(*pannello, "IlMenu");
    EXPECT_TRUE(pagineAperte().isEmpty());
    EXPECT_EQ(testo("Comando"), QString());
}

TEST_F(Pannello, IlTabVaDalMenuAllaPaginaAllaRigaInBasso) {
    apriPannello();
    ASSERT_TRUE(QTest::qWaitForWindowActive(pannello.get()));
    auto &voce = trova<Button>(*pannello, "PB1(10)");
    voce.setFocus();
    QTest::keyClick(&voce, Qt::Key_Return);
    const auto &pagina = trova<Pagina>(*pannello, "BoxImpostazioni(1)");
    EXPECT_TRUE(pagina.isAncestorOf(QApplication::focusWidget())) << "opening a page puts the focus into it";
    EXPECT_TRUE(voce.segnato());
    std::string giro;
    for (int i = 0; i < 60; ++i) {
        const QWidget *w = QApplication::focusWidget();
        const char zona = pagina.isAncestorOf(w)                                   ? 'p'
                          : trova<QWidget>(*pannello, "GroupBox3").isAncestorOf(w) ? 'm'
                                                                                   : 'b';
        if (giro.empty() || giro.back() != zona)
            giro += zona;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(giro.substr(0, 4), "pbmp");
    clicca(*pannello, "Position");
    EXPECT_FALSE(voce.segnato());
}

TEST_F(Pannello, LaSecondaPartenzaPortaDavantiLaFinestra) {
    const QByteArray chiave = "zuvora-prova-davanti-" + QByteArray::number(QCoreApplication::applicationPid());
    auto prima = std::make_unique<QtPiattaforma>(chiave);
    ASSERT_FALSE(prima->altraIstanza());
    EXPECT_FALSE(prima->altraIstanza());
    int chiamate = 0;
    prima->setAllaSecondaIstanza([&] { ++chiamate; });
    EXPECT_TRUE(QtPiattaforma(chiave).altraIstanza());
    EXPECT_TRUE(QtPiattaforma(chiave).altraIstanza());
    EXPECT_TRUE(QTest::qWaitFor([&] { return chiamate == 2; }));
    prima.reset();
    EXPECT_FALSE(QtPiattaforma(chiave).altraIstanza());
}

TEST_F(Pannello, UscitaNegataLasciaLaPaginaAperta) {
    apriPannello();
    clicca(*pannello, "Position");
    guida.premi("FormUscita", "cbt(1)");
    clicca(*pannello, "PB1(0)");
    guida.quando("FormUscita", [](QWidget &form) { form.close(); });
    pannello->close();
    EXPECT_TRUE(pannello->isVisible());
    EXPECT_EQ(pagineAperte(), QStringList{u"BoxImpostazioni(4)"_s});
    QTest::keyClick(pannello.get(), Qt::Key_Escape); // Esc asks nothing and closes nothing
    EXPECT_TRUE(pannello->isVisible());
}

TEST_F(Pannello, UscitaConfermataChiudeLeAltreForm) {
    apriPannello();
    Form altra(prova.ambiente, "Altra", "", {1500, 1500}, nullptr);
    altra.show();
    guida.premi("FormUscita", "cbt(0)");
    clicca(*pannello, "PB1(0)");
    EXPECT_FALSE(pannello->isVisible());
    EXPECT_FALSE(altra.isVisible());
}

TEST_F(Pannello, IlNomeCambiaIDirittiSubito) {
    prova.esegui(u"UPDATE Configurazione SET Nominativo='SERVER1'"_s);
    apriPannello();
    clicca(*pannello, "PB1(10)");
    const struct {
        QString nome;
        bool principale;
    } passi[] = {{u"Sportello 2"_s, false}, {u"server1"_s, true}, {u"SERVER1 "_s, false}, {QString(), false}};
    for (const auto &passo : passi) {
        guida.quando("NomeServer", [&](QWidget &form) {
            trova<QLineEdit>(form, "text1(1)").setText(passo.nome);
            clicca(form, "Btn(1)");
        });
        QTest::mouseClick(&trova<QWidget>(*pannello, "Image1(0)"), Qt::LeftButton);
        EXPECT_EQ(testo("Label9(1)"), passo.nome);
        const QVariant stored = prova.valore(u"SELECT Nominativo FROM Configurazione"_s);
        EXPECT_TRUE(stored.isValid());
        EXPECT_EQ(stored.toString(), passo.nome);
        for (const char *nome : SoloPrincipale)
            EXPECT_EQ(trova<QPushButton>(*pannello, nome).isEnabled(), passo.principale) << nome;
        EXPECT_EQ(trova<QPushButton>(*pannello, "PB1(2)").toolTip().isEmpty(), passo.principale) << "says why";
        EXPECT_EQ(trova<QLineEdit>(*pannello, "LaPorta").isReadOnly(), !passo.principale);
        EXPECT_EQ(!trova<QWidget>(*pannello, "GroupBox1").isHidden(), passo.principale);
        EXPECT_EQ(!trova<QWidget>(*pannello, "SaveIP").isHidden(), passo.principale);
    }
}

TEST_F(Pannello, AvvioAutomaticoScriveUnoODue) {
    apriPannello();
    auto &casella = trova<QCheckBox>(*pannello, "cbAutoaccensioneFE");
    for (int i = 0; i < 2; ++i) {
        casella.click();
        EXPECT_EQ(prova.valore(u"SELECT TempoChiamata FROM Configurazione"_s), casella.isChecked() ? 1 : 2);
    }
}

} // namespace
} // namespace zuvora
