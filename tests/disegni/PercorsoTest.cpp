#include "shell/disegni/Percorso.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zuvora {
namespace {

struct Caso {
    const char *dati;
    const char *uguale; // the same outline, written with other commands
};

TEST(Percorso, DaLaStessaLineaComunqueSiaScritto) {
    const Caso casi[] = {Caso{"M1 2l3 4", "M1 2L4 6"},          // relative
                         Caso{"m1 2 3 4", "M1 2L4 6"},          // pairs after a move are lines
                         Caso{"M1,2L4,6", " M 1 2\n L +4\t6 "}, // separators
                         Caso{"M1 2H4V6h-2v-1", "M1 2L4 2L4 6L2 6L2 5"},
                         Caso{"M.5-.5L1.5.5", "M0.5 -0.5L1.5 0.5"}, // numbers without blanks
                         Caso{"M1e1 2E-1h1", "M10 .2L11 .2"},
                         Caso{"M1 1c1 0 2 1 2 2 1 1 2 2 3 3", "M1 1C2 1 3 2 3 3C4 4 5 5 6 6"},
                         Caso{"M1 1q1 0 2 2", "M1 1Q2 1 3 3"},
                         Caso{"M5 5h2v2zl1 1", "M5 5L7 5L7 7ZM5 5L6 6"}, // on from the start of the part
                         Caso{"M0 0m2 2l1 1", "M2 2L3 3"},
                         Caso{"M0 0a5 5 0 0110 0", "M0 0A5 5 0 0 1 10 0"},    // flags need no blanks
                         Caso{"M0 0A0 5 0 0 1 9 9", "M0 0L9 9"},              // a flat arc is a line
                         Caso{"M0 0A1 1 0 0 1 10 0", "M0 0A5 5 0 0 1 10 0"}}; // radii grow to reach
    for (const Caso &caso : casi) {
        SCOPED_TRACE(caso.dati);
        const QPainterPath letto = leggiPercorso(caso.dati);
        const QPainterPath atteso = leggiPercorso(caso.uguale);
        ASSERT_FALSE(atteso.isEmpty());
        ASSERT_EQ(letto.elementCount(), atteso.elementCount());
        for (int i = 0; i < letto.elementCount(); ++i) {
            EXPECT_EQ(letto.elementAt(i).type, atteso.elementAt(i).type) << i;
            EXPECT_NEAR(letto.elementAt(i).x, atteso.elementAt(i).x, 1e-9) << i;
            EXPECT_NEAR(letto.elementAt(i).y, atteso.elementAt(i).y, 1e-9) << i;
        }
    }
}

// The four arcs over the same two points: which side the curve runs on, and how far.
TEST(PercorsoArco, BandiereEVersoCoincidonoConIlCerchio) {
    struct ArcoAtteso {
        const char *dati;
        QRectF contorno;
    };
    const double s = 5 * std::sqrt(2.0);
    const ArcoAtteso casi[] = {
        {"M10 0A10 10 0 0 1 0 10", {0, 0, 10, 10}},     {"M10 0A10 10 0 0 0 0 10", {0, 0, 10, 10}},
        {"M10 0A10 10 0 1 0 0 10", {-10, -10, 20, 20}}, {"M10 0A10 10 0 1 1 0 10", {0, 0, 20, 20}},
        {"M0 0A10 5 90 0 1 0 20", {0, 0, 5, 20}},       {"M0 0A10 5 90 0 0 0 20", {-5, 0, 5, 20}},
        {"M0 0A5 5 45 1 1 10 0", {0, -5, 10, 5}},
    };
    for (const auto &caso : casi) {
        const QRectF r = leggiPercorso(caso.dati).boundingRect();
        EXPECT_NEAR(r.left(), caso.contorno.left(), 0.02) << caso.dati;
        EXPECT_NEAR(r.top(), caso.contorno.top(), 0.02) << caso.dati;
        EXPECT_NEAR(r.right(), caso.contorno.right(), 0.02) << caso.dati;
        EXPECT_NEAR(r.bottom(), caso.contorno.bottom(), 0.02) << caso.dati;
    }
    // Middle of the short arcs, to tell their bulge apart.
    EXPECT_NEAR(leggiPercorso(casi[0].dati).pointAtPercent(0.5).x(), s, 0.02);
    EXPECT_NEAR(leggiPercorso(casi[1].dati).pointAtPercent(0.5).x(), 10 - s, 0.02);
}

class PercorsoGuasto : public testing::TestWithParam<const char *> {};

TEST_P(PercorsoGuasto, NonDaNulla) {
    EXPECT_EQ(leggiPercorso(GetParam()).elementCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Dati, PercorsoGuasto,
                         testing::Values("", " ", "L1 1", "Z", "1 1", "M", "M1", "M1 1L", "M1 1L2", "M1 1X2 2",
                                         "M1 1 2", "M1 1Z5 5", "M1 1h", "M1 1C1 1 2 2 3", "M1 1A5 5 0 2 1 9 9",
                                         "M1 1A5 5 0 1", "M.", "M-", "M1 1L--2 2", "M1 1Linf nan", "M-inf 1",
                                         "M1 1h1e400", "M1 1h1000000", "M1 1L5e 5", "M1 1L0x5 5", "M1 1\xc3\xa8"));

} // namespace
} // namespace zuvora
