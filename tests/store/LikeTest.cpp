#include "shell/store/Like.h"

#include <gtest/gtest.h>

namespace zuvora::prova {

TEST(Like, Caratteri) {
    struct {
        const char *modello;
        const char *testo;
        bool simile;
    } const casi[] = {
        {"", "", true},
        {"", "a", false},
        {"*", "", true},
        {"*", "qualsiasi", true},
        {"?", "", false},
        {"?", "à", true},
        {"?", "ab", false},
        {"rom*", "ROMA", true},
        {"rom*", "Aroma", false},
        {"*ano", "Milano", true},
        {"*an*an*", "ananas", true},
        {"*an*an*an*", "ananas", false},
        {"a*b*c", "aXbXbXc", true},
        {"a*b*c", "aXbXbX", false},
        {"l?aquila", "L'Aquila", true},
        {"forlÌ", "Forlì", true},
        {"CITTÀ*", "città di castello", true},
        {"citta", "città", false},
        {"STRAẞE", "straße", true},
        {"ΑΘΉΝΑ", "αθήνα", true},
        {"*🎵", "radio 🎵", true},
        {"radio ?", "radio 🎵", true},
        {"100%", "100%", true},
        {"100%", "1000", false},
        {"a_c", "abc", false},
        {"Radio #1", "radio #1", true},
        {"[x]", "[X]", true},
        {"[x]", "x", false},
        {"?\xff?",
         "a\xff"
         "b",
         true},
        {"\xff", "\xfe", false},
        {"\xc3", "\xc3", true},
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

} // namespace zuvora::prova
