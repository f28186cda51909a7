#include "content/forms/youtube.h"
#include "content/Premi.h"
#include "kit/InstallazioneProva.h"
#include "store/Ostacoli.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString Incorporato =
    u"<iframe src=\"https://www.youtube.com/embed/videoseries?list=PLaBc\" frameborder=\"0\">"_s;
const QString Estratto = u"https://www.youtube.com/embed/videoseries?list=PLaBc&autoplay=1&autohide=1"_s;

struct ProvaYouTube : testing::Test {
    ProvaYouTube() {
        i.esegui(
            u"DELETE FROM VideoYT; INSERT INTO VideoYT (Titolo, Url) VALUES ('ZETA', 'https://z/'), ('ALFA', NULL)"_s);
    }
    std::unique_ptr<youtube> apri() {
        auto form = std::make_unique<youtube>(i.ambiente, QUrl(u"https://www.zuvora.example/"_s), nullptr);
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return form;
    }
    static void incolla(QWidget &form, const QString &codice) {
        auto &Codice = trova<EditMultilinea>(form, "Codice");
        Codice.setFocus();
        QGuiApplication::clipboard()->setText(codice);
        QTest::keyClick(&Codice, Qt::Key_V, Qt::ControlModifier);
    }
    static void digita(QWidget &form, const QString &titolo) {
        auto &Titolo = trova<QLineEdit>(form, "Titolo");
        Titolo.setFocus();
        QTest::keyClicks(&Titolo, titolo);
    }
    QStringList righe() { return i.righe(u"SELECT Titolo, Url FROM VideoYT ORDER BY Titolo"_s); }
    static bool inCorso(QWidget &form) { return trova<QWidget>(form, "Confermaannulla(0)").isVisible(); }
    InstallazioneProva i;
};

TEST_F(ProvaYouTube, APastedCodeIsStoredUnderATypedTitle) {
    const auto form = apri();
    EXPECT_FALSE(trova<QWidget>(*form, "GB1").isEnabled());
    clic(*form, "BTN(0)");
    EXPECT_TRUE(inCorso(*form));
    EXPECT_EQ(trova<QLabel>(*form, "Label2").text(), u"Nuovo"_s);
    incolla(*form, Incorporato);
    EXPECT_EQ(trova<EditMultilinea>(*form, "Codice").text(), Incorporato);
    digita(*form, u"l'oro di roma"_s);
    EXPECT_GE(i.piattaforma.appuntiSvuotati, 1);
    QTest::keyClick(&trova<QLineEdit>(*form, "Titolo"), Qt::Key_Return);
    EXPECT_EQ(righe(), (QStringList{u"ALFA|NULL"_s, u"L'ORO DI ROMA|"_s + Estratto, u"ZETA|https://z/"_s}));
    EXPECT_FALSE(inCorso(*form));
    EXPECT_FALSE(trova<QWidget>(*form, "GB1").isEnabled());
    EXPECT_EQ(trova<Grid>(*form, "grid").Rows(), 3);

    clic(*form, "BTN(0)");
    incolla(*form, Incorporato);
    digita(*form, u"l'oro di roma"_s);
    EXPECT_EQ(premi(*form, "Confermaannulla(0)"), u"Titolo già presente !"_s);
    EXPECT_TRUE(inCorso(*form));
    EXPECT_EQ(righe().size(), 3);
    clic(*form, "Confermaannulla(1)");
    EXPECT_FALSE(inCorso(*form));
}

TEST_F(ProvaYouTube, WhatIsRefused) {
    const auto form = apri();
    clic(*form, "BTN(0)");
    EXPECT_EQ(premi(*form, "Confermaannulla(0)"), u"Incollare il Codice mancante ! "_s);
    incolla(*form, u"<iframe src=\"https://x/\">"_s);
    EXPECT_EQ(premi(*form, "Confermaannulla(0)"), u"Inserire un Titolo Video ! "_s);
    EXPECT_TRUE(inCorso(*form));
    digita(*form, u"x"_s);
    clic(*form, "Confermaannulla(0)");
    const auto box = i.dialoghi.prendiBox();
    ASSERT_EQ(box.size(), 1U);
    EXPECT_EQ(box[0].titolo + u'|' + box[0].testo, u"Controllare testo|Errore nel testo d incorporamento !"_s);
    EXPECT_FALSE(inCorso(*form)) << "a refused code is gone";
    EXPECT_EQ(righe().size(), 2);
}

