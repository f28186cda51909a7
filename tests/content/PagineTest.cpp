// The pages for music and ticker text.
#include "content/Premi.h"
#include "content/forms/PaginaMusica.h"
#include "content/forms/PaginaScorrevole.h"
#include "kit/InstallazioneProva.h"
#include "store/Ostacoli.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

template <class P> struct PaginaAperta {
    explicit PaginaAperta(InstallazioneProva &i) : apertura{i.ambiente, &finestra, 3, true, {}}, pagina(apertura) {
        finestra.resize(560, 420);
        pagina.apri();
        finestra.show();
    }
    QWidget finestra;
    Apertura apertura;
    P pagina;
};

struct ProvaPagine : testing::Test {
    QString riga(const QString &colonna) {
        return i.valore(u"SELECT "_s + colonna + u" FROM Configurazione"_s).toString();
    }
    InstallazioneProva i;
};

TEST_F(ProvaPagine, TheTickerKeepsItsLines) {
    i.esegui(u"UPDATE Configurazione SET StringaScorrevole='uno' || char(13,10) || 'due'"_s);
    PaginaAperta<PaginaScorrevole> aperta(i);
    auto &testo = trova<EditMultilinea>(aperta.pagina, "testo");
    EXPECT_EQ(testo.text(), u"uno\r\ndue"_s);
    testo.setFocus();
    QTest::keyClick(&testo, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(&testo, Qt::Key_Return);
    QTest::keyClicks(&testo, u"tre"_s);
    clic(aperta.pagina, "salva6");
    EXPECT_EQ(riga(u"StringaScorrevole"_s), u"uno\r\ndue\r\ntre"_s);
    EXPECT_TRUE(conSpunta(trova<Button>(aperta.pagina, "salva6")));
    testo.setText({});
    clic(aperta.pagina, "salva6");
    EXPECT_EQ(riga(u"StringaScorrevole"_s), QString());
}

TEST_F(ProvaPagine, TheTrialMovesAndEndsWithThePage) {
    PaginaAperta<PaginaScorrevole> aperta(i);
    auto &testo = trova<EditMultilinea>(aperta.pagina, "testo");
    auto &mostrato = trova<QLineEdit>(aperta.pagina, "Text1");
    testo.setText(u"AB"_s);
    clic(aperta.pagina, "PushButton3");
    EXPECT_TRUE(QTest::qWaitFor([&] { return mostrato.text() == QString(29, u' ') + u"AB "_s; }, Attesa_ms));
    EXPECT_TRUE(QTest::qWaitFor([&] { return mostrato.text() == QString(28, u' ') + u"AB  "_s; }, Attesa_ms));
    EXPECT_FALSE(mostrato.hasFocus());
    aperta.pagina.nascondi();
    aperta.pagina.apri();
    EXPECT_EQ(mostrato.text(), QString());
    QSignalSpy cambi(&mostrato, &QLineEdit::textChanged);
    clic(aperta.pagina, "PushButton3");
    EXPECT_TRUE(cambi.wait(Attesa_ms));
}

TEST_F(ProvaPagine, AnEmptyMusicFolderKeepsTheStoredOne) {
    i.esegui(u"UPDATE Configurazione SET cartellamp3=NULL"_s);
    PaginaAperta<PaginaMusica> aperta(i);
    auto &cartella = trova<QLineEdit>(aperta.pagina, "FE1(1)");
    EXPECT_EQ(cartella.text(), QString());
    i.dialoghi.cartelle = {u"/musica/sala"_s, std::nullopt};
    clic(aperta.pagina, "CBT(2)");
    clic(aperta.pagina, "CBT(2)"); // cancelled
    EXPECT_EQ(cartella.text(), u"/musica/sala"_s);
    clic(aperta.pagina, "Salva5");
    EXPECT_EQ(riga(u"cartellamp3"_s), u"/musica/sala"_s);
    cartella.clear();
    clic(aperta.pagina, "Salva5");
    EXPECT_EQ(riga(u"cartellamp3"_s), u"/musica/sala"_s);
}

TEST_F(ProvaPagine, ALockedDatabaseKeepsWhatWasTyped) {
    PaginaAperta<PaginaScorrevole> aperta(i);
    auto &testo = trova<EditMultilinea>(aperta.pagina, "testo");
    testo.setText(u"da non perdere"_s);
    const QString prima = riga(u"StringaScorrevole"_s);
    {
        const prova::AltroProcesso altro(i.archivio(), "BEGIN EXCLUSIVE");
        clic(aperta.pagina, "salva6");
    }
    EXPECT_TRUE(i.dialoghi.unicoMessaggio().contains(u"Zuvora.mdb"_s));
    EXPECT_EQ(testo.text(), u"da non perdere"_s);
    EXPECT_FALSE(conSpunta(trova<Button>(aperta.pagina, "salva6")));
    EXPECT_EQ(riga(u"StringaScorrevole"_s), prima);
}

TEST_F(ProvaPagine, Aspetto) {
    PaginaAperta<PaginaScorrevole> scorrevole(i);
    PaginaAperta<PaginaMusica> musica(i);
    for (QWidget *finestra : {&scorrevole.finestra, &musica.finestra}) {
        EXPECT_EQ(didascalieTagliate(*finestra), QStringList());
        fotografa(*finestra, finestra->findChild<Pagina *>()->objectName());
    }
}

} // namespace
} // namespace zuvora
