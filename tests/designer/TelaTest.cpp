#include "designer/TelaProva.h"
#include "kit/Fratello.h"

#include <QLabel>
#include <QWheelEvent>

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

namespace {

// All rows on the canvas, decorations above and below what else there is, one without its picture.
QStringList layoutPieno(const QString &cartella) {
    return {u"UPDATE Layout1 SET Visibile=1, \"left\"=(rowid*2711)%20000, \"top\"=(rowid*1913)%11000, Altezza=3000, "
            "Larghezza=4400, FontBold=rowid%3=0, PercorsoImmagine='"_s +
                cartella + u"/ZuvoraDecorazioni/Cornici/stondata.gif'"_s,
            u"UPDATE Layout1 SET PercorsoImmagine='/manca/foto.jpg' WHERE DescCampo='Image1(7)'"_s};
}

// Pixels that differ by more than the rounding of smooth edges.
int pixelDiversi(const QImage &a, const QImage &b) {
    const auto lontani = [](QRgb p, QRgb q) {
        return std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))}) >
               16;
    };
    int diversi = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            diversi += lontani(a.pixel(x, y), b.pixel(x, y)) ? 1 : 0;
    return diversi;
}

// Only what changed is painted; it must be what a new painting of the whole would show.
TEST(Tela, QuantoSiRidipingeEUgualeAUnaPitturaNuova) {
    InstallazioneProva cartelle;
    TelaProva tela(u"Layout1"_s, layoutPieno(cartelle.cartella()));
    tela.aspettaBox();
    tela.form->grab();
    for (const char *nome : {"Text9(0)", "Image1(3)", "WB2", "Image1(4)"}) {
        const QPoint presa = tela.rettangolo(nome).topLeft() + QPoint(3, 3);
        tela.trascina(presa, presa + QPoint(37, 21));
    }
    tela.trascina(tela.rettangolo("picHandle(4)").center(), QPoint(600, 900));
    const QPoint etichetta = tela.rettangolo("Text1(10)").center();
    tela.trascina(etichetta, etichetta + QPoint(-80, 60));
    QTest::keyClick(tela.form.get(), Qt::Key_Delete);
    tela.clicca(QPoint(1915, 5));
    const QImage mostrata = tela.form->grab().toImage();
    Form1 nuova(tela.installazione.ambiente, tela.layout, tela.immagini, {}, dimensioneTela(2), nullptr);
    nuova.show();
    nuova.setCaption(tela.form->Caption());
    EXPECT_EQ(pixelDiversi(nuova.grab().toImage(), mostrata), 0);
}

TEST(Tela, LaPrimaAttivazioneNonSiRipete) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Configurazione SET MisuraFormLeft=28820, MisuraFormTop=150"_s,
                                  u"UPDATE Layout1 SET Visibile=1 WHERE DescCampo='Image1(2)'"_s});
    EXPECT_EQ(tela.form->pos(), QPoint(1921, 10));
    EXPECT_EQ(tela.installazione.valori.PercorsoTG, u"https://notizie.zuvora.example/"_s);
    QTest::mouseClick(&tela.w("Image1(2)"), Qt::LeftButton);
    EXPECT_EQ(tela.form->Caption(), u"Impostazione Modulo : Layout1  Controllo : Decorazione 2"_s);
    EXPECT_EQ(trova<QLabel>(*tela.form, "DidascaliaForm").text(), tela.form->Caption());
    tela.form->move(7, 8);
    for (const QEvent::Type tipo : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        QEvent evento(tipo);
        QCoreApplication::sendEvent(tela.form.get(), &evento);
    }
    EXPECT_EQ(tela.form->pos(), QPoint(7, 8));
    EXPECT_EQ(tela.form->DidascaliaBase(), u"Impostazione Modulo : Layout1"_s);
    tela.clicca(tela.rettangolo("MP1").center());
    EXPECT_EQ(tela.form->Caption(), u"Impostazione Modulo : Layout1"_s);
}

