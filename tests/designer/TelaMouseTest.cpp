// The mouse and the keyboard on the canvas, driven through the controls' names.
#include "designer/TelaProva.h"

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

namespace {

Area spostata(Area a, double dx, double dy) {
    return {a.left + dx, a.top + dy, a.width, a.height};
}

bool maniglieVisibili(const TelaProva &tela) {
    return !tela.w("picHandle(0)").isHidden();
}

TEST(Contorno, LElementoSaltaAlRilascioEPrendeLeManiglie) {
    TelaProva tela;
    const Area prima = tela.e("WB1").area;
    const QPoint presa = tela.rettangolo("WB1").center();
    QTest::mousePress(&tela.w("WB1"), Qt::LeftButton, {}, QPoint(40, 40));
    EXPECT_EQ(tela.form->ElementoSelezionato(), u"WB1"_s);
    EXPECT_EQ(QWidget::mouseGrabber(), tela.form.get());
    const QPoint inizio = tela.rettangolo("WB1").topLeft() + QPoint(40, 40);
    tela.muovi(inizio + QPoint(-30, 10));
    EXPECT_EQ(tela.e("WB1").area, prima); // only the outline moves
    EXPECT_FALSE(maniglieVisibili(tela));
    QTest::mouseRelease(tela.form.get(), Qt::RightButton, {}, inizio); // not the button that ends it
    EXPECT_EQ(QWidget::mouseGrabber(), tela.form.get());
    tela.muovi(inizio + QPoint(-100, 20));
    QTest::mouseRelease(tela.form.get(), Qt::LeftButton, {}, inizio + QPoint(-100, 20));
    EXPECT_EQ(tela.e("WB1").area, spostata(prima, -1500, 300));
    EXPECT_EQ(tela.rettangolo("WB1").center(), presa + QPoint(-100, 20));
    EXPECT_TRUE(maniglieVisibili(tela));
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    tela.premi(tela.rettangolo("MP1").center());
    EXPECT_FALSE(maniglieVisibili(tela)); // from the press on
    tela.rilascia(tela.rettangolo("MP1").center());
    EXPECT_TRUE(maniglieVisibili(tela));
    tela.premi(tela.rettangolo("picHandle(4)").center());
    EXPECT_FALSE(maniglieVisibili(tela));
    tela.rilascia(tela.rettangolo("picHandle(4)").center());
    QTest::mouseClick(&tela.w("WB1"), Qt::LeftButton, {}, QPoint(40, 40));
    tela.clicca(QPoint(1915, 600)); // the bare canvas
    EXPECT_FALSE(maniglieVisibili(tela));
    EXPECT_EQ(tela.form->ElementoSelezionato(), u"WB1"_s);
}

// The outline must show on any ground, middle grey too, over the toolbox too, and leave no trace.
TEST(Contorno, SiVedeSuOgniFondoENonLasciaTracce) {
    TelaProva tela(u"Layout1"_s, {u"UPDATE Layout1 SET PercorsoImmagine=NULL, Visibile=0, ColoreSfondo=8421504"_s,
                                  u"UPDATE Layout1 SET Visibile=1 WHERE DescCampo='MP1'"_s});
    const TelaProva::Vista prima = tela.vista();
    const QRect video = tela.rettangolo("MP1");
    const QPoint presa = video.center();
    tela.premi(presa);
    const QPoint scarto(120 - video.left(), 100 - video.top()); // across the toolbox
    tela.muovi(presa + scarto);
    const TelaProva::Vista durante = tela.vista();
    for (const QPoint p : {QPoint(120, 300), QPoint(120, 425), QPoint(500, 100), QPoint(60 + video.width(), 300)}) {
        int diversi = 0;
        for (int d = -2; d <= 2; ++d)
            for (const QPoint q : {p + QPoint(d, 0), p + QPoint(0, d)})
                diversi += qAbs(qGray(durante(q)) - qGray(prima(q))) > 60 ? 1 : 0;
        const bool sulBordo = p.x() == 120 || p.y() == 100;
        EXPECT_EQ(diversi > 0, sulBordo) << p.x() << ',' << p.y();
    }
    tela.muovi(presa);
    tela.rilascia(presa);
    tela.clicca(QPoint(1915, 1075)); // no handles
    EXPECT_EQ(tela.vista().immagine, prima.immagine);
}

TEST(Contorno, ChiPerdeIlMouseRinuncia) {
    TelaProva tela;
    const Area prima = tela.e("MP1").area;
    const QPoint presa = tela.rettangolo("MP1").center();
    tela.premi(presa);
    tela.muovi(presa + QPoint(50, 50));
    QEvent persa(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(tela.form.get(), &persa);
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    tela.rilascia(presa);
    EXPECT_EQ(tela.e("MP1").area, prima);
}

TEST(Maniglie, MuovonoIlLoroBordoAnchePreseUnPocoFuori) {
    TelaProva tela;
    tela.clicca(tela.rettangolo("MP1").center());
    const QRect prima = tela.rettangolo("MP1");
    const QPoint maniglia = tela.rettangolo("picHandle(3)").center();
    EXPECT_EQ(tela.rettangolo("picHandle(3)").size(), QSize(5, 5));
    EXPECT_EQ(tela.form->childAt(maniglia + QPoint(5, 5))->objectName(), u"presaManiglia(3)"_s);
    constexpr std::array cursori{Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(trova<QWidget>(*tela.form, QByteArray("presaManiglia(" + QByteArray::number(i) + ")").constData())
                      .cursor()
                      .shape(),
                  cursori[i % 4])
            << i;
    EXPECT_EQ(tela.form->childAt(maniglia - QPoint(6, 0))->objectName(), u"MP1"_s);
    tela.trascina(maniglia + QPoint(5, 5), QPoint(prima.right() - 39, 0));
    EXPECT_EQ(tela.rettangolo("MP1"), prima.adjusted(0, 0, -40, 0));
}

TEST(Maniglie, IlTastoDestroIniziaESoloIlSinistroFinisce) {
    TelaProva tela;
    tela.clicca(tela.rettangolo("MP1").center());
    const Area prima = tela.e("MP1").area;
    const QPoint maniglia = tela.rettangolo("picHandle(7)").center();
    tela.clicca(maniglia, Qt::RightButton);
    EXPECT_EQ(QWidget::mouseGrabber(), tela.form.get());
    tela.muovi(maniglia + QPoint(-60, 0));
    EXPECT_EQ(tela.e("MP1").area, prima);
    tela.clicca(maniglia + QPoint(-60, 0)); // wherever: the mouse belongs to the form
    EXPECT_NEAR(tela.e("MP1").area.width, prima.width + 900, 45);
    EXPECT_EQ(tela.e("MP1").area.left + tela.e("MP1").area.width, prima.left + prima.width);
}

TEST(TrascinaVivo, IlPannelloSegueLEtichettaEDaFuoriTornaNellAngolo) {
    TelaProva tela;
    const Area prima = tela.e("Pannello1(1)").area;
    const QPoint presa = tela.rettangolo("Text1(4)").bottomRight() - QPoint(3, 3);
    tela.premi(presa);
    EXPECT_EQ(tela.form->ElementoSelezionato(), u"Text1(4)"_s);
    tela.premi(presa, Qt::RightButton); // the mouse belongs to the panel
    tela.muovi(presa + QPoint(-15, 40));
    tela.muovi(presa + QPoint(30, 20));
    EXPECT_EQ(tela.e("Pannello1(1)").area, spostata(prima, 450, 300));
    EXPECT_EQ(tela.rettangolo("Pannello1(1)"), rettangoloTela(spostata(prima, 450, 300)));
    tela.rilascia(presa + QPoint(30, 20));
    EXPECT_EQ(tela.e("Pannello1(1)").area, spostata(prima, 450, 300));
    EXPECT_FALSE(maniglieVisibili(tela));
    tela.trascina(presa + QPoint(30, 20), presa + QPoint(2500, 0));
    EXPECT_EQ(tela.rettangolo("Pannello1(1)").topLeft(), QPoint(0, 0));
}

TEST(Strumenti, LaStrisciaLiTrascinaEDaFuoriTornanoNellAngolo) {
    TelaProva tela;
    const QPoint presa = tela.rettangolo("Image2").topLeft() + QPoint(10, 10);
    tela.trascina(presa, presa + QPoint(700, 300));
    EXPECT_EQ(tela.rettangolo("SSPanel1").topLeft(), QPoint(724, 324));
    tela.trascina(presa + QPoint(700, 300), presa + QPoint(700, -100));
    EXPECT_EQ(tela.rettangolo("SSPanel1").topLeft(), QPoint(0, 0));
    EXPECT_FALSE(tela.rettangolo("DidascaliaForm").intersects(tela.rettangolo("SSPanel1")));
    EXPECT_TRUE(tela.form->rect().contains(tela.rettangolo("DidascaliaForm")));
}

TEST(Strumenti, LaPresaMuoveIlForm) {
    TelaProva tela;
    const QPoint presa = tela.rettangolo("Image3").center();
    QTest::mousePress(&tela.w("Image3"), Qt::LeftButton);
    QMouseEvent mossa(QEvent::MouseMove, {5, 5}, QPointF(presa + QPoint(60, 40)), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&tela.w("Image3"), &mossa);
    EXPECT_EQ(tela.form->pos(), QPoint(60, 40));
    QTest::mouseRelease(&tela.w("Image3"), Qt::LeftButton);
}

// The outline belongs to the screen, the form moves under it.
TEST(Tastiera, EscDuranteUnTrascinamentoRidisegnaIlContorno) {
    TelaProva tela;
    tela.form->move(60, 40);
    const Area area = tela.e("MP1").area;
    const QPoint presa = tela.rettangolo("MP1").center();
    tela.premi(presa);
    tela.muovi(presa + QPoint(-100, -50));
    const TelaProva::Vista prima = tela.vista();
    QTest::keyClick(tela.form.get(), Qt::Key_Escape);
    EXPECT_EQ(tela.form->pos(), QPoint(0, 40));
    const TelaProva::Vista dopo = tela.vista();
    const QPoint angolo = tela.rettangolo("MP1").topLeft() + QPoint(-100, -50);
    EXPECT_NE(prima(angolo), dopo(angolo));
    EXPECT_NE(dopo(angolo + QPoint(60, 0)), prima(angolo + QPoint(60, 200)));
    tela.rilascia(presa + QPoint(-40, -50));
    EXPECT_EQ(tela.e("MP1").area, spostata(area, -40 * 15, -50 * 15));
}

TEST(Tastiera, CancToglieLUltimoSelezionato) {
    TelaProva tela;
    QTest::keyClick(tela.form.get(), Qt::Key_Delete); // nothing selected yet
    tela.clicca(tela.rettangolo("Text1(3)").center());
    tela.clicca(QPoint(1915, 1075)); // the bare canvas keeps the selection
    QTest::keyClick(&tela.w("Btn(0)"), Qt::Key_Delete);
    const LayoutElement &pannello = tela.e("Pannello1(1)");
    EXPECT_FALSE(pannello.visibile);
    EXPECT_EQ(QPointF(pannello.area.left, pannello.area.top), QPointF(1000, 23000));
    EXPECT_TRUE(tela.w("Pannello1(1)").isHidden());
    EXPECT_TRUE(tela.w("Text1(3)").isVisibleTo(&tela.w("Pannello1(1)"))); // its own row doesn't change
}

// In the base layout only the decorations can be taken; panels open their properties.
TEST(LayoutBase, ChePochiRispondono) {
    TelaProva tela(u"LayoutBase"_s, {u"UPDATE LayoutBase SET Visibile=1, FontBold=1, \"left\"=6000, \"top\"=2000 "
                                     "WHERE DescCampo='Image1(5)'"_s});
    const DisplayLayout prima = tela.layout;
    for (const char *nome : {"Text1(4)", "MP1", "Pannello1(1)"}) {
        const QPoint presa = tela.rettangolo(nome).bottomRight() - QPoint(4, 4);
        tela.trascina(presa, presa + QPoint(20, 20));
        EXPECT_EQ(tela.form->ElementoSelezionato(), QString()) << nome;
    }
    QTest::mouseClick(&tela.w("Text9(1)"), Qt::RightButton);
    EXPECT_TRUE(std::equal(prima.begin(), prima.end(), tela.layout.begin()));
    const QPoint presa = tela.rettangolo("Image1(5)").center();
    tela.trascina(presa, presa + QPoint(10, 0));
    EXPECT_EQ(tela.e("Image1(5)").area.left, 6150);
    EXPECT_EQ(tela.form->Caption(), u"Impostazione Modulo : LayoutBase  Controllo : Decorazione 5"_s);
    Guida guida;
    guida.premi("Form2", "Btn(1)");
    QTest::mouseClick(&tela.w("Pannello1(0)"), Qt::RightButton, {}, QPoint(3, 3));
    EXPECT_TRUE(guida.finita());
    EXPECT_EQ(tela.form->Caption(), u"Impostazione Modulo : LayoutBase  Controllo : Decorazione 5"_s);
}

TEST(LayoutBase, LaTelaNudaApreIlMenuCheChiude) {
    TelaProva tela(u"LayoutBase"_s);
    tela.premi(QPoint(1915, 500), Qt::RightButton);
    QMenu &menu = trova<QMenu>(*tela.form, "M2");
    ASSERT_TRUE(menu.isVisible());
    ASSERT_EQ(menu.actions().size(), 1);
    EXPECT_EQ(menu.actions().front()->text(), u"Chiudi Schermata"_s);
    menu.close();
    menu.actions().front()->trigger();
    EXPECT_FALSE(tela.form->isVisible());
}

} // namespace
