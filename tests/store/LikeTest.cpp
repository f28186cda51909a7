#include "shell/store/Like.h"
#include "store/Archivio.h"

#include <gtest/gtest.h>

namespace zuvora::prova {

TEST(Like, Caratteri) {
    struct {
        const char *modello;
        const char *testo;
        bool simile;
    } const casi[] = {
        {"", "", true},
        {"*", "", true},
        {"?", "", false},
        {"?", "à", true},
        {"rom*", "ROMA", true},
        {"rom*", "Aroma", false},
        {"*an*an*an*", "ananas", false},
        {"a*b*c", "aXbXbX", false},
        {"l?aquila", "L'Aquila", true},
        {"forlÌ", "Forlì", true},
        {"CITTÀ*", "città di castello", true},
        {"citta", "città", false},
        {"ΑΘΉΝΑ", "αθήνα", true},
        {"radio ?", "radio 🎵", true},
        {"100%", "1000", false},
        {"a_c", "abc", false},
        {"Radio #1", "radio #1", true},
        {"[x]", "x", false},
        {"?\xff?",
         "a\xff"
         "b",
         true},
        {"\xff", "\xfe", false},
        {"ÿ", "\xff", false},
        {"******a", "bbbb", false},
    };
    for (const auto &caso : casi)
        EXPECT_EQ(simile(caso.modello, caso.testo), caso.simile) << caso.modello << " / " << caso.testo;
}

TEST(Like, CarattereDiFuga) {
    EXPECT_TRUE(simile("a!*", "A*", U'!'));
    EXPECT_FALSE(simile("a!*", "ab", U'!'));
    EXPECT_TRUE(simile("!?*", "?x", U'!'));
    EXPECT_FALSE(simile("!?*", "yx", U'!'));
}

TEST(Like, UnModelloOstileNonBlocca) {
    const std::string testo(20000, 'a');
    EXPECT_FALSE(simile("*a*a*a*a*a*a*b", testo));
}

TEST(ValoreTest, NullVeroTesto) {
    struct {
        Valore valore;
        bool nullo;
        bool vero;
        const char16_t *testo;
    } const casi[] = {{{}, true, false, u"n.d."},        {QVariant::fromValue(nullptr), true, false, u"n.d."},
                      {QString(), false, false, u""},    {u"True"_s, false, false, u"True"},
                      {true, false, true, u"True"},      {-1LL, false, true, u"-1"},
                      {0, false, false, u"0"},           {0.1, false, true, u"0.1"},
                      {27.75F, false, true, u"27.75"},   {8.1F, false, true, u"8.1"},
                      {1e-7, false, true, u"0.0000001"}, {12000000000.0, false, true, u"12000000000"}};
    for (const auto &caso : casi) {
        SCOPED_TRACE(QString::fromUtf16(caso.testo).toStdString());
        EXPECT_EQ(eNull(caso.valore), caso.nullo);
        EXPECT_EQ(eVero(caso.valore), caso.vero);
        EXPECT_EQ(testoDi(caso.valore, u"n.d."_s), QString::fromUtf16(caso.testo));
    }
}

} // namespace zuvora::prova
