#include "kit/InstallazioneProva.h"
#include "shell/host/CarattereCasa.h"

#include <QFontMetricsF>
#include <gtest/gtest.h>

namespace zuvora {
namespace {

TEST(CarattereCasa, LAltezzaDellaRigaEQuellaPerCuiSonoFattiIPosti) {
    preparaApplicazione();
    QFont font = carattereCasa();
    if (!font.exactMatch())
        GTEST_SKIP() << "Tahoma is not on this machine";
    EXPECT_GE(QFontMetrics(font).lineSpacing(), 13) << "two lines of the forms' own size don't touch";
    font.setPixelSize(1000);
    const QFontMetricsF metrica(font);
    EXPECT_NEAR(metrica.ascent(), 1000 * 2049 / 2048.0, 2);
    EXPECT_NEAR(metrica.descent(), 1000 * 423 / 2048.0, 2);
    QFont grassetto = font;
    grassetto.setBold(true);
    EXPECT_GT(QFontMetricsF(grassetto).horizontalAdvance(QStringLiteral("Zuvora")),
              metrica.horizontalAdvance(QStringLiteral("Zuvora")) * 1.1);
}

TEST(CarattereCasa, UnFileCheNonEUnCarattereRestaComEra) {
    for (const QByteArray &dati :
         {QByteArray(), QByteArray(12, '\xff'), QByteArray("\0\1\0\0\0\1\0\0\0\0\0\0OS/2", 16)})
        EXPECT_EQ(carattereCorretto(dati), dati);
}

} // namespace
} // namespace zuvora