TEST(Schermi, PosizioneESecondoSchermo) {
    TelaProva tela;
    tela.installazione.piattaforma.monitors.monitor = {QRect(0, 0, 1280, 800)};
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(14)");
    EXPECT_TRUE(righe.contains(u"Esc"_s)) << righe.toStdString(); // there is no second screen
    EXPECT_EQ(tela.form->pos(), QPoint(1281, 0));
    tela.form->move(1281, 30);
    clicca(*tela.form, "Btn(15)");
    EXPECT_EQ(tela.installazione.righe(u"SELECT MisuraFormLeft, MisuraFormTop FROM Configurazione"_s),
              QStringList(u"19215|450"_s));
    EXPECT_TRUE(conSpunta(trova<Button>(*tela.form, "Btn(15)")));
    QTest::keyClick(tela.form.get(), Qt::Key_Escape);
    EXPECT_EQ(tela.form->pos(), QPoint(0, 30));
    tela.installazione.piattaforma.monitors.monitor = {QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};
    clicca(*tela.form, "Btn(14)"); // nothing to tell
    EXPECT_EQ(tela.form->pos(), QPoint(1281, 0));
}

TEST(Schermi, SenzaLaTabellaDelleNotizieIlPostoSiLeggeEDaFuoriTornaInVistaLaRigaResta) {
    TelaProva tela(
        u"Layout1"_s,
        {u"UPDATE Configurazione SET MisuraFormLeft=300, MisuraFormTop=-30000"_s, u"ALTER TABLE TG RENAME TO altra"_s},
        {}, 3, [](ValoriCondivisi &valori) { valori.PercorsoTG = u"https://prima.example/"_s; });
    EXPECT_EQ(tela.aspettaBox().size(), 1U);
    EXPECT_EQ(tela.form->pos(), QPoint(20, 0));
    EXPECT_EQ(tela.installazione.valore(u"SELECT MisuraFormTop FROM Configurazione"_s).toInt(), -30000);
    EXPECT_EQ(tela.installazione.valori.PercorsoTG, QString());
}

void ruota(TelaProva &tela, QPoint dove, QPoint angolo, Qt::KeyboardModifiers tasti = {}) {
    QWidget *bersaglio = tela.form->childAt(dove);
    bersaglio = bersaglio == nullptr ? tela.form.get() : bersaglio;
    QWheelEvent evento(bersaglio->mapFrom(tela.form.get(), QPointF(dove)), tela.form->mapToGlobal(QPointF(dove)), {},
                       angolo, Qt::NoButton, tasti, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bersaglio, &evento);
}

