#include "designer/logic/CRect.h"
#include "designer/logic/Maniglie.h"

#include <gtest/gtest.h>
#include <limits>

namespace zuvora {

namespace {

constexpr int massimo = std::numeric_limits<int>::max();
constexpr int minimo = std::numeric_limits<int>::min();

struct Finto final : ControlloRect {
    double Left() const override { return l; }
    double Top() const override { return t; }
    double Width() const override { return w; }
    double Height() const override { return h; }
    void Move(double left, double top, double width, double height) override {
        l = left;
        t = top;
        w = width;
        h = height;
    }
    QPoint OrigineGenitore() const override { return {100, 50}; }
    double TwipsPerPixelX() const override { return tpp; }

    double l = 0, t = 0, w = 0, h = 0;
    double tpp = 15;
};

TEST(CRect, ConvertsBetweenTwipsAndTheScreenWithTheParentsOrigin) {
    Finto ctl;
    ctl.Move(1500, -30, 300, 600);
    CRect r;
    r.SetRectToCtrl(ctl);
    EXPECT_EQ(r, CRect(1500, -30, 1800, 570));
    r.TwipsToScreen(ctl);
    EXPECT_EQ(r, CRect(200, 48, 220, 88));
    r.ScreenToTwips(ctl);
    EXPECT_EQ(r, CRect(1500, -30, 1800, 570));
}

TEST(CRect, RoundsEachEdgeToTheNearestPixel) {
    Finto ctl;
    ctl.Move(1000, 7, 7005, 1);
    CRect r;
    r.SetRectToCtrl(ctl);
    r.TwipsToScreen(ctl);
    EXPECT_EQ(r, CRect(167, 50, 634, 51));
    ctl.tpp = 12; // halves go to the even number
    CRect meta(6, 18, 30, 42);
    meta.TwipsToScreen(ctl);
    EXPECT_EQ(meta, CRect(100, 52, 102, 54));
}

TEST(CRect, WidthAndHeightMoveTheFarEdge) {
    CRect r(10, 20, 30, 40);
    r.setWidth(-4);
    r.setHeight(7);
    EXPECT_EQ(r, CRect(10, 20, 6, 27));
    EXPECT_EQ(r.Width(), -4);
}

TEST(CRect, CrossedEdgesAreSwappedWhenTheControlTakesThem) {
    Finto ctl;
    CRect r(90, 80, 30, 20);
    r.SetCtrlToRect(ctl);
    EXPECT_EQ(r, CRect(30, 20, 90, 80));
    EXPECT_EQ(ctl.l, 30);
    EXPECT_EQ(ctl.w, 60);
    EXPECT_EQ(ctl.h, 60);
}

TEST(CRect, PointOnTheNearEdgesIsInsideOnTheFarEdgesOutside) {
    const CRect r(10, 20, 30, 40);
    EXPECT_TRUE(r.PtInRect(10, 20));
    EXPECT_TRUE(r.PtInRect(29.5F, 39.5F));
    EXPECT_FALSE(r.PtInRect(30, 20));
    EXPECT_FALSE(r.PtInRect(10, 40));
    EXPECT_FALSE(r.PtInRect(9.5F, 20));
}

TEST(CRect, ExtremeEdgesStayWithin32Bits) {
    CRect r(minimo, massimo, massimo, minimo);
    EXPECT_EQ(r.Width(), massimo);
    EXPECT_EQ(r.Height(), minimo);
    r.setWidth(massimo);
    EXPECT_EQ(r.right(), -1);
    Finto ctl;
    ctl.Move(1e300, -1e300, 1e300, 5);
    r.SetRectToCtrl(ctl);
    EXPECT_EQ(r, CRect(massimo, minimo, massimo, minimo));
    r.ScreenToTwips(ctl);
    EXPECT_EQ(r, CRect(massimo, minimo, massimo, minimo));
    r.TwipsToScreen(ctl);
    EXPECT_EQ(r.left(), massimo / 15 + 100);
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
