#include "kit/InstallazioneProva.h"
#include "library/Premi.h"
#include "library/forms/CancellaLayout.h"
#include "library/forms/CopiaLayout.h"
#include "library/forms/SceltaLayout.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaCopia : public testing::Test {
protected:
    QStringList tabella(const QString &nome) const { return i.righe(u"SELECT * FROM "_s + nome); }
    InstallazioneProva i;
};

TEST_F(ProvaCopia, CopiaDellaBaseSuUnLayout) {
    const QStringList altra = tabella(u"Layout4"_s);
    CopiaLayout form(i.ambiente, nullptr);
    EXPECT_EQ(premi(form, "Btn(1)"), u"Impossibile copiare un \nLayout su se stesso ! "_s);
    clicca(form, "L0(10)");
    clicca(form, "L1(2)");
    EXPECT_EQ(trova<QLabel>(form, "Label3(0)").text(), u"Layout Base"_s);
    EXPECT_EQ(trova<QLabel>(form, "Label3(1)").text(), u"Layout 3"_s);
    EXPECT_EQ(premi(form, "Btn(1)"), u"Copia effettuata correttamente ! "_s);
    EXPECT_EQ(tabella(u"Layout3"_s), tabella(u"LayoutBase"_s));
    EXPECT_EQ(tabella(u"Layout4"_s), altra);
}

TEST_F(ProvaCopia, UnaTabellaCortaLoDice) {
    i.esegui(u"DELETE FROM Layout5 WHERE rowid > 40"_s);
    CopiaLayout form(i.ambiente, nullptr);
    clicca(form, "L0(4)");
    const QString messaggio = premi(form, "Btn(1)");
    EXPECT_TRUE(messaggio.contains(u"40"_s)) << messaggio.toStdString();
}

TEST_F(ProvaCopia, LaScopaCancellaIlSuoLayout) {
    const QStringList descrizioni = i.righe(u"SELECT * FROM DescrizioneLayout"_s);
    const QStringList primo = tabella(u"Layout1"_s);
    SceltaLayout form(i.ambiente, {}, nullptr);
    {
        Guida guida;
        guida.premi("CancellaLayout", "PB1(0)");
        clicca(form, "PPBB1(10)");
        EXPECT_EQ(tabella(u"Layout1"_s), primo);
    }
    QString righe;
    Guida guida;
    guida.quando("CancellaLayout", [](QWidget &w) {
        EXPECT_EQ(trova<QLabel>(w, "Label3").text(), u"10"_s);
        EXPECT_EQ(didascalieTagliate(w), QStringList());
        EXPECT_EQ(campiSenzaNome(w), QStringList());
        fotografa(w);
        clicca(w, "PB1(1)");
    });
    guida.messaggio(&righe);
    clicca(form, "PPBB1(10)"); // returns: the form closes by itself
    EXPECT_EQ(righe, u"Layout cancellato correttamente ! "_s);
    EXPECT_EQ(i.valore(u"SELECT count(*) FROM Layout10 WHERE Visibile"_s).toInt(), 0);
    const QString posti = u"SELECT DescCampo, top, left, testo, PercorsoImmagine, ColoreSfondo FROM "_s;
    EXPECT_EQ(i.righe(posti + u"Layout10"_s), i.righe(posti + u"LayoutBase"_s));
    EXPECT_EQ(i.righe(u"SELECT * FROM DescrizioneLayout"_s), descrizioni);
    EXPECT_EQ(tabella(u"Layout1"_s), primo);
}

TEST_F(ProvaCopia, UnaCancellazioneImpossibileLasciaLaForm) {
    i.esegui(u"DROP TABLE Layout2"_s);
    CancellaLayout form(i.ambiente, u"2"_s, nullptr);
    form.show();
    EXPECT_FALSE(premi(form, "PB1(1)").isEmpty());
    EXPECT_TRUE(form.isVisible());
}

TEST_F(ProvaCopia, Aspetto) {
    CopiaLayout form(i.ambiente, nullptr);
    form.show();
    EXPECT_EQ(didascalieTagliate(form), QStringList());
    EXPECT_EQ(campiSenzaNome(form), QStringList());
    fotografa(form);
}

} // namespace
} // namespace zuvora
