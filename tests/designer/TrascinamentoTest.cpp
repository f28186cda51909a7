#include "designer/logic/Trascinamento.h"

#include <gtest/gtest.h>

namespace zuvora {

namespace {

using Stato = Trascinamento::Stato;

// A form at 100, 50 on the screen, 1366 x 768 pixels, without a frame.
const GeometriaForm form{{100, 50}, {100, 50, 1366, 768}, 15};

class Contorno : public ::testing::Test {
protected:
    Contorno() { layout[posto].area = {1500, 3000, 1500, 900}; }

    const Area &area() const { return layout[posto].area; }
    // The press at the middle of the element: 200, 250 to 300, 310 on the screen.
    void premi() { ASSERT_TRUE(drag.InizioTrascinamento(layout, posto, {250, 280}, form)); }
    void trascinaManiglia(int maniglia, QPoint a) {
        premi();
        drag.MouseUp(layout, Qt::LeftButton, form);
        ASSERT_TRUE(drag.InizioRidimensionamento(layout, maniglia, form));
        drag.MouseMove(layout, a, form);
        drag.MouseUp(layout, Qt::LeftButton, form);
    }

    DisplayLayout layout{QStringLiteral("Layout1")};
    int posto = DisplayLayout::postoDi(TipoElemento::IM1);
    Trascinamento drag;
};

TEST_F(Contorno, MoveCarriesTheOutlineByTheGripAndTheReleaseTheElement) {
    premi();
    EXPECT_EQ(drag.StatoTrascinamento(), Stato::Spostamento);
    EXPECT_EQ(drag.RettangoloTrascinamento(), CRect(200, 250, 300, 310));
    EXPECT_TRUE(drag.MouseMove(layout, {900, 700}, form));
    EXPECT_TRUE(drag.MouseMove(layout, {260, 270}, form)); // counts from the press
    EXPECT_EQ(drag.RettangoloTrascinamento(), CRect(210, 240, 310, 300));
    EXPECT_EQ(area(), (Area{1500, 3000, 1500, 900}));
    EXPECT_TRUE(drag.MouseUp(layout, Qt::LeftButton, form));
    EXPECT_EQ(area(), (Area{1650, 2850, 1500, 900}));
    EXPECT_EQ(drag.RettangoloTrascinamento(), CRect(1650, 2850, 3150, 3750)); // twips now, for the handles
    EXPECT_TRUE(drag.maniglieVisibili());
    EXPECT_FALSE(drag.MouseMove(layout, {0, 0}, form));
}

TEST_F(Contorno, CursorStaysWithinTheFormAndTheElementMayLeaveItByItsGrip) {
    premi();
    drag.MouseMove(layout, {-5000, 5000}, form);
    EXPECT_EQ(drag.RettangoloTrascinamento(), CRect(50, 787, 150, 847)); // cursor at 100, 817
    drag.MouseUp(layout, Qt::LeftButton, form);
    EXPECT_EQ(area(), (Area{-750, 11055, 1500, 900}));
}

TEST_F(Contorno, EachHandleMovesItsEdgesOnly) {
    // The cursor goes to 170, 230: beyond the top left corner of 200, 250, 300, 310.
    struct Caso {
        int maniglia;
        CRect attesa;
    };
    const std::array casi{Caso{0, {170, 230, 300, 310}}, Caso{1, {200, 230, 300, 310}}, Caso{2, {200, 230, 170, 310}},
                          Caso{3, {200, 250, 170, 310}}, Caso{4, {200, 250, 170, 230}}, Caso{5, {200, 250, 300, 230}},
                          Caso{6, {170, 250, 300, 230}}, Caso{7, {170, 250, 300, 310}}};
    for (const Caso &caso : casi) {
        Trascinamento d;
        d.InizioTrascinamento(layout, posto, {250, 280}, form);
        d.MouseUp(layout, Qt::LeftButton, form);
        ASSERT_TRUE(d.InizioRidimensionamento(layout, caso.maniglia, form));
        EXPECT_FALSE(d.maniglieVisibili());
        d.MouseMove(layout, {170, 230}, form);
        EXPECT_EQ(d.RettangoloTrascinamento(), caso.attesa) << caso.maniglia;
    }
}

TEST_F(Contorno, LeftHandleBeyondTheRightEdgeGivesTheDistanceAsWidth) {
    trascinaManiglia(7, {340, 0});
    EXPECT_EQ(area(), (Area{3000, 3000, 600, 900}));
}

TEST_F(Contorno, OnlyTheLeftReleaseEndsADrag) {
    premi();
    drag.MouseUp(layout, Qt::LeftButton, form);
    ASSERT_TRUE(drag.InizioRidimensionamento(layout, 3, form)); // as by the right button
    EXPECT_FALSE(drag.MouseUp(layout, Qt::RightButton, form));
    EXPECT_EQ(drag.StatoTrascinamento(), Stato::Ridimensionamento);
    EXPECT_FALSE(drag.InizioTrascinamento(layout, posto, {250, 280}, form)); // the mouse belongs to the drag
    EXPECT_FALSE(drag.InizioRidimensionamento(layout, 0, form));
    drag.MouseMove(layout, {320, 280}, form);
    EXPECT_TRUE(drag.MouseUp(layout, Qt::LeftButton, form));
    EXPECT_EQ(area().width, 1800);
    premi();
    drag.MouseMove(layout, {700, 300}, form);
    drag.interrompi(); // given up: the element stays, and the outline with it
    EXPECT_FALSE(drag.inContorno());
    EXPECT_EQ(drag.RettangoloTrascinamento(), CRect(1500, 3000, 3300, 3900));
}

TEST_F(Contorno, FormThatMovesDuringADragIsAllowedFor) {
    premi();
    GeometriaForm spostata = form;
    spostata.origine.setX(0); // Esc: the form goes to left 0
    drag.MouseUp(layout, Qt::LeftButton, spostata);
    EXPECT_EQ(area(), (Area{3000, 3000, 1500, 900}));
}

// Height 11520, width 20490.
constexpr Dimensione tela{20490, 11520};

TEST(RegolaLimiti, EachTargetHasItsOwnSides) {
    constexpr int strumenti = bersaglioStrumenti;
    const auto resta = [](int bersaglio, PuntoTwips posto) {
        const PuntoTwips dopo = postoDopoRilascio(bersaglio, posto, tela);
        EXPECT_TRUE(dopo == posto || dopo == PuntoTwips{});
        return dopo == posto;
    };
    for (const PuntoTwips dentro : {PuntoTwips{30000, 100}, {-5000, 100}, {100, 11520}, {100, 0}})
        EXPECT_TRUE(resta(0, dentro)) << dentro.left << ' ' << dentro.top;
    for (const PuntoTwips dentro : {PuntoTwips{100, 30000}, {100, -3000}, {20490, 100}, {0, 100}})
        EXPECT_TRUE(resta(1, dentro) && resta(7, dentro)) << dentro.left << ' ' << dentro.top;
    EXPECT_TRUE(resta(strumenti, {20490, 11520}));
    for (const PuntoTwips fuori : {PuntoTwips{100, -1}, {100, 11521}})
        EXPECT_FALSE(resta(0, fuori) || resta(strumenti, fuori)) << fuori.top;
    for (const PuntoTwips fuori : {PuntoTwips{-1, 100}, {20491, 100}})
        EXPECT_FALSE(resta(1, fuori) || resta(7, fuori) || resta(strumenti, fuori)) << fuori.left;
    DisplayLayout base(QStringLiteral("LayoutBase"));
    base.elemento(TipoElemento::Pannello1, 1).area.left = -30;
    EXPECT_FALSE(rilasciaPannello(base, 4, tela)); // its labels do nothing
}

TEST_F(Contorno, ALabelCarriesItsPanelFromTheStart) {
    Area &pannello = layout.elemento(TipoElemento::Pannello1, 2).area;
    pannello = {1000, 2000, 7005, 6495};
    ASSERT_TRUE(drag.prendiPannello(layout, 2, {500, 400}));
    EXPECT_FALSE(drag.prendiStrumenti({}, {})); // one thing at a time
    EXPECT_FALSE(drag.InizioTrascinamento(layout, posto, {250, 280}, form));
    EXPECT_TRUE(drag.MouseMove(layout, {900, 900}, form));
    EXPECT_TRUE(drag.MouseMove(layout, {501, 398}, form));
    EXPECT_FALSE(drag.MouseMove(layout, {501, 398}, form));
    EXPECT_EQ(pannello, (Area{1015, 1970, 7005, 6495}));
    EXPECT_FALSE(drag.MouseUp(layout, Qt::LeftButton, form)); // no outline
    drag.lascia();
    EXPECT_FALSE(drag.TrascinamentoAttivo());
    pannello.left = -30; // left there by the outline drag; any release over a label puts it right
    EXPECT_TRUE(rilasciaPannello(layout, 6, tela));
    EXPECT_EQ(pannello, (Area{0, 0, 7005, 6495}));
    EXPECT_FALSE(rilasciaPannello(layout, 7, tela));
}

TEST_F(Contorno, ToolboxAndFormFollowTheMouseToo) {
    ASSERT_TRUE(drag.prendiStrumenti({360, 360}, {100, 100}));
    EXPECT_TRUE(drag.MouseMove(layout, {110, 90}, form));
    EXPECT_EQ(drag.postoStrumenti(), (PuntoTwips{510, 210}));
    drag.lascia();
    ASSERT_TRUE(drag.prendiFinestra({-40, 7}, {100, 100}));
    EXPECT_TRUE(drag.MouseMove(layout, {130, 110}, form));
    EXPECT_EQ(drag.postoFinestra(), QPoint(-10, 17));
}

} // namespace

} // namespace zuvora
