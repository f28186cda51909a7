#include "installer/Csv.h"
#include "installer/Guasto.h"
#include "installer/Percorsi.h"

#include "shell/logic/Percorsi.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace zuvora::installa;

TEST(Csv, DistingueNullDaVuotoEScioglieLeVirgolette) {
    const Csv csv = leggiCsv("A,B,C\n1,,\"\"\n\"x, \"\"y\"\"\nz\",à,\r\n,,", u"prova"_s);
    EXPECT_EQ(csv.colonne, QStringList({u"A"_s, u"B"_s, u"C"_s}));
    ASSERT_EQ(csv.righe.size(), 3);
    EXPECT_TRUE(csv.righe[0][1].isNull());
    EXPECT_TRUE(csv.righe[0][2].isEmpty() && !csv.righe[0][2].isNull());
    EXPECT_EQ(csv.righe[1][0], u"x, \"y\"\nz"_s);
    EXPECT_EQ(csv.righe[1][1], u"à"_s);
    EXPECT_TRUE(csv.righe[2][2].isNull());
    for (const char *errato : {"A,B\n1\n", "A,B\n1,2,3\n", "A,B\n\"1,2\n"})
        EXPECT_THROW(leggiCsv(errato, u"prova"_s), Guasto) << errato;
}

TEST(Percorsi, LeRigheDiPartenzaPortanoAlLoroFile) {
    const zuvora::Percorsi percorsi;
    EXPECT_EQ(percorsi.nativo(espandi(u"{RETE}/Suoni/a.wav"_s, u"/mio impianto"_s)), u"/mio impianto/Suoni/a.wav"_s);
    EXPECT_EQ(percorsi.nativo(espandi(u"{CARTELLA}/x.jpg"_s, u"/mio impianto"_s)), u"/mio impianto/x.jpg"_s);
    EXPECT_EQ(espandi(u"altro"_s, u"/i"_s), u"altro"_s);
    EXPECT_TRUE(espandi({}, u"/i"_s).isNull());
}
