#include "shell/disegni/Disegni.h"
#include "shell/disegni/Figure.h"
#include "shell/disegni/Percorso.h"

#include <QGuiApplication>
#include <QPainter>

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace zuvora {
namespace {

// Pixmaps and fonts need a running application.
class Grafica : public testing::Environment {
    void SetUp() override { app = std::make_unique<QGuiApplication>(argc, argv); }
    void TearDown() override { app.reset(); }

    int argc = 1;
    std::array<char, 6> nome{"prova"};
    std::array<char *, 2> argomenti{nome.data(), nullptr};
    char **argv = argomenti.data();
    std::unique_ptr<QGuiApplication> app;
};
const auto *const grafica = testing::AddGlobalTestEnvironment(new Grafica);

// The smallest rectangle around all pixels that differ from the ground, in device pixels.
QRect dipinto(const QImage &tela, QRgb fondo = 0) {
    QRect trovato;
    for (int y = 0; y < tela.height(); ++y)
        for (int x = 0; x < tela.width(); ++x)
            if (tela.pixel(x, y) != fondo)
                trovato |= QRect{x, y, 1, 1};
    return trovato;
}

QImage tela(QSize misura, qreal dpr) {
    QImage vuota{misura * dpr, QImage::Format_ARGB32_Premultiplied};
    vuota.setDevicePixelRatio(dpr);
    vuota.fill(Qt::transparent);
    return vuota;
}

class OgniDisegno : public testing::TestWithParam<int> {
protected:
    Disegno disegno = static_cast<Disegno>(GetParam());
};

TEST_P(OgniDisegno, HaSoloPercorsiValidi) {
    const Figura &f = figura(disegno);
    EXPECT_EQ(f.nome, disegno);
    EXPECT_FALSE(f.strati.empty());
    for (const Strato &s : f.strati) {
        EXPECT_FALSE(leggiPercorso(s.percorso).isEmpty()) << s.percorso;
        EXPECT_TRUE(s.riempimento != Tinta::Nessuna || s.tratto != Tinta::Nessuna) << s.percorso;
    }
}

TEST_P(OgniDisegno, RiempieLaSuaAreaSenzaUscirne) {
    for (const qreal dpr : {1.0, 2.0}) {
        for (const QSize lato : {QSize{24, 24}, QSize{49, 39}, QSize{30, 96}}) {
            QImage foglio = tela(lato + QSize{40, 40}, dpr);
            QPainter p{&foglio};
            const QRect area{{20, 20}, lato};
            dipingi(p, disegno, area);
            p.end();
            const QRect segno = dipinto(foglio);
            const QRect permesso{area.topLeft() * dpr, area.size() * dpr};
            EXPECT_TRUE(permesso.contains(segno)) << segno.x() << ' ' << segno.y() << ' ' << segno.right() << ' '
                                                  << segno.bottom() << " in " << lato.width() << " at " << dpr;
            const QSizeF atteso = misura(disegno).scaled(permesso.size(), Qt::KeepAspectRatio);
            EXPECT_GE(segno.width(), atteso.width() * 0.4);
            EXPECT_GE(segno.height(), atteso.height() * 0.35);
        }
    }
}

TEST_P(OgniDisegno, IconaNitidaAOgniScalaEGrigiaDaSpenta) {
    const QPixmap nitida = icona(disegno).pixmap(QSize{24, 24}, 2.0);
    EXPECT_EQ(nitida.size(), (QSize{48, 48}));
    EXPECT_EQ(nitida.devicePixelRatio(), 2.0);
    EXPECT_EQ(nitida.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
              immagineRaster(disegno, {48, 48}, 1.0));

    const QImage spenta = icona(disegno).pixmap(QSize{32, 32}, 1.0, QIcon::Disabled).toImage();
    EXPECT_FALSE(dipinto(spenta).isEmpty());
    EXPECT_TRUE(spenta.allGray());
}

INSTANTIATE_TEST_SUITE_P(Tutti, OgniDisegno, testing::Range(0, static_cast<int>(ultimoDisegno) + 1));

TEST(Disegni, AreaVuotaNonDipinge) {
    QImage foglio = tela({20, 20}, 1);
    QPainter p{&foglio};
    for (const QRectF area : {QRectF{}, QRectF{5, 5, 0, 9}, QRectF{5, 5, -3, 9}, QRectF{0, 0, qQNaN(), 5}}) {
        dipingi(p, Disegno::Salva, area);
        dipingiSegnaposto(p, Segnaposto::MP1, area);
    }
    p.end();
    EXPECT_TRUE(dipinto(foglio).isEmpty());
    EXPECT_TRUE(immagine(Disegno::Salva, {0, 0}).isNull());
}

TEST(Segnaposti, CopronoOgniMisuraEStannoDentro) {
    for (int i = 0; i <= static_cast<int>(Segnaposto::YT); ++i) {
        for (const QSize lato : {QSize{641, 441}, QSize{506, 92}, QSize{40, 300}, QSize{300, 8}, QSize{3, 3}}) {
            QImage foglio = tela(lato + QSize{20, 20}, 1);
            QPainter p{&foglio};
            dipingiSegnaposto(p, static_cast<Segnaposto>(i), QRect{{10, 10}, lato});
            p.end();
            EXPECT_EQ(dipinto(foglio), QRect(QPoint{10, 10}, lato)) << i;
            for (int y = 10; y < 10 + lato.height(); ++y)
                for (int x = 10; x < 10 + lato.width(); ++x)
                    ASSERT_EQ(qAlpha(foglio.pixel(x, y)), 255) << i << ' ' << x << ' ' << y;
        }
    }
}

} // namespace
} // namespace zuvora
