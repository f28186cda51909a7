#include "kiosk/logic/Disposizione.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace zuvora {
namespace {

// The rule seen from outside: how a full set of buttons fills the screen, in twips.
struct Campo {
    int schermo;
    int servizi; // from those of the line before, so many fill the field
    QRect pieno;
    std::map<int, int> centrati; // numbers whose short last row stands in the middle, and how far from it, twips
};

QRect tra(int sinistra, int alto, int destra, int basso) {
    return {sinistra, alto, destra - sinistra, basso - alto};
}

const std::vector<Campo> campi = {
    {0, 1, tra(5040, 4920, 13455, 10335), {}},
    {0, 2, tra(1440, 4920, 17415, 10335), {}},
    {0, 4, tra(1920, 3960, 16455, 13215), {{3, 0}}},
    {0, 6, tra(480, 3360, 18615, 11055), {{5, -180}}},
    {0, 9, tra(480, 2520, 18615, 14295), {{7, 0}}},
    {0, 12, tra(480, 2520, 18615, 14535), {}},
    {0, 16, tra(480, 2880, 18495, 13215), {}},
    {0, 20, tra(480, 2880, 18495, 14580), {}},
    {1, 1, tra(9120, 5520, 18975, 11655), {}},
    {1, 2, tra(3360, 5400, 25215, 11535), {}},
    {1, 4, tra(5880, 4400, 21735, 15175), {{3, 120}}},
    {1, 8, tra(4200, 5400, 25695, 13095), {{5, 180}, {6, 0}}},
    {1, 15, tra(1680, 5400, 26775, 16455), {{11, 0}, {12, 120}, {13, 0}}},
    {1, 20, tra(1680, 4920, 26775, 16815), {{16, 0}, {17, 120}, {18, 0}}},
    {2, 1, tra(6240, 4000, 14655, 9415), {}},
    {2, 2, tra(2640, 4000, 18615, 9415), {}},
    {2, 4, tra(3120, 2840, 17655, 11995), {{3, 0}}},
    {2, 6, tra(1680, 2440, 19815, 10135), {{5, -180}}},
    {2, 9, tra(1680, 1915, 19815, 12810), {{7, 0}}},
    {2, 12, tra(1680, 3240, 18840, 11055), {}},
    {2, 16, tra(1680, 2400, 18840, 12855), {}},
    {2, 20, tra(720, 2280, 20360, 12735), {}},
};

using Posti = std::vector<QRect>;

// All of one size, none over another; columns stand at one distance, rows within eight pixels.
void controllaTrama(const Campo &campo, const Posti &posti, std::size_t perRiga) {
    const QRect primo = posti.front();
    const bool storto = campo.schermo == 2 && campo.servizi == 6; // one is 80 twips off on the kiosk too
    QRect unione;
    for (std::size_t i = 0; i < posti.size(); ++i) {
        unione |= posti[i];
        EXPECT_EQ(posti[i].size(), primo.size());
        if (const int colonna = static_cast<int>(i % perRiga); colonna > 0) {
            const int passo = posti[1].x() - primo.x();
            EXPECT_GT(passo, primo.width());
            EXPECT_EQ(posti[i].x(), primo.x() + colonna * passo + (storto && i == 4 ? 80 : 0));
        } else if (i > 0) {
            const int passo = posti[i].y() - posti[i - perRiga].y();
            EXPECT_GT(passo, primo.height());
            EXPECT_NEAR(passo, posti[perRiga].y() - primo.y(), 120);
        }
    }
    EXPECT_EQ(unione, campo.pieno);
}

TEST(Disposizione, EveryNumberFillsItsFieldRowByRow) {
    int n = 1;
    for (const Campo &campo : campi) {
        const Posti tutti = disposizionePulsanti(campo.schermo, campo.servizi);
        ASSERT_EQ(tutti.size(), campo.servizi);
        const auto perRiga = static_cast<std::size_t>(
            std::ranges::count_if(tutti, [&](const QRect &p) { return p.y() == tutti.front().y(); }));
        controllaTrama(campo, tutti, perRiga);
        for (n = n > campo.servizi ? 1 : n; n < campo.servizi; ++n) {
            SCOPED_TRACE(testing::Message() << "screen " << campo.schermo << ", services " << n);
            const Posti posti = disposizionePulsanti(campo.schermo, n);
            ASSERT_EQ(posti.size(), n);
            const std::size_t intere = posti.size() / perRiga * perRiga;
            EXPECT_TRUE(std::equal(posti.begin(), posti.begin() + std::ptrdiff_t(intere), tutti.begin()));
            if (intere == posti.size())
                continue;
            const int spostamento = posti[intere].x() - tutti[intere].x();
            const int mezzo = (posti[intere].x() + posti.back().x() + posti.back().width()) / 2;
            if (campo.centrati.contains(n))
                EXPECT_EQ(mezzo, campo.pieno.x() + campo.pieno.width() / 2 + campo.centrati.at(n));
            else
                EXPECT_EQ(spostamento, 0);
            for (std::size_t i = intere; i < posti.size(); ++i) {
                EXPECT_NEAR(posti[i].x(), tutti[i].x() + spostamento, 80);
                EXPECT_EQ(QRect({tutti[i].x(), posti[i].y()}, posti[i].size()), tutti[i]);
            }
        }
        ++n;
    }
}

} // namespace
} // namespace zuvora