TEST_F(ProvaYouTube, CapitalsAndLimits) {
    const auto form = apri();
    clic(*form, "BTN(0)");
    auto &Codice = trova<EditMultilinea>(*form, "Codice");
    QTest::keyClicks(&Codice, u"abC1"_s);
    EXPECT_EQ(Codice.text(), u"ABC1"_s);
    incolla(*form, QString(1200, u'x'));
    EXPECT_EQ(Codice.text().size(), 1000);
    QTest::keyClicks(&Codice, u"y"_s);
    EXPECT_EQ(Codice.text().size(), 1000);
    digita(*form, QString(60, u'z'));
    EXPECT_EQ(trova<QLineEdit>(*form, "Titolo").text(), QString(50, u'Z'));
    trova<QLineEdit>(*form, "Titolo").clear();
    QGuiApplication::clipboard()->setText(u"incollato"_s);
    QTest::keyClick(&trova<QLineEdit>(*form, "Titolo"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(trova<QLineEdit>(*form, "Titolo").text(), QString());
}

TEST_F(ProvaYouTube, DefaultDeletingAndNull) {
    const auto form = apri();
    clic(*form, "BTN(5)"); // ALFA has no address: nothing opens
    EXPECT_EQ(premi(*form, "Predefinito"), u"PlayList predefinita memorizzata !"_s);
    EXPECT_EQ(i.valore(u"SELECT plyt FROM Configurazione"_s).toString(), QString());
    trova<Grid>(*form, "grid").seleziona(1);
    premi(*form, "Predefinito");
    EXPECT_EQ(i.valore(u"SELECT plyt FROM Configurazione"_s), u"https://z/"_s);
    clic(*form, "BTN(0)");
    clic(*form, "BTN(1)"); // while an entry is made: nothing
    clic(*form, "Confermaannulla(1)");
    EXPECT_EQ(premi(*form, "BTN(1)", 0), u"Cancello voce selezionata ?"_s);
    EXPECT_EQ(righe().size(), 2);
    Guida guida;
    QString fine;
    guida.messaggio(nullptr, 1).messaggio(&fine);
    clic(*form, "BTN(1)");
    EXPECT_EQ(fine, u"Voce cancellata !"_s);
    EXPECT_EQ(righe(), QStringList{u"ALFA|NULL"_s});
    EXPECT_EQ(i.valore(u"SELECT plyt FROM Configurazione"_s), u"https://z/"_s);
    i.esegui(u"DELETE FROM VideoYT"_s);
    const auto vuota = apri();
    for (const char *bottone : {"BTN(1)", "BTN(5)", "Predefinito"})
        clic(*vuota, bottone);
}

TEST_F(ProvaYouTube, TheHelpPanelTakesTheFocusWhileItIsOpen) {
    const auto form = apri();
    auto &GB2 = trova<GroupBox>(*form, "GB2");
    EXPECT_FALSE(form->rect().intersects(GB2.geometry()));
    clic(*form, "BTN(0)");
    clic(*form, "BTN(2)");
    EXPECT_EQ(GB2.Top(), 0);
    EXPECT_EQ(didascalieTagliate(*form), QStringList());
    fotografa(*form, u"youtube-guida"_s);
    for (int n = 0; n < 4; ++n) {
        QTest::keyClick(form.get(), Qt::Key_Tab);
        EXPECT_TRUE(form->focusWidget() != nullptr && GB2.isAncestorOf(form->focusWidget()));
    }
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(GB2.Top(), 6120);
    EXPECT_TRUE(trova<QWidget>(*form, "GB1").isEnabled()) << "the entry under way goes on";
    for (int n = 0; n < 16; ++n) {
        QTest::keyClick(form.get(), Qt::Key_Tab);
        EXPECT_FALSE(GB2.isAncestorOf(form->focusWidget()));
    }
}

TEST_F(ProvaYouTube, ALockedDatabaseKeepsTheEntry) {
    const auto form = apri();
    clic(*form, "BTN(0)");
    incolla(*form, Incorporato);
    digita(*form, u"x"_s);
    {
        const prova::AltroProcesso altro(i.archivio(), "BEGIN IMMEDIATE");
        clic(*form, "Confermaannulla(0)");
    }
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
    EXPECT_EQ(trova<EditMultilinea>(*form, "Codice").text(), Incorporato);
    clic(*form, "Confermaannulla(0)");
    EXPECT_EQ(righe().size(), 3);
}

TEST_F(ProvaYouTube, Aspetto) {
    const auto form = apri();
    clic(*form, "BTN(0)");
    EXPECT_EQ(didascalieTagliate(*form), QStringList());
    EXPECT_EQ(campiSenzaNome(*form), QStringList());
    fotografa(*form);
}

} // namespace
} // namespace zuvora
