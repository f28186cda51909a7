#include "shell/logic/Numeri.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(Numeri, OgniApiceDiventaUnCarattereQualsiasi) {
    EXPECT_EQ(SostituisciApice(u"l'Aquila dell'Est'"_s), u"l?Aquila dell?Est?"_s);
}

TEST(Numeri, ProvaNumericaENumeroIniziale) {
    const struct {
        QString testo;
        bool numerico;
        double iniziale;
    } casi[] = {{u""_s, false, 0},        {u" "_s, false, 0},         {u"0"_s, true, 0},
                {u"0000"_s, true, 0},     {u"058091"_s, true, 58091}, {u"1,5"_s, true, 1},
                {u"1.5"_s, true, 1.5},    {u"-3"_s, true, -3},        {u" 12 "_s, true, 12},
                {u"12a"_s, false, 12},    {u"abc"_s, false, 0},       {u".5x"_s, false, 0.5},
                {u"1e400"_s, false, 0},   {u"inf"_s, false, 0},       {u"nan"_s, false, 0},
                {u"1.2.3"_s, false, 1.2}, {u"٣"_s, false, 0},         {u"1e2"_s, true, 100},
                {u"0x10"_s, false, 0},    {u"-"_s, false, 0},         {QString(30, u'9'), true, 1e30}};
    for (const auto &caso : casi) {
        EXPECT_EQ(eNumerico(caso.testo), caso.numerico) << caso.testo.toStdString();
        EXPECT_EQ(Val(caso.testo), caso.iniziale) << caso.testo.toStdString();
    }
}

TEST(Numeri, DaiValoriDelleColonne) {
    const auto niente = std::nullopt;
    const struct {
        Valore valore;
        std::optional<double> numero;
    } casi[] = {{{}, niente}, {true, niente}, {u"due"_s, niente}, {u" 1,5"_s, 1.5},
                {8.1F, 8.1},  {7LL, 7},       {u"1e300"_s, 1e300}};
    for (const auto &caso : casi) {
        EXPECT_EQ(numeroDi(caso.valore), caso.numero);
        EXPECT_EQ(singoloDi(caso.valore), caso.numero == 1e300 ? niente : caso.numero);
    }
    EXPECT_EQ(testoNumero(27.75), u"27.75"_s);
    EXPECT_EQ(testoNumero(8.1), u"8.1"_s);
}

} // namespace
} // namespace zuvora
