#include "designer/TelaProva.h"
#include "kit/Fratello.h"

#include <QDir>
#include <QLabel>
#include <QWheelEvent>
#include <optional>

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

namespace {

// Eight panels, twenty-five decorations, all boxes: what the canvas can hold.
QStringList layoutPieno(const QString &tabella, const QString &cartella) {
    QStringList sql{
        u"UPDATE %1 SET Visibile=1, Altezza=coalesce(Altezza,2000), Larghezza=coalesce(Larghezza,3000)"_s.arg(tabella)};
    const auto riga = [&](int numero, const QString &valori) {
        sql << u"UPDATE %1 SET %2 WHERE rowid=(SELECT rowid FROM %1 ORDER BY rowid LIMIT 1 OFFSET %3)"_s
                   .arg(tabella, valori)
                   .arg(numero - 1);
    };
    for (int k = 0; k < 8; ++k)
        riga(63 + k, u"\"left\"=%1, \"top\"=%2"_s.arg(300 + (k % 4) * 7150).arg(1700 + (k / 4) * 6700));
    const int riquadri[] = {29, 30, 31, 60, 61, 62};
    for (int i = 0; i < 6; ++i)
        riga(riquadri[i],
             u"\"left\"=%1, \"top\"=%2, Altezza=3000, Larghezza=4400"_s.arg(300 + i * 4700).arg(i % 2 ? 9600 : 13000));
    riga(25, u"\"left\"=5000, \"top\"=100, Altezza=900, Larghezza=12000"_s);
    riga(26, u"\"left\"=5000, \"top\"=1000, Altezza=600, Larghezza=12000"_s);
    riga(27, u"\"left\"=18000, \"top\"=100, Altezza=500, Larghezza=6000"_s);
    riga(28, u"\"left\"=18000, \"top\"=600, Altezza=1000, Larghezza=6000"_s);
    riga(33, u"\"left\"=0, \"top\"=15600, Altezza=600, Larghezza=28800"_s);
    const QStringList file = QDir(cartella + u"/ZuvoraDecorazioni/Elementi"_s).entryList(QDir::Files);
    for (int i = 1; i <= 25; ++i)
        riga(34 + i, u"\"left\"=%1, \"top\"=%2, Altezza=1300, Larghezza=1300, FontBold=%3, PercorsoImmagine='%4'"_s
                         .arg(200 + (i - 1) * 1140)
                         .arg(i % 2 ? 7600 : 12800)
                         .arg(i % 3 == 0 ? 0 : 1)
                         .arg(i == 7 ? u"/manca/foto mancante.jpg"_s
                                     : cartella + u"/ZuvoraDecorazioni/Elementi/"_s + file.value(i)));
    return sql;
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
    TelaProva tela(u"Layout2"_s, layoutPieno(u"Layout2"_s, cartelle.cartella()));
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

TEST(Tela, PostiFuoriDalMondoNonFermanoNulla) {
    TelaProva tela(u"Layout1"_s,
                   {u"UPDATE Layout1 SET Visibile=1, \"left\"=-3e38, \"top\"=3e38, Altezza=3e38, Larghezza=-5 "
                    "WHERE DescCampo IN ('IM1','MP1','WB2','YT')"_s,
                    u"UPDATE Layout1 SET Visibile=1, \"left\"=-1e9, \"top\"=-1e9, Altezza=2e9, Larghezza=2e9, "
                    "PercorsoImmagine=(SELECT PercorsoImmagine FROM Layout1 WHERE DescCampo='Label2') "
                    "WHERE DescCampo LIKE 'Image1%' OR DescCampo LIKE 'Text9%'"_s});
    EXPECT_EQ(tela.aspettaBox().size(), 1U); // the sizes that are none
    tela.form->grab();
    tela.trascina(QPoint(900, 500), QPoint(700, 400)); // whatever lies there
    EXPECT_FALSE(tela.form->grab().isNull());
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
    QTest::keyClick(tela.form.get(), Qt::Key_Escape);
    EXPECT_EQ(tela.form->pos(), QPoint(0, 30));
    tela.installazione.piattaforma.monitors.monitor = {QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};
    clicca(*tela.form, "Btn(14)"); // nothing to tell
    EXPECT_EQ(tela.form->pos(), QPoint(1281, 0));
}

TEST(Schermi, UnTopFuoriDaOgniSchermoTornaInVistaELaRigaResta) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Configurazione SET MisuraFormLeft=150, MisuraFormTop=-30000"_s});
    EXPECT_EQ(tela.form->pos(), QPoint(10, 0));
    EXPECT_EQ(tela.installazione.valore(u"SELECT MisuraFormTop FROM Configurazione"_s).toInt(), -30000);
}

TEST(Schermi, SenzaLaTabellaDelleNotizieIlPostoSiLeggeLoStesso) {
    TelaProva tela(
        u"Layout1"_s,
        {u"UPDATE Configurazione SET MisuraFormLeft=300, MisuraFormTop=450"_s, u"ALTER TABLE TG RENAME TO altra"_s}, {},
        3, [](ValoriCondivisi &valori) { valori.PercorsoTG = u"https://prima.example/"_s; });
    EXPECT_EQ(tela.aspettaBox().size(), 1U);
    EXPECT_EQ(tela.form->pos(), QPoint(20, 30));
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
    const QPoint presa = tela.rettangolo("IM1").center();
    const QPoint sulloSchermo = tela.form->mapToGlobal(presa);
    tela.premi(presa, Qt::MiddleButton);
    tela.muovi(tela.form->mapFromGlobal(sulloSchermo + QPoint(40, 20)));
    EXPECT_EQ(tela.form->pos(), QPoint(-50, -260));
    tela.rilascia(presa, Qt::MiddleButton);
    tela.muovi(presa);
    EXPECT_EQ(tela.form->pos(), QPoint(-50, -260));
    tela.installazione.piattaforma.monitors.monitor = {QRect(0, 0, 1920, 1080)};
    ruota(tela, presa, {0, 120}); // the canvas fits
    EXPECT_EQ(tela.form->pos(), QPoint(-50, -260));
}

TEST(Tela, SalvaERiapreComeLasciata) {
    TelaProva tela;
    const QPoint presa = tela.rettangolo("MP1").center();
    tela.trascina(presa, presa + QPoint(-33, 11));
    clicca(*tela.form, "Btn(22)");
    const Area video = tela.e("MP1").area;
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    EXPECT_EQ(righe, u"Memorizzazione effettuata !"_s);
    EXPECT_EQ(tela.e("WB1").area.width, 6760);
    DisplayLayout riaperto(u"Layout1"_s);
    CaricaLayout(riaperto, tela.immagini, tela.installazione.cartella());
    EXPECT_EQ(riaperto.elemento(TipoElemento::MP1).area, video);
    EXPECT_TRUE(riaperto.elemento(TipoElemento::YT).visibile);
    clicca(*tela.form, "Btn(17)");
    EXPECT_FALSE(tela.form->isVisible());
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

TEST(Salva, BloccatoDaUnAltroProgrammaLasciaLaTelaELaTabella) {
    TelaProva tela;
    tela.e("MP1").area.left = 888;
    const QByteArray prima = tela.installazione.contenuto();
    std::optional<Fratello> altro(tela.installazione.archivio());
    ASSERT_EQ(altro->esegui(u"BEGIN IMMEDIATE"_s), SQLITE_OK);
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    altro.reset();
    EXPECT_TRUE(righe.startsWith(u"Memorizzazione non effettuata !"_s)) << righe.toStdString();
    EXPECT_EQ(tela.e("MP1").area.left, 888);
    EXPECT_EQ(tela.installazione.contenuto(), prima);
    EXPECT_TRUE(tela.form->isVisible());
}

TEST(Salva, UnArchivioInSolaLetturaLoDiceENonPerdeLaTela) {
    TelaProva tela;
    tela.e("MP1").area.left = 999;
    QFile archivio(tela.installazione.archivio());
    ASSERT_TRUE(archivio.open(QIODevice::ReadWrite) && archivio.seek(18));
    archivio.write("\3", 1); // a write version of the future: readable, not writable
    archivio.close();
    const QByteArray prima = tela.installazione.contenuto();
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    EXPECT_TRUE(righe.startsWith(u"Memorizzazione non effettuata !"_s)) << righe.toStdString();
    EXPECT_GT(righe.size(), 40); // and why
    EXPECT_EQ(tela.e("MP1").area.left, 999);
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
}

} // namespace
