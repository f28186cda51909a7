#include "designer/logic/CRect.h"
#include "designer/logic/Maniglie.h"

#include <gtest/gtest.h>
#include <limits>

namespace zuvora {

namespace {

TEST(CRect, PointOnTheNearEdgesIsInsideOnTheFarEdgesOutside) {
    const CRect r(10, 20, 30, 40);
    EXPECT_TRUE(r.PtInRect(10, 20));
    EXPECT_TRUE(r.PtInRect(29.5F, 39.5F));
    EXPECT_FALSE(r.PtInRect(30, 20));
    EXPECT_FALSE(r.PtInRect(10, 40));
    EXPECT_FALSE(r.PtInRect(9.5F, 20));
}

TEST(CRect, ExtremeEdgesStayWithin32Bits) {
    constexpr int massimo = std::numeric_limits<int>::max();
    constexpr int minimo = std::numeric_limits<int>::min();
    CRect r(minimo, massimo, massimo, minimo);
    EXPECT_EQ(r.Width(), massimo);
    EXPECT_EQ(r.Height(), minimo);
    r.setWidth(massimo);
    EXPECT_EQ(r.right(), -1);
    r.setHeight(7);
    EXPECT_EQ(r.bottom(), massimo);
    r.NormalizeRect();
    EXPECT_EQ(r, CRect(minimo, massimo, -1, massimo));
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
