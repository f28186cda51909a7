// From the selection to the canvas and its dialogs, and back through a save.
#include "library/forms/ApriTela.h"
#include "Composizione.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "library/forms/SceltaLayout.h"
#include "pannello/forms/SplasModule.h"

#include <QDir>
#include <QImage>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(ApriTela, UnaDecorazioneDalCatalogoArrivaNellaTabella) {
    InstallazioneProva i;
    i.esegui(u"UPDATE Configurazione SET qualelayout=4; UPDATE Layout4 SET Visibile=0"_s);
    SceltaLayout form(i.ambiente, 3, nullptr);
    Guida guida;
    guida.quando("Form1", [](QWidget &w) { // each once the one before is done, reading of the picture included
        for (const char *bottone : {"Btn(8)", "Btn(16)", "Btn(17)"})
            clicca(w, bottone);
    });
    guida.quando("ImpostaCornice", [](QWidget &w) {
        clicca(w, "RB1(2)");
        clicca(w, "SecondoPiano");
        clicca(w, "Btn(0)");
    });
    guida.messaggio(nullptr);
    clicca(form, "PB1(3)");
    const QString file = i.valore(u"SELECT min(File) FROM Decorazioni WHERE Tipo=3"_s).toString();
    EXPECT_EQ(
        i.righe(
            u"SELECT Visibile, FontBold, top, left, Larghezza, Altezza, PercorsoImmagine FROM Layout4 WHERE rowid=35"_s),
        QStringList{u"1|0|0|0|1905|1305|"_s + i.file(u"ZuvoraDecorazioni/Elementi/"_s + file)});
    EXPECT_EQ(i.valori.LayoutCorrente, u"Layout4"_s);
}

TEST(ApriTela, UnImmagineEnormeNonFermaLaFinestraESiPuoRinunciare) {
    InstallazioneProva i;
    QImage enorme(9000, 9000, QImage::Format_RGB32);
    enorme.fill(Qt::red);
    ASSERT_TRUE(enorme.save(i.file(u"enorme.png"_s)));
    i.esegui(u"UPDATE Layout1 SET PercorsoImmagine='%1' WHERE rowid=32"_s.arg(i.file(u"enorme.png"_s)));
    int battiti = 0;
    QTimer orologio;
    QObject::connect(&orologio, &QTimer::timeout, &orologio, [&battiti] { ++battiti; });
    orologio.start(20);
    Guida guida;
    guida.premi("Attesa", "Annulla"); // and no Form1
    apriTela(i.ambiente, 3, u"Layout1"_s, nullptr);
    EXPECT_GT(battiti, 5);
}

TEST(ApriTela, LoSfondoSiImposta) {
    InstallazioneProva i;
    i.esegui(u"UPDATE Layout1 SET PercorsoImmagine=NULL WHERE rowid=32"_s);
    const QString prima = QDir::currentPath();
    QDir::setCurrent(i.file(u"ZuvoraSfondiHD"_s));
    const QString primoFile =
        QDir::current().entryList({u"*.jpg"_s}, QDir::Files, QDir::Name | QDir::IgnoreCase).value(0);
    Guida guida;
    guida.premi("Form1", "Btn(6)").quando("ImpostaSfondo", [](QWidget &w) {
        QTest::keyClick(w.findChild<QWidget *>(u"File1"_s), Qt::Key_Down);
        clicca(w, "PushButton1");
        clicca(w, "Command5");
    });
    guida.premi("Form1", "Btn(16)").messaggio(nullptr).premi("Form1", "Btn(17)");
    apriTela(i.ambiente, 3, u"Layout1"_s, nullptr);
    QDir::setCurrent(prima);
    EXPECT_EQ(i.valore(u"SELECT PercorsoImmagine FROM Layout1 WHERE rowid=32"_s).toString(),
              i.file(u"ZuvoraSfondiHD/"_s + primoFile));
}

TEST(ApriTela, IlPannelloApreSelezioneECatalogo) {
    InstallazioneProva i;
    SplasModule pannello(i.ambiente, vociDelPannello(), QUrl());
    Guida guida;
    guida.premi("SceltaLayout", "PB1(4)").premi("CopiaLayout", "Btn(0)").premi("SceltaLayout", "PB1(0)");
    clicca(pannello, "PB1(7)");
    guida.quando("Elementi", [&](QWidget &form) {
        EXPECT_EQ(trova<Label>(pannello, "Comando").Caption(), u"Gestione Decorazioni"_s);
        clicca(form, "Command5");
    });
    clicca(pannello, "PushButton2");
    EXPECT_EQ(trova<Label>(pannello, "Comando").Caption(), QString());
}

} // namespace
} // namespace zuvora
