#include "kit/InstallazioneProva.h"
#include "library/Premi.h"
#include "library/forms/CancellaLayout.h"
#include "library/forms/CopiaLayout.h"
#include "library/forms/SceltaLayout.h"
#include "library/logic/CopiaLogica.h"

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
    i.esegui(u"DELETE FROM Layout3; INSERT INTO Layout3(rowid,testo,PercorsoImmagine,FontBold) "
             "SELECT rowid*10,'vecchio','/vecchio.gif',1 FROM LayoutBase"_s); // rows correspond by position alone
    const QStringList altra = tabella(u"Layout4"_s);
    CopiaLayout form(i.ambiente, nullptr);
    form.show();
    EXPECT_EQ(form.focusWidget()->objectName(), u"L0(0)"_s);
    EXPECT_EQ(premi(form, "Btn(1)"), u"Impossibile copiare un \nLayout su se stesso ! "_s);
    clicca(form, "L0(10)");
    clicca(form, "L1(2)");
    EXPECT_EQ(trova<QLabel>(form, "Label3(0)").text(), u"Layout Base"_s);
    EXPECT_EQ(trova<QLabel>(form, "Label3(1)").text(), u"Layout 3"_s);
    EXPECT_EQ(premi(form, "Btn(1)"), u"Copia effettuata correttamente ! "_s);
    EXPECT_EQ(tabella(u"Layout3"_s), tabella(u"LayoutBase"_s));
    EXPECT_EQ(tabella(u"Layout4"_s), altra);
}

TEST_F(ProvaCopia, LaScopaCancellaIlSuoLayout) {
    const QStringList descrizioni = i.righe(u"SELECT * FROM DescrizioneLayout"_s);
    const QStringList primo = tabella(u"Layout1"_s);
    SceltaLayout form(i.ambiente, {}, nullptr);
    QString righe;
    Guida guida;
    guida.premi("CancellaLayout", "PB1(0)");
    clicca(form, "PPBB1(10)");
    EXPECT_NE(i.valore(u"SELECT count(*) FROM Layout10 WHERE Visibile"_s).toInt(), 0);
    guida.premi("CancellaLayout", "PB1(1)").messaggio(&righe);
    clicca(form, "PPBB1(10)"); // returns: the form closes by itself
    EXPECT_EQ(righe, u"Layout cancellato correttamente ! "_s);
    EXPECT_EQ(i.valore(u"SELECT count(*) FROM Layout10 WHERE Visibile"_s).toInt(), 0);
    const QString posti = u"SELECT DescCampo, top, left, testo, PercorsoImmagine, ColoreSfondo FROM "_s;
    EXPECT_EQ(i.righe(posti + u"Layout10"_s), i.righe(posti + u"LayoutBase"_s));
    EXPECT_EQ(i.righe(u"SELECT * FROM DescrizioneLayout"_s), descrizioni);
    EXPECT_EQ(tabella(u"Layout1"_s), primo);
}

TEST_F(ProvaCopia, LaBaseELeTabelleCheNonCiSonoNonSiScrivono) {
    const QStringList base = tabella(u"LayoutBase"_s);
    EXPECT_FALSE(copiaLayout(i.cartella(), 3, 0).completo);
    EXPECT_FALSE(copiaLayout(i.cartella(), 11, 3).completo);
    for (const auto &numero : {u"0"_s, u"11"_s, u""_s, u"Base"_s, u"-1"_s})
        EXPECT_FALSE(RipristinaLayout(i.cartella(), numero).completo) << numero.toStdString();
    EXPECT_EQ(tabella(u"LayoutBase"_s), base);
}

TEST_F(ProvaCopia, UnInterruzioneFinisceInOrdineEDiceLaRiga) {
    i.esegui(u"UPDATE Layout3 SET testo='vecchio'; CREATE TRIGGER ferma BEFORE UPDATE ON Layout3 "
             "WHEN old.rowid=37 BEGIN SELECT RAISE(ABORT,'no'); END"_s);
    const QStringList prima = tabella(u"Layout3"_s);
    for (const bool cancella : {false, true}) {
        const EsitoCopia esito = cancella ? RipristinaLayout(i.cartella(), u"3"_s) : copiaLayout(i.cartella(), 0, 3);
        EXPECT_FALSE(esito.completo);
        EXPECT_TRUE(esito.messaggio.riga0.contains(u"riga 37 di 70")) << esito.messaggio.riga0.toStdString();
        EXPECT_TRUE(esito.messaggio.riga1.contains(cancella ? u"Righe cambiate: " : u"Righe cambiate: 36"))
            << esito.messaggio.riga1.toStdString();
        EXPECT_EQ(tabella(u"Layout3"_s).mid(36), prima.mid(36));
    }
    i.esegui(u"DROP TRIGGER ferma; DELETE FROM LayoutBase WHERE rowid>60"_s);
    EXPECT_TRUE(copiaLayout(i.cartella(), 0, 3).messaggio.riga0.contains(u"60 righe su 70"));
    EXPECT_EQ(tabella(u"Layout3"_s).mid(0, 60), tabella(u"LayoutBase"_s));
}

TEST_F(ProvaCopia, UnaCancellazioneImpossibileLasciaLaForm) {
    i.esegui(u"DROP TABLE Layout2"_s);
    CancellaLayout form(i.ambiente, u"2"_s, nullptr);
    form.show();
    EXPECT_FALSE(premi(form, "PB1(1)").isEmpty());
    EXPECT_TRUE(form.isVisible());
}

} // namespace
} // namespace zuvora
