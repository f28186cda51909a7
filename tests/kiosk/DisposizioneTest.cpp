#include "kiosk/logic/Disposizione.h"

#include <gtest/gtest.h>
#include <set>

namespace zuvora {
namespace {

// The rule seen from outside: how the buttons of a band fill the screen, in twips.
struct Campo {
    int schermo;
    int da;
    int a;
    int perRiga;
    QRect pieno; // what a full set of rows covers
    int righe;
    int trama;       // from one column's left to the next
    int trameMinima; // the same for the rows, least and most
    int trameMassima;
    std::set<int> centrati; // numbers whose short last row stands in the middle, within 12 pixels
};

QRect tra(int sinistra, int alto, int destra, int basso) {
    return {sinistra, alto, destra - sinistra, basso - alto};
}

const std::vector<Campo> campi = {
    {0, 1, 1, 1, tra(5040, 4920, 13455, 10335), 1, 0, 0, 0, {}},
    {0, 2, 2, 2, tra(1440, 4920, 17415, 10335), 1, 8160, 0, 0, {}},
    {0, 3, 4, 2, tra(1920, 3960, 16455, 13215), 2, 7440, 4800, 4800, {3}},
    {0, 5, 6, 3, tra(480, 3360, 18615, 11055), 2, 6120, 4080, 4080, {5}},
    {0, 7, 9, 3, tra(480, 2520, 18615, 14295), 3, 6120, 4080, 4080, {7}},
    {0, 10, 12, 3, tra(480, 2520, 18615, 14535), 4, 6120, 3000, 3120, {}},
    {0, 13, 16, 4, tra(480, 2880, 18495, 13215), 4, 4560, 2640, 2640, {}},
    {0, 17, 20, 4, tra(480, 2880, 18495, 14580), 5, 4560, 2340, 2460, {}},
    {1, 1, 1, 1, tra(9120, 5520, 18975, 11655), 1, 0, 0, 0, {}},
    {1, 2, 2, 2, tra(3360, 5400, 25215, 11535), 1, 12000, 0, 0, {}},
    {1, 3, 4, 2, tra(5880, 4400, 21735, 15175), 2, 8160, 5600, 5600, {3}},
    {1, 5, 8, 4, tra(4200, 5400, 25695, 13095), 2, 5400, 3960, 3960, {5, 6}},
    {1, 9, 15, 5, tra(1680, 5400, 26775, 16455), 3, 5040, 3720, 3720, {11, 12, 13}},
    {1, 16, 20, 5, tra(1680, 4920, 26775, 16815), 4, 5040, 3000, 3000, {16, 17, 18}},
    {2, 1, 1, 1, tra(6240, 4000, 14655, 9415), 1, 0, 0, 0, {}},
    {2, 2, 2, 2, tra(2640, 4000, 18615, 9415), 1, 8160, 0, 0, {}},
    {2, 3, 4, 2, tra(3120, 2840, 17655, 11995), 2, 7440, 4700, 4700, {3}},
    {2, 5, 6, 3, tra(1680, 2440, 19815, 10135), 2, 6120, 4080, 4080, {5}},
    {2, 7, 9, 3, tra(1680, 1915, 19815, 12810), 3, 6120, 3680, 3715, {7}},
    {2, 10, 12, 4, tra(1680, 3240, 18840, 11055), 3, 4320, 2640, 2640, {}},
    {2, 13, 16, 4, tra(1680, 2400, 18840, 12855), 4, 4320, 2640, 2640, {}},
    {2, 17, 20, 5, tra(720, 2280, 20360, 12735), 4, 3960, 2640, 2640, {}},
};

using Righe = std::vector<std::vector<QRect>>;

Righe perRighe(const std::vector<QRect> &posti) {
    Righe righe;
    for (const QRect &posto : posti) {
        if (righe.empty() || righe.back().front().y() != posto.y())
            righe.emplace_back();
        righe.back().push_back(posto);
    }
    return righe;
}

// Rows one below the other, buttons side by side, all of one size, none over another.
void controllaTrama(const Campo &campo, int n, const Righe &righe) {
    const QSize misura = righe.front().front().size();
    for (std::size_t r = 0; r < righe.size(); ++r) {
        const bool ultima = r + 1 == righe.size();
        EXPECT_EQ(righe[r].size(), ultima ? n - r * campo.perRiga : campo.perRiga);
        if (r > 0) {
            const int passo = righe[r].front().y() - righe[r - 1].front().y();
            EXPECT_TRUE(passo >= campo.trameMinima && passo <= campo.trameMassima) << passo;
            EXPECT_GT(passo, misura.height());
        }
        for (std::size_t c = 0; c < righe[r].size(); ++c) {
            EXPECT_EQ(righe[r][c].size(), misura);
            if (c == 0)
                continue;
            const int passo = righe[r][c].x() - righe[r][c - 1].x();
            const bool storto = campo.schermo == 2 && n == 6 && r == 1; // 80 twips off on the kiosk too
            EXPECT_EQ(passo, campo.trama + (storto ? (c == 1 ? 80 : -80) : 0));
            EXPECT_GT(passo, misura.width());
        }
    }
}

// The edges of the field, and the short last row in its middle or at its left.
void controllaBordi(const Campo &campo, int n, const Righe &righe) {
    const QRect primo = righe.front().front();
    const QRect inFondo = righe.back().back();
    const int destra = campo.pieno.x() + campo.pieno.width();
    EXPECT_EQ(primo.topLeft(), campo.pieno.topLeft());
    if (n >= campo.perRiga) {
        EXPECT_EQ(righe.front().back().x() + primo.width(), destra);
    }
    if (static_cast<int>(righe.size()) == campo.righe) {
        EXPECT_EQ(inFondo.y() + inFondo.height(), campo.pieno.y() + campo.pieno.height());
    }
    const int sinistra = righe.back().front().x();
    const int mezzo = (sinistra + inFondo.x() + inFondo.width()) / 2;
    if (campo.centrati.contains(n))
        EXPECT_LE(std::abs(mezzo - (campo.pieno.x() + destra) / 2), 180);
    else
        EXPECT_EQ(sinistra, campo.pieno.x());
}

class Disposizioni : public testing::TestWithParam<Campo> {};

TEST_P(Disposizioni, FillTheirFieldRowByRow) {
    const Campo &campo = GetParam();
    for (int n = campo.da; n <= campo.a; ++n) {
        SCOPED_TRACE(testing::Message() << "screen " << campo.schermo << ", services " << n);
        const auto posti = disposizionePulsanti(campo.schermo, n);
        ASSERT_EQ(posti.size(), n);
        const Righe righe = perRighe(posti);
        ASSERT_EQ(righe.size(), (n + campo.perRiga - 1) / campo.perRiga);
        controllaTrama(campo, n, righe);
        controllaBordi(campo, n, righe);
    }
}

INSTANTIATE_TEST_SUITE_P(Tutte, Disposizioni, testing::ValuesIn(campi));

TEST(Disposizione, AllButTheTwoKnownBandsStayOnTheScreen) {
    for (int schermo = 0; schermo < 3; ++schermo)
        for (int n = 1; n <= serviziMassimi; ++n) {
            const SchermoTotem &s = schermiTotem.at(static_cast<std::size_t>(schermo));
            for (const QRect &posto : disposizionePulsanti(schermo, n)) {
                EXPECT_TRUE(posto.x() > 0 && posto.y() > 0 && posto.x() + posto.width() < s.larghezza);
                EXPECT_LE(posto.y() + posto.height(), s.altezza + fuoriSchermo(schermo, n));
            }
            const int fuori = schermo != 1 || n < 11 ? 0 : n < 16 ? 17 : 41; // pixels
            EXPECT_EQ(fuoriSchermo(schermo, n), fuori * 15) << schermo << ' ' << n;
        }
}

TEST(Disposizione, NothingIsPlacedWithoutAnArrangement) {
    for (const auto &[schermo, n] : {std::pair{0, 0}, {0, 21}, {0, -1}, {3, 5}, {-1, 5}, {4, 5}})
        EXPECT_TRUE(disposizionePulsanti(schermo, n).empty()) << schermo << ' ' << n;
}

} // namespace
} // namespace zuvora
