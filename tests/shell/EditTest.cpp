// Text boxes: whatever way the text comes.
#include "shell/host/Edit.h"
#include "kit/InstallazioneProva.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Casella : testing::Test {
    InstallazioneProva prova;
    QWidget finestra;
    Edit campo{&finestra, "text1(0)", {0, 0, 3000, 300}};
    void SetUp() override {
        finestra.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
        campo.setFocus();
    }
    std::string dopo(const std::function<void()> &gesto) {
        campo.setText({});
        gesto();
        return campo.text().toStdString();
    }
    void incolla(const QString &testo, int tasto, Qt::KeyboardModifiers modi) {
        QApplication::clipboard()->setText(testo);
        QTest::keyClick(&campo, Qt::Key(tasto), modi);
    }
    void lascia(const QString &testo) {
        QMimeData dati;
        dati.setText(testo);
        QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&campo, &entra); // the drop goes to what was entered
        QDropEvent evento(QPointF(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&campo, &evento);
    }
    void componi(const QString &testo) {
        QInputMethodEvent evento;
        evento.setCommitString(testo);
        QApplication::sendEvent(&campo, &evento);
    }
};

TEST_F(Casella, IlFiltroValePerOgniVia) {
    campo.setFiltro(soloCifre);
    EXPECT_EQ(dopo([&] { QTest::keyClicks(&campo, u"a1 b2-3x"_s); }), "123");
    EXPECT_EQ(dopo([&] { QTest::keyClick(&campo, '@', Qt::AltModifier | Qt::ControlModifier); }), "") << "AltGr";
    EXPECT_EQ(dopo([&] { incolla(u"12:34"_s, Qt::Key_V, Qt::ControlModifier); }), "1234");
    EXPECT_EQ(dopo([&] { incolla(u"a5b"_s, Qt::Key_Insert, Qt::ShiftModifier); }), "5");
    EXPECT_EQ(dopo([&] { lascia(u"7 x 8"_s); }), "78");
    EXPECT_EQ(dopo([&] { componi(u"è9"_s); }), "9");
    campo.setText(u"porta 80"_s);
    EXPECT_EQ(campo.text(), u"porta 80"_s) << "what the database holds is shown as it is";
    campo.setCursorPosition(0);
    QTest::keyClicks(&campo, u"x1"_s);
    EXPECT_EQ(campo.text(), u"1porta 80"_s) << "and stays when something is typed beside it";
    campo.setSelection(1, 6);
    incolla(u"abc"_s, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(campo.text(), u"1porta 80"_s) << "nothing of it may come: nothing goes either";
    QTest::keyClick(&campo, Qt::Key_Delete);
    EXPECT_EQ(campo.text(), u"180"_s);
}

TEST_F(Casella, MaiuscoleSoloDigitando) {
    campo.setMaiuscole(true);
    EXPECT_EQ(dopo([&] { QTest::keyClicks(&campo, u"aZ9?"_s); }), "AZ9?");
    EXPECT_EQ(dopo([&] { componi(u"ab"_s); }), "AB");
    EXPECT_EQ(dopo([&] { incolla(u"aBc"_s, Qt::Key_V, Qt::ControlModifier); }), "aBc");
}

TEST_F(Casella, SoloDigitatoNonSiIncolla) {
    campo.setSoloDigitato();
    EXPECT_EQ(dopo([&] { incolla(u"aBc"_s, Qt::Key_V, Qt::ControlModifier); }), "");
    EXPECT_EQ(dopo([&] { incolla(u"aBc"_s, Qt::Key_Insert, Qt::ShiftModifier); }), "");
    EXPECT_EQ(dopo([&] { lascia(u"aBc"_s); }), "");
    EXPECT_EQ(dopo([&] { QTest::keyClicks(&campo, u"abc"_s); }), "abc");
}

TEST_F(Casella, TuttoSelezionatoAncheColMouse) {
    Edit altro(&finestra, "text1(1)", {0, 600, 3000, 300}, "ciao");
    altro.setSelezionaAlFuoco();
    altro.show();
    const auto clicca = [&] { QTest::mouseClick(&altro, Qt::LeftButton, {}, QPoint(60, 10)); };
    clicca();
    EXPECT_EQ(altro.selectedText(), u"ciao"_s);
    clicca();
    EXPECT_FALSE(altro.hasSelectedText()) << "the second click puts the cursor";
    campo.setFocus();
    QTest::keyClick(&campo, Qt::Key_Tab);
    EXPECT_EQ(altro.selectedText(), u"ciao"_s);
}

TEST_F(Casella, GliAppuntiSiSvuotanoQuandoDetto) {
    Edit altro(&finestra, "text1(1)", {0, 600, 3000, 300});
    altro.show();
    altro.setSvuotaAppunti(prova.piattaforma, Edit::Svuota::AlFuoco);
    altro.setFocus();
    const int alFuoco = prova.piattaforma.appuntiSvuotati;
    EXPECT_GT(alFuoco, 0);
    QTest::keyClicks(&altro, u"ab"_s);
    EXPECT_EQ(prova.piattaforma.appuntiSvuotati, alFuoco);
    campo.setSvuotaAppunti(prova.piattaforma, Edit::Svuota::AdOgniTasto);
    campo.setFocus();
    EXPECT_EQ(prova.piattaforma.appuntiSvuotati, alFuoco);
    QTest::keyClicks(&campo, u"ab"_s);
    EXPECT_EQ(prova.piattaforma.appuntiSvuotati, alFuoco + 2);
}

TEST_F(Casella, PiuRighe) {
    EditMultilinea testo(&finestra, "testo", {0, 600, 3000, 1500});
    testo.show();
    testo.setText(u"uno\r\ndue\ntre\rquattro\u00a0cinque"_s);
    EXPECT_EQ(testo.text(), u"uno\r\ndue\r\ntre\r\nquattro\u00a0cinque"_s);
    testo.setText(u"a"_s);
    testo.moveCursor(QTextCursor::End);
    QTest::keyClick(&testo, Qt::Key_Return);
    QTest::keyClicks(&testo, u"b"_s);
    EXPECT_EQ(testo.text(), u"a\r\nb"_s);
    testo.setFocus();
    QTest::keyClick(&testo, Qt::Key_Tab);
    EXPECT_TRUE(campo.hasFocus());
    EXPECT_EQ(testo.text(), u"a\r\nb"_s);
}

} // namespace
} // namespace zuvora
