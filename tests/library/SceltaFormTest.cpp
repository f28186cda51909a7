#include "kit/InstallazioneProva.h"
#include "library/Premi.h"
#include "library/forms/SceltaLayout.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaScelta : public testing::Test {
protected:
    std::unique_ptr<SceltaLayout> apri() { return std::make_unique<SceltaLayout>(i.ambiente, 3, nullptr); }
    // What the designer that comes next was opened on; it is closed at once.
    void attendiTela() {
        guida.quando("Form1", [this](QWidget &w) {
            aperti << i.valori.LayoutCorrente;
            clicca(w, "Btn(17)");
        });
    }
    InstallazioneProva i;
    Guida guida;
    QStringList aperti;
};

QString testo(QWidget &form, const char *nome) {
    return trova<QLineEdit>(form, nome).text();
}

int lineaAccesa(QWidget &form) {
    for (int n = 0; n <= 10; ++n)
        if (trova<QRadioButton>(form, qPrintable(u"RB1(%1)"_s.arg(n))).isChecked())
            return n;
    return -1;
}

TEST_F(ProvaScelta, MostraIlPredefinitoENessunoQuandoNonVale) {
    const struct {
        const char *valore;
        const char *testo;
        int linea;
    } casi[] = {{"99", "Layout Base", 0}, {"7", "Layout 7", 7}, {"10", "Layout 10", 10}, {"NULL", "n.d.", -1},
                {"0", "n.d.", -1},        {"11", "n.d.", -1},   {"'due'", "n.d.", -1}};
    for (const auto &caso : casi) {
        i.esegui(u"UPDATE Configurazione SET qualelayout=%1"_s.arg(QString::fromLatin1(caso.valore)));
        const auto form = apri();
        EXPECT_EQ(testo(*form, "Label2"), QLatin1String(caso.testo)) << caso.valore;
        EXPECT_EQ(lineaAccesa(*form), caso.linea) << caso.valore;
    }
}

TEST_F(ProvaScelta, SalvaTutteLeLineeELaPrimaConISuoiTesti) {
    i.esegui(u"UPDATE DescrizioneLayout SET LayoutNome='x', LayoutDescrizione='y' WHERE rowid=1;"
             "UPDATE DescrizioneLayout SET LayoutNome=NULL WHERE rowid=4"_s);
    const auto form = apri();
    EXPECT_EQ(testo(*form, "text1(0)"), u"Layout Base"_s);
    EXPECT_EQ(testo(*form, "text1(1)"), u"&Layout di Esempio o utile per la copia"_s);
    EXPECT_EQ(testo(*form, "text1(6)"), QString());
    trova<QLineEdit>(*form, "text1(21)").setText(u"l'ultimo è qui"_s);
    EXPECT_EQ(premi(*form, "PB1(1)"), u"Salvataggio effettuato !"_s);
    const QStringList righe = i.righe(u"SELECT LayoutNome, LayoutDescrizione FROM DescrizioneLayout ORDER BY rowid"_s);
    ASSERT_EQ(righe.size(), 11);
    EXPECT_EQ(righe.first(), u"Layout Base|&Layout di Esempio o utile per la copia"_s);
    EXPECT_TRUE(righe.at(3).startsWith(u'|'));
    EXPECT_TRUE(righe.last().endsWith(u"|l'ultimo è qui"_s));
}

TEST_F(ProvaScelta, LaBaseNonDiventaPredefinita) {
    i.esegui(u"UPDATE Configurazione SET qualelayout=3"_s);
    const auto form = apri();
    clicca(*form, "RB1(0)");
    EXPECT_EQ(premi(*form, "PB1(2)"),
              u"Selezionare Layout 1-10 !\nImpossibile impostare ilLayout Base come Predefinito !"_s);
    EXPECT_EQ(testo(*form, "Label2"), u"Layout 3"_s);
    clicca(*form, "RB1(8)");
    EXPECT_EQ(testo(*form, "Label2"), u"Layout 3"_s) << "a selection alone stores nothing";
    EXPECT_EQ(i.valore(u"SELECT qualelayout FROM Configurazione"_s).toInt(), 3);
    EXPECT_EQ(premi(*form, "PB1(2)"), u"Layout Predefinito memorizzato !"_s);
    EXPECT_EQ(testo(*form, "Label2"), u"Layout 8"_s);
    EXPECT_EQ(i.valore(u"SELECT qualelayout FROM Configurazione"_s).toInt(), 8);
}

TEST_F(ProvaScelta, CaricaLaLineaScelta) {
    i.esegui(u"UPDATE Configurazione SET qualelayout=NULL"_s);
    const auto form = apri();
    EXPECT_EQ(premi(*form, "PB1(3)"), u"Selezionare un Layout !"_s);
    EXPECT_TRUE(aperti.isEmpty());
    for (const char *linea : {"RB1(0)", "RB1(10)"}) {
        attendiTela();
        clicca(*form, linea);
        clicca(*form, "PB1(3)");
    }
    EXPECT_EQ(aperti, QStringList({u"LayoutBase"_s, u"Layout10"_s}));
}

TEST_F(ProvaScelta, IlNomeSceglieEIlDoppioClicApre) {
    const auto form = apri();
    form->show();
    auto &nome = trova<QLineEdit>(*form, "text1(12)");
    QTest::mouseClick(&nome, Qt::RightButton);
    EXPECT_NE(lineaAccesa(*form), 6);
    QTest::mouseClick(&nome, Qt::LeftButton);
    EXPECT_EQ(lineaAccesa(*form), 6);
    QTest::mouseDClick(&trova<QLineEdit>(*form, "text1(7)"), Qt::LeftButton); // a description
    attendiTela();
    QTest::mouseDClick(&trova<QLineEdit>(*form, "text1(4)"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return guida.finita(); }));
    EXPECT_EQ(aperti, QStringList{u"Layout2"_s});
}

TEST_F(ProvaScelta, MenoDiUndiciDescrizioni) {
    i.esegui(u"DELETE FROM DescrizioneLayout WHERE rowid > 9"_s);
    const auto form = apri();
    form->show();
    for (int n = 0; n < 100 && trova<QLineEdit>(*form, "text1(19)").isEnabled(); ++n)
        QApplication::processEvents();
    EXPECT_TRUE(trova<QLineEdit>(*form, "text1(17)").isEnabled());
    EXPECT_FALSE(trova<QLineEdit>(*form, "text1(19)").isEnabled());
    for (int giro = 0; giro < 3; ++giro)
        QApplication::processEvents(); // the activation is queued, and what it tells once more
    EXPECT_TRUE(i.dialoghi.unicoMessaggio().contains(u"Layout 9, Layout 10"_s));
    EXPECT_TRUE(premi(*form, "PB1(1)").startsWith(u"Salvataggio effettuato !"_s));
    EXPECT_EQ(i.valore(u"SELECT count(*) FROM DescrizioneLayout"_s).toInt(), 9);
}

} // namespace
} // namespace zuvora
