#include "kit/InstallazioneProva.h"
#include "shell/host/CarattereCasa.h"

#include <QFontMetricsF>
#include <gtest/gtest.h>

namespace zuvora {
namespace {

TEST(CarattereCasa, LAltezzaDellaRigaEQuellaPerCuiSonoFattiIPosti) {
    preparaApplicazione();
    QFont font = carattereCasa();
    if (!QFontMetricsF(font).inFont(u'A') || font.exactMatch() == false)
        GTEST_SKIP() << "Tahoma is not on this machine";
    for (const int misura : {11, 22, 1000}) {
        font.setPixelSize(misura);
        const QFontMetricsF metrica(font);
        EXPECT_NEAR(metrica.ascent(), misura * 2049 / 2048.0, 1) << misura;
        EXPECT_NEAR(metrica.lineSpacing(), misura * 2472 / 2048.0, 1) << misura;
    }
    QFont grassetto = font;
    grassetto.setBold(true);
    EXPECT_GT(QFontMetricsF(grassetto).horizontalAdvance(QStringLiteral("Zuvora")),
              QFontMetricsF(font).horizontalAdvance(QStringLiteral("Zuvora")) * 1.1);
}

TEST(CarattereCasa, UnFileCheNonEUnCarattereRestaComEra) {
    for (const QByteArray &dati :
         {QByteArray(), QByteArray(12, '\xff'), QByteArray("\0\1\0\0\0\1\0\0\0\0\0\0OS/2", 16)})
        EXPECT_EQ(carattereCorretto(dati), dati);
}

} // namespace
} // namespace zuvora
