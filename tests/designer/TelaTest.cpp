#include "designer/TelaProva.h"
#include "kit/Fratello.h"

#include "designer/forms/ApriDesigner.h"
#include "shell/store/EngineError.h"

#include <QDir>
#include <QLabel>
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

TEST(Tela, Fotografie) {
    if (qEnvironmentVariableIsEmpty("ZUVORA_IMMAGINI"))
        GTEST_SKIP() << "pictures are made on demand";
    for (int r = 1; r <= 4; ++r) {
        TelaProva base(u"LayoutBase"_s, r);
        fotografa(*base.form, u"base%1"_s.arg(r));
    }
    for (int r = 1; r <= 4; ++r) {
        InstallazioneProva prima;
        TelaProva pieno(u"Layout2"_s, layoutPieno(u"Layout2"_s, prima.cartella()), {}, r);
        pieno.aspettaBox();
        pieno.clicca(pieno.rettangolo("Image1(4)").center());
        fotografa(*pieno.form, u"pieno%1"_s.arg(r));
        if (r != 3)
            continue;
        const QPoint presa = pieno.rettangolo("IM1").center() + QPoint(0, 30);
        pieno.premi(presa);
        pieno.muovi(presa + QPoint(-420, -60));
        fotografa(*pieno.form, u"trascina"_s);
        pieno.rilascia(presa + QPoint(-420, -60));
        fotografa(*pieno.form, u"maniglie"_s);
        pieno.form->grab(QRect(0, 0, 480, 400))
            .scaled(960, 800)
            .save(qEnvironmentVariable("ZUVORA_IMMAGINI") + u"/barra.png"_s);
    }
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

TEST(Tela, AltezzaDelTestoInPuntiDellaTela) {
    preparaApplicazione();
    // 72 points are 1440 twips, 96 pixels, whatever the screen's own resolution.
    QImage tela(10, 10, QImage::Format_RGB32);
    tela.setDotsPerMeterY(3780);
    QFont atteso(u"Arial"_s);
    atteso.setPixelSize(96);
    EXPECT_EQ(QFontMetricsF(fontTela({u"Arial"_s, 72, false, false}), &tela).height(),
              QFontMetricsF(atteso, &tela).height());
}

TEST(Tela, PianiETrasparenze) {
    const QString zero = u"UPDATE Layout1 SET Visibile=0, PercorsoImmagine=NULL, ColoreSfondo=0"_s;
    const QString pannello = u"UPDATE Layout1 SET Visibile=1, ColoreSfondo=255, \"left\"=6000, \"top\"=1500 "
                             "WHERE DescCampo='Pannello1(0)'"_s;
    const QString etichetta = u"UPDATE Layout1 SET Visibile=1, testo='', ColoreSfondo=65280, SfondoTestoTrasparente=%1 "
                              "WHERE DescCampo='Text1(0)'"_s;
    const QString decorazione =
        u"UPDATE Layout1 SET Visibile=1, FontBold=%1, \"left\"=6000, \"top\"=1500, Altezza=900, "
        "Larghezza=900, PercorsoImmagine='/manca.jpg' WHERE DescCampo='Image1(3)'"_s;
    for (const bool avanti : {true, false}) {
        TelaProva tela(u"Layout1"_s, {zero, pannello, etichetta.arg(avanti ? 1 : 0), decorazione.arg(avanti ? 1 : 0)});
        EXPECT_EQ(tela.aspettaBox().size(), 1U);
        const QImage vista = tela.form->grab().toImage();
        EXPECT_EQ(QColor(vista.pixel(tela.rettangolo("Text1(0)").center())),
                  avanti ? QColor(255, 0, 0) : QColor(0, 255, 0));
        const QPoint angolo = tela.rettangolo("Pannello1(0)").topLeft() + QPoint(6, 6);
        EXPECT_EQ(QColor(vista.pixel(angolo)) == QColor(255, 0, 0), !avanti); // the mark of the missing picture
        EXPECT_EQ(tela.form->childAt(angolo)->objectName(), avanti ? u"Image1(3)"_s : u"Pannello1(0)"_s);
    }
}

TEST(Tela, PostiFuoriDalMondoNonFermanoNulla) {
    TelaProva tela(u"Layout1"_s,
                   {u"UPDATE Layout1 SET Visibile=1, \"left\"=-3e38, \"top\"=3e38, Altezza=3e38, Larghezza=-5 "
                    "WHERE DescCampo IN ('IM1','MP1','WB2','YT')"_s,
                    u"UPDATE Layout1 SET Visibile=1, \"left\"=-1e9, \"top\"=-1e9, Altezza=2e9, Larghezza=2e9, "
                    "PercorsoImmagine=(SELECT PercorsoImmagine FROM Layout1 WHERE DescCampo='Label2') "
                    "WHERE DescCampo LIKE 'Image1%' OR DescCampo LIKE 'Text9%'"_s});
    tela.form->grab();
    tela.trascina(QPoint(900, 500), QPoint(700, 400)); // whatever lies there
    tela.form->grab();
    SUCCEED();
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

TEST(Tela, PosizioneESecondoSchermo) {
    TelaProva tela;
    tela.installazione.piattaforma.monitors.monitor = {QRect(0, 0, 1280, 800)};
    clicca(*tela.form, "Btn(14)");
    EXPECT_EQ(tela.form->pos(), QPoint(1281, 0));
    tela.form->move(1281, 30);
    clicca(*tela.form, "Btn(15)");
    EXPECT_EQ(tela.installazione.righe(u"SELECT MisuraFormLeft, MisuraFormTop FROM Configurazione"_s),
              QStringList(u"19215|450"_s));
    QTest::keyClick(tela.form.get(), Qt::Key_Escape);
    EXPECT_EQ(tela.form->pos(), QPoint(0, 30));
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
    tela.installazione.valori.LayoutCorrente = u"Layout1"_s;
    guida.quando("Form1", [&](QWidget &form) {
        EXPECT_EQ(form.size(), QSize(1920, 1080));
        EXPECT_EQ(form.windowTitle(), u"Impostazione Modulo : Layout1"_s);
        EXPECT_EQ(trova<QWidget>(form, "MP1").geometry(), rettangoloTela(video));
        EXPECT_TRUE(trova<QWidget>(form, "YT").isVisible());
        clicca(form, "Btn(17)");
    });
    tela.form.reset();
    apriDesigner(tela.installazione.ambiente, nullptr, 3, u"Layout1"_s, {});
    EXPECT_TRUE(guida.finita());
}

TEST(Tela, UnSalvataggioFallitoLasciaLaTelaESiRipete) {
    TelaProva tela;
    tela.e("MP1").area.left = 777;
    tela.installazione.esegui(u"CREATE TRIGGER ferma BEFORE UPDATE ON Layout1 WHEN old.DescCampo='MP1' "
                              "BEGIN SELECT RAISE(FAIL,'prova'); END"_s);
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    EXPECT_TRUE(righe.contains(u"30"_s)) << righe.toStdString(); // rows written before
    EXPECT_TRUE(tela.form->isVisible());
    EXPECT_EQ(tela.e("MP1").area.left, 777);
    tela.installazione.esegui(u"DROP TRIGGER ferma"_s);
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    EXPECT_EQ(righe, u"Memorizzazione effettuata !"_s);
    EXPECT_EQ(tela.installazione.valore(u"SELECT \"left\" FROM Layout1 WHERE DescCampo='MP1'"_s).toInt(), 777);
}

TEST(Tela, UnSalvataggioBloccatoDaUnAltroProgrammaSiRipete) {
    TelaProva tela;
    tela.e("MP1").area.left = 888;
    const QByteArray prima = tela.installazione.contenuto();
    std::optional<Fratello> altro(tela.installazione.archivio());
    ASSERT_EQ(altro->esegui(u"BEGIN IMMEDIATE"_s), SQLITE_OK);
    QString righe;
    Guida guida;
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    EXPECT_FALSE(righe.contains(u"Memorizzazione effettuata !"_s)) << righe.toStdString();
    EXPECT_EQ(tela.e("MP1").area.left, 888);
    altro.reset();
    EXPECT_EQ(tela.installazione.contenuto(), prima);
    guida.messaggio(&righe);
    clicca(*tela.form, "Btn(16)");
    EXPECT_EQ(righe, u"Memorizzazione effettuata !"_s);
    EXPECT_EQ(tela.installazione.valore(u"SELECT \"left\" FROM Layout1 WHERE DescCampo='MP1'"_s).toInt(), 888);
}

TEST(ApriDesigner, CioCheNonSiLeggeSiDiceUnaVolta) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Layout1 SET Visibile=1, PercorsoImmagine='/manca/a.jpg' "
                                  "WHERE DescCampo IN ('Image1(1)','Image1(9)')"_s,
                                  u"DELETE FROM Layout1 WHERE DescCampo='Pannello1(7)'"_s});
    const auto box = tela.aspettaBox();
    ASSERT_EQ(box.size(), 1U);
    EXPECT_TRUE(box[0].testo.contains(u"Decorazione 9"_s) && box[0].testo.contains(u"69 righe"_s));
    clicca(*tela.form, "Btn(1)"); // usable
    EXPECT_THROW(apriDesigner(tela.installazione.ambiente, nullptr, 3, u"Layout99"_s, {}), EngineError);
}

} // namespace
