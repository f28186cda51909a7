#include "kit/InstallazioneProva.h"
#include "shell/host/CarattereCasa.h"
#include "shell/host/Label.h"

#include <QFontMetricsF>
#include <algorithm>
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

TEST(CarattereCasa, IlGrassettoESpessoAOgniMisura) {
    preparaApplicazione();
    Label etichetta(nullptr, "Label1", "HIH", {0, 0, 15000, 4500});
    const auto inchiostro = [&](int misura, bool grassetto) {
        QFont font = carattereCasa();
        font.setPixelSize(misura);
        font.setBold(grassetto);
        etichetta.setFontBase(font);
        const QImage vista = etichetta.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        qint64 nero = 0;
        for (int y = 0; y < vista.height(); ++y)
            nero += std::count_if(vista.constScanLine(y), vista.constScanLine(y) + vista.width(),
                                  [](uchar grigio) { return grigio < 128; });
        return double(nero);
    };
    for (const int misura : {30, 60, 70, 200})
        EXPECT_GT(inchiostro(misura, true), 1.2 * inchiostro(misura, false)) << misura;
}

TEST(CarattereCasa, UnFileCheNonEUnCarattereRestaComEra) {
    for (const QByteArray &dati :
         {QByteArray(), QByteArray(12, '\xff'), QByteArray("\0\1\0\0\0\1\0\0\0\0\0\0OS/2", 16)})
        EXPECT_EQ(carattereCorretto(dati), dati);
}

} // namespace
} // namespace zuvora