TEST(Schermi, RotellaETastoCentraleScorronoUnaTelaPiuGrande) {
    TelaProva tela;
    tela.installazione.piattaforma.monitors.monitor = {QRect(0, 0, 1280, 800)};
    tela.form->move(0, 0);
    ruota(tela, QPoint(1915, 700), {0, -120}); // the bare canvas
    EXPECT_EQ(tela.form->pos(), QPoint(0, -90));
    ruota(tela, tela.rettangolo("MP1").center(), {0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(tela.form->pos(), QPoint(-90, -90));
    ruota(tela, QPoint(1915, 700), {0, -1200});
    EXPECT_EQ(tela.form->pos(), QPoint(-90, -280)); // no further than the canvas reaches
    for (const char *nome : {"IM1", "SSPanel1", "Image2", "Btn(17)"}) {
        tela.form->move(-90, -280);
        const QPoint presa = tela.rettangolo(nome).bottomRight() - QPoint(3, 3);
        const QPoint sulloSchermo = tela.form->mapToGlobal(presa);
        tela.premi(presa, Qt::MiddleButton);
        tela.muovi(tela.form->mapFromGlobal(sulloSchermo + QPoint(40, 20)));
        EXPECT_EQ(tela.form->pos(), QPoint(-50, -260)) << nome;
        tela.rilascia(presa, Qt::MiddleButton);
        tela.muovi(presa);
        EXPECT_EQ(tela.form->pos(), QPoint(-50, -260)) << nome;
    }
    ruota(tela, tela.rettangolo("SSPanel1").bottomRight() - QPoint(3, 3), {0, -120});
    EXPECT_EQ(tela.form->pos(), QPoint(-50, -280));
    tela.installazione.piattaforma.monitors.monitor = {QRect(0, 0, 1920, 1080)};
    ruota(tela, tela.rettangolo("IM1").center(), {0, 120}); // the canvas fits
    EXPECT_EQ(tela.form->pos(), QPoint(-50, -280));
}

// The sentence tells how much of the layout is new, and the next try is one button away.
TEST(Salva, MezzoSalvatoDiceQuanteRigheEOffreDiRifarlo) {
    TelaProva tela;
    Guida prima;
    prima.messaggio(nullptr);
    clicca(*tela.form, "Btn(16)");
    tela.e("Text9(0)").didascalia = u"Nuovo"_s;
    tela.e("MP1").area.left = 777;
    tela.installazione.esegui(u"CREATE TRIGGER ferma BEFORE UPDATE ON Layout1 WHEN old.DescCampo='MP1' "
                              "BEGIN SELECT RAISE(FAIL,'prova'); END"_s);
    QString rifiuto;
    QString riuscita;
    Guida guida;
    guida.quando("MsgForm", [&](QWidget &form) {
        rifiuto = trova<Label>(form, "Label2(0)").Caption() + trova<Label>(form, "Label2(1)").Caption();
        tela.installazione.esegui(u"DROP TRIGGER ferma"_s);
        clicca(form, "PB1(1)"); // again
    });
    guida.messaggio(&riuscita);
    clicca(*tela.form, "Btn(16)");
    EXPECT_TRUE(rifiuto.contains(u"riga 31 di 70"_s) && rifiuto.contains(u"Righe cambiate: 1."_s))
        << rifiuto.toStdString();
    EXPECT_EQ(riuscita, u"Memorizzazione effettuata !"_s);
    EXPECT_EQ(tela.installazione.valore(u"SELECT \"left\" FROM Layout1 WHERE DescCampo='MP1'"_s).toInt(), 777);
}

TEST(Salva, CioCheNonSiPuoScrivereSiDiceELaTelaResta) {
    TelaProva tela;
    tela.e("MP1").area.left = 888;
    Fratello altro(tela.installazione.archivio());
    ASSERT_EQ(altro.esegui(u"BEGIN IMMEDIATE"_s), SQLITE_OK);
    const QByteArray prima = tela.installazione.contenuto();
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    EXPECT_TRUE(righe.startsWith(u"Memorizzazione non effettuata !"_s)) << righe.toStdString();
    EXPECT_GT(righe.size(), 80) << righe.toStdString(); // and why, and whether to try again
    EXPECT_EQ(tela.e("MP1").area.left, 888);
    EXPECT_EQ(tela.installazione.contenuto(), prima);
}

TEST(Tela, CioCheNonSiLeggeSiDiceUnaVolta) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Layout1 SET Visibile=1, PercorsoImmagine='/manca/a.jpg' "
                                  "WHERE DescCampo IN ('Image1(1)','Image1(9)')"_s,
                                  u"DELETE FROM Layout1 WHERE DescCampo='Pannello1(7)'"_s});
    const auto box = tela.aspettaBox();
    ASSERT_EQ(box.size(), 1U);
    EXPECT_TRUE(box[0].testo.contains(u"Decorazione 9"_s) && box[0].testo.contains(u"69 righe"_s));
    clicca(*tela.form, "Btn(1)"); // usable
    clicca(*tela.form, "Btn(17)");
    EXPECT_FALSE(tela.form->isVisible());
}

} // namespace
