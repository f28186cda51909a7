#include "designer/logic/Trascinamento.h"
#include "designer/logic/CRect.h"
#include "designer/logic/Maniglie.h"

#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace zuvora {

namespace {

// A form at 100, 50 on the screen, 1366 x 768 pixels, without a frame.
const GeometriaForm form{{100, 50}, {100, 50, 1366, 768}, 15};

class Contorno : public ::testing::Test {
protected:
    Contorno() { area() = {1500, 3000, 1500, 900}; }

    Area &area() { return layout[posto].area; }
    // The press at the middle of the element: 200, 250 to 300, 310 on the screen.
    void premi() { ASSERT_TRUE(drag.InizioTrascinamento(layout, posto, {250, 280}, form)); }

    DisplayLayout layout{QStringLiteral("Layout1")};
    int posto = DisplayLayout::postoDi(TipoElemento::IM1);
    Trascinamento drag;
};

TEST_F(Contorno, CursorStaysWithinTheFormAndTheElementMayLeaveItByItsGrip) {
    premi();
    drag.MouseMove(layout, {-5000, 5000}, form);
    EXPECT_EQ(drag.RettangoloTrascinamento(), CRect(50, 787, 150, 847)); // cursor at 100, 817
    drag.MouseUp(layout, Qt::LeftButton, form);
    EXPECT_EQ(area(), (Area{-750, 11055, 1500, 900}));
}

TEST_F(Contorno, EachHandleMovesItsEdgesOnlyAndCrossedOnesArePutRight) {
    // The cursor goes to 170, 230: beyond the top left corner of 200, 250, 300, 310.
    constexpr std::array<Area, numeroManiglie> attese{{{1050, 2700, 1950, 1200},
                                                       {1500, 2700, 1500, 1200},
                                                       {1050, 2700, 450, 1200},
                                                       {1050, 3000, 450, 900},
                                                       {1050, 2700, 450, 300},
                                                       {1500, 2700, 1500, 300},
                                                       {1050, 2700, 1950, 300},
                                                       {1050, 3000, 1950, 900}}};
    for (int maniglia = 0; maniglia < numeroManiglie; ++maniglia) {
        area() = {1500, 3000, 1500, 900};
        premi();
        drag.MouseUp(layout, Qt::LeftButton, form);
        ASSERT_TRUE(drag.InizioRidimensionamento(layout, maniglia, form));
        EXPECT_FALSE(drag.maniglieVisibili());
        EXPECT_FALSE(drag.InizioTrascinamento(layout, posto, {250, 280}, form)) << "the mouse belongs to the drag";
        EXPECT_TRUE(drag.MouseMove(layout, {170, 230}, form));
        EXPECT_TRUE(drag.MouseUp(layout, Qt::LeftButton, form));
        EXPECT_EQ(area(), attese[static_cast<std::size_t>(maniglia)]) << maniglia;
    }
    premi();
    drag.MouseMove(layout, {700, 300}, form);
    drag.interrompi(); // given up: the element stays, and the outline with it
    EXPECT_FALSE(drag.inContorno());
    EXPECT_EQ(drag.RettangoloTrascinamento(), CRect(1050, 3000, 3000, 3900));
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
    DisplayLayout altro(QStringLiteral("Layout1"));
    Area &pannello = altro.elemento(TipoElemento::Pannello1, 2).area;
    pannello.left = -30; // left there by the outline drag; any release over a label puts it right
    EXPECT_TRUE(rilasciaPannello(altro, 6, tela));
    EXPECT_EQ(QPointF(pannello.left, pannello.top), QPointF());
    EXPECT_FALSE(rilasciaPannello(altro, 7, tela));
}

TEST(CRect, ExtremeEdgesStayWithin32Bits) {
    constexpr int massimo = std::numeric_limits<int>::max();
    constexpr int minimo = std::numeric_limits<int>::min();
    CRect r(minimo, massimo, massimo, minimo);
    r.setWidth(massimo);
    EXPECT_EQ(r.right(), -1);
    r.setHeight(7);
    EXPECT_EQ(r.bottom(), massimo);
    r.NormalizeRect();
    EXPECT_EQ(r, CRect(minimo, massimo, -1, massimo));
    const CRect dentro(10, 20, 30, 40); // left and top belong to it, right and bottom don't
    for (const auto &[x, y, attesa] : {std::tuple(10.F, 20.F, true),
                                       {29.5F, 39.5F, true},
                                       {30.F, 25.F, false},
                                       {15.F, 40.F, false},
                                       {9.5F, 25.F, false},
                                       {15.F, 19.5F, false}})
        EXPECT_EQ(dentro.PtInRect(x, y), attesa) << x << ' ' << y;
    EXPECT_EQ(interoVicino(1e300), massimo);
    EXPECT_EQ(interoVicino(-1e300), minimo);
    EXPECT_EQ(interoVicino(2.5), 2); // halves to the even number
    EXPECT_EQ(interoVicino(3.5), 4);
}

TEST(Maniglie, StandOnTheEdgesHalfAPixelInside) {
    const auto posti = postiManiglie(CRect(1500, 3000, 2505, 3601), 15);
    // 75 twips a side: half is 37; half a pixel is 8 twips; 1005 / 2 is 502, 601 / 2 is 300.
    constexpr std::array<PostoManiglia, numeroManiglie> attesi{{{1471, 2971},
                                                                {1965, 2971},
                                                                {2460, 2971},
                                                                {2460, 3263},
                                                                {2460, 3556},
                                                                {1965, 3556},
                                                                {1471, 3556},
                                                                {1471, 3263}}};
    EXPECT_EQ(posti, attesi);
}

TEST(Maniglie, ReactFurtherThanTheyShowButNotOverASmallElement) {
    EXPECT_EQ(ampiezzaPresa(400), 11);
    EXPECT_EQ(ampiezzaPresa(33), 11);
    EXPECT_EQ(ampiezzaPresa(24), 8);
    EXPECT_EQ(ampiezzaPresa(0), 5);
}

} // namespace

} // namespace zuvora
