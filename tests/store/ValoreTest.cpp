#include "store/Archivio.h"

namespace zuvora::prova {

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
