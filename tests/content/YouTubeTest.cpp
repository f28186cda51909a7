#include "content/forms/youtube.h"
#include "kit/Stanza.h"

#include <QClipboard>
#include <QGuiApplication>

namespace zuvora {
namespace {

const QString Incorporato =
    u"<iframe src=\"https://www.youtube.com/embed/videoseries?list=PLaBc\" frameborder=\"0\">"_s;
const QString Estratto = u"https://www.youtube.com/embed/videoseries?list=PLaBc&autoplay=1&autohide=1"_s;

struct ProvaYouTube : Stanza {
    ProvaYouTube() {
        i.esegui(
            u"DELETE FROM VideoYT; INSERT INTO VideoYT (Titolo, Url) VALUES ('ZETA', 'https://z/'), ('ALFA', NULL)"_s);
        form = apriForm<youtube>(i.ambiente, QUrl(u"https://www.zuvora.example/"_s), nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    template <class W = EditMultilinea> W &incolla(const QString &testo, const char *nome = "Codice") {
        auto &campo = trova<W>(*form, nome);
        campo.setFocus();
        QGuiApplication::clipboard()->setText(testo);
        QTest::keyClick(&campo, Qt::Key_V, Qt::ControlModifier);
        return campo;
    }
    QStringList righe() { return i.righe(u"SELECT Titolo, Url FROM VideoYT ORDER BY Titolo"_s); }
    bool inCorso() { return trova<QWidget>(*form, "Confermaannulla(0)").isVisible(); }
    std::unique_ptr<youtube> form;
};

TEST_F(ProvaYouTube, APastedCodeIsStoredUnderATypedTitle) {
    EXPECT_FALSE(trova<QWidget>(*form, "GB1").isEnabled());
    for (const bool doppio : {false, true}) {
        clic(*form, "BTN(0)");
        EXPECT_EQ(scritto(*form, "Label2"), u"Nuovo"_s);
        EXPECT_EQ(premi(*form, "Confermaannulla(0)"), u"Incollare il Codice mancante ! "_s);
        EXPECT_EQ(incolla(Incorporato).text(), Incorporato);
        EXPECT_EQ(premi(*form, "Confermaannulla(0)"), u"Inserire un Titolo Video ! "_s);
        digita(*form, "Titolo", u"l'oro di roma"_s);
        QString detto;
        if (doppio)
            guida.messaggio(&detto);
        QTest::keyClick(&trova<QLineEdit>(*form, "Titolo"), Qt::Key_Return);
        EXPECT_EQ(detto, doppio ? u"Titolo già presente !"_s : QString());
        EXPECT_EQ(righe(), (QStringList{u"ALFA|NULL"_s, u"L'ORO DI ROMA|"_s + Estratto, u"ZETA|https://z/"_s}));
        EXPECT_EQ(inCorso(), doppio);
    }
    clic(*form, "Confermaannulla(1)");
    EXPECT_EQ(trova<Grid>(*form, "grid").Rows(), 3);
    clic(*form, "BTN(0)");
    incolla(u"<iframe src=\"https://x/\">"_s);
    digita(*form, "Titolo", u"x"_s);
    clic(*form, "Confermaannulla(0)");
    const auto box = i.dialoghi.prendiBox();
    ASSERT_EQ(box.size(), 1U);
    EXPECT_EQ(box[0].titolo + u'|' + box[0].testo, u"Controllare testo|Errore nel testo d incorporamento !"_s);
    EXPECT_FALSE(inCorso()) << "a refused code is gone";
    EXPECT_EQ(righe().size(), 3);
}

TEST_F(ProvaYouTube, CapitalsAndLimits) {
    clic(*form, "BTN(0)");
    auto &Codice = trova<EditMultilinea>(*form, "Codice");
    QTest::keyClicks(&Codice, u"abC1"_s);
    EXPECT_EQ(Codice.text(), u"ABC1"_s);
    incolla(QString(1200, u'x'));
    QTest::keyClicks(&Codice, u"y"_s);
    EXPECT_EQ(Codice.text(), u"ABC1"_s + QString(996, u'x'));
    digita(*form, "Titolo", QString(60, u'z'));
    EXPECT_EQ(trova<QLineEdit>(*form, "Titolo").text(), QString(50, u'Z'));
    EXPECT_GE(i.piattaforma.appuntiSvuotati, 1);
    trova<QLineEdit>(*form, "Titolo").clear();
    EXPECT_EQ(incolla<QLineEdit>(u"incollato"_s, "Titolo").text(), QString());
}

TEST_F(ProvaYouTube, DefaultDeletingAndNull) {
    clic(*form, "BTN(5)"); // ALFA has no address: nothing opens
    EXPECT_EQ(premi(*form, "Predefinito"), u"PlayList predefinita memorizzata !"_s);
    EXPECT_EQ(riga(u"plyt"_s).toString(), QString());
    trova<Grid>(*form, "grid").seleziona(1);
    premi(*form, "Predefinito");
    EXPECT_EQ(riga(u"plyt"_s), u"https://z/"_s);
    clic(*form, "BTN(0)");
    clic(*form, "BTN(1)"); // while an entry is made: nothing
    clic(*form, "Confermaannulla(1)");
    EXPECT_EQ(cancella(*form, "BTN(1)"), u"Voce cancellata !"_s);
    EXPECT_EQ(righe(), QStringList{u"ALFA|NULL"_s});
    EXPECT_EQ(riga(u"plyt"_s), u"https://z/"_s);
    i.esegui(u"DELETE FROM VideoYT"_s);
    const auto vuota = apriForm<youtube>(i.ambiente, QUrl(), nullptr);
    for (const char *bottone : {"BTN(1)", "BTN(5)", "Predefinito"})
        clic(*vuota, bottone);
}

TEST_F(ProvaYouTube, TheHelpPanelTakesTheFocusWhileItIsOpen) {
    auto &GB2 = trova<GroupBox>(*form, "GB2");
    EXPECT_FALSE(form->rect().intersects(GB2.geometry()));
    clic(*form, "BTN(0)");
    clic(*form, "BTN(2)");
    EXPECT_EQ(GB2.Top(), 0);
    EXPECT_EQ(didascalieTagliate(*form), QStringList());
    for (int n = 0; n < 4; ++n) {
        QTest::keyClick(form.get(), Qt::Key_Tab);
        EXPECT_TRUE(form->focusWidget() != nullptr && GB2.isAncestorOf(form->focusWidget()));
    }
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(GB2.Top(), 6120);
    EXPECT_TRUE(trova<QWidget>(*form, "GB1").isEnabled()) << "the entry under way goes on";
    for (int n = 0; n < 16; ++n, QTest::keyClick(form.get(), Qt::Key_Tab))
        EXPECT_FALSE(GB2.isAncestorOf(form->focusWidget()));
}

} // namespace
} // namespace zuvora
