// What the canvas paints, one property of an element at a time. Texts are set in fonts of known shapes.
#include "designer/forms/Scena.h"
#include "kit/InstallazioneProva.h"

#include <QFontInfo>
#include <QPainter>
#include <gtest/gtest.h>

namespace zuvora {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr Colore blu = 0xFF0000;
constexpr Colore verde = 0x00FF00;
constexpr Colore rosso = 0x0000FF;
constexpr QRgb tela = 0xFF102030;

// The canvas alone, black-blue, without any element.
class Pittura : public testing::Test {
protected:
    Pittura() {
        preparaApplicazione();
        for (LayoutElement &e : layout)
            e.visibile = false;
        layout.tela().coloreSfondo = 0x302010;
    }
    LayoutElement &mostra(const QString &nome, const Area &area) {
        LayoutElement &e = layout[DisplayLayout::postoDi(nome)];
        e.visibile = true;
        e.area = area;
        return e;
    }
    // A title of one H in Arial, 96 pixels high, in a place from 100, 50 to 500, 250: its stem begins 7 pixels from the
    // left and is 64 to 68 pixels high (1409 of 2048 units), below an ascent of 87.
    LayoutElement &titolo() {
        LayoutElement &e = mostra(u"Text9(0)"_s, {1500, 750, 6000, 3000});
        e.didascalia = u"H"_s;
        e.font = {u"Liberation Sans"_s, 72, false, false};
        e.coloreSfondo = blu;
        e.coloreTesto = verde;
        e.allineamento = Allineamento::Sinistra;
        e.trasparente = false;
        return e;
    }
    QImage dipingi(qreal scala = 1) {
        ImmaginiQt immagini;
        Scena scena(layout, immagini, {800, 600});
        QImage foglio((QSizeF(800, 600) * scala).toSize(), QImage::Format_RGB32);
        foglio.setDevicePixelRatio(scala);
        QPainter p(&foglio);
        scena.mostra(p, QRect(0, 0, 800, 600), scala);
        return foglio;
    }
    // The smallest rectangle that holds all pixels of a colour.
    static QRect dove(const QImage &foglio, QRgb colore) {
        QRect r;
        for (int y = 0; y < foglio.height(); ++y)
            for (int x = 0; x < foglio.width(); ++x)
                if (foglio.pixel(x, y) == colore)
                    r |= QRect(x, y, 1, 1);
        return r;
    }
    static int quanti(const QImage &foglio, QRgb colore) {
        int n = 0;
        for (int y = 0; y < foglio.height(); ++y)
            for (int x = 0; x < foglio.width(); ++x)
                n += foglio.pixel(x, y) == colore ? 1 : 0;
        return n;
    }
    static constexpr QRgb inchiostro = 0xFF00FF00;
    static constexpr QRgb fondo = 0xFF0000FF;

    DisplayLayout layout{u"Layout1"_s};
};

bool manca(const QString &famiglia) {
    return !QFontInfo(QFont(famiglia)).exactMatch();
}
#define SERVE(famiglia)                                                                                                \
    if (manca(famiglia))                                                                                               \
    GTEST_SKIP() << "the font is not on this machine"

TEST_F(Pittura, IlColoreDelloSchermoRiempieLaTela) {
    EXPECT_EQ(quanti(dipingi(), tela), 800 * 600);
}

TEST_F(Pittura, UnEtichettaOpacaRiempieIlSuoPostoUnaTrasparenteNo) {
    titolo().didascalia.clear();
    EXPECT_EQ(dove(dipingi(), fondo), QRect(100, 50, 400, 200));
    titolo().trasparente = true;
    layout.elemento(TipoElemento::Text9, 0).didascalia.clear();
    EXPECT_EQ(quanti(dipingi(), tela), 800 * 600);
}

TEST_F(Pittura, IlTestoStaSottoLaSuaAltezzaNelSuoColore) {
    SERVE(u"Liberation Sans"_s);
    titolo();
    const QRect h = dove(dipingi(), inchiostro);
    EXPECT_NEAR(h.left(), 107, 2);
    EXPECT_NEAR(h.top(), 50 + 87 - 66, 2);
    EXPECT_NEAR(h.bottom(), 50 + 87, 2);
}

TEST_F(Pittura, LAllineamentoSpostaIlTestoNelPosto) {
    SERVE(u"Liberation Sans"_s);
    titolo().allineamento = Allineamento::Centro;
    EXPECT_NEAR(dove(dipingi(), inchiostro).center().x(), 300, 2);
    titolo().allineamento = Allineamento::Destra;
    EXPECT_NEAR(dove(dipingi(), inchiostro).right(), 500 - 7, 3);
}

TEST_F(Pittura, MisuraGrassettoECorsivoCambianoLeLettere) {
    SERVE(u"Liberation Sans"_s);
    titolo();
    const QImage prima = dipingi();
    titolo().font.dimensione = 36;
    EXPECT_NEAR(dove(dipingi(), inchiostro).height() * 2, dove(prima, inchiostro).height(), 3);
    titolo().font.grassetto = true;
    EXPECT_GT(quanti(dipingi(), inchiostro), 1.3 * quanti(prima, inchiostro));
    titolo().font.corsivo = true;
    EXPECT_GT(dove(dipingi(), inchiostro).width(), dove(prima, inchiostro).width() + 8);
    titolo().font.nome = u"Liberation Serif"_s;
    EXPECT_NE(dove(dipingi(), inchiostro), dove(prima, inchiostro));
}

TEST_F(Pittura, LeEtichetteVannoACapoIlTestoScorrevoleNo) {
    SERVE(u"Liberation Sans"_s);
    titolo().didascalia = u"HHHH HHHH"_s;
    const QRect due = dove(dipingi(), inchiostro);
    EXPECT_NEAR(due.height(), 66 + 110, 4);
    LayoutElement ticker = titolo();
    ticker.didascalia = u"HHHH HHHH"_s;
    ticker.trasparente = true; // always opaque all the same
    layout.elemento(TipoElemento::Text9, 0).visibile = false;
    LayoutElement &e = layout.elemento(TipoElemento::Text2);
    ticker.tipo = e.tipo;
    e = ticker;
    const QImage foglio = dipingi();
    EXPECT_LT(dove(foglio, inchiostro).height(), 70);
    EXPECT_EQ(dove(foglio, inchiostro).right(), 499); // cut at its place
    EXPECT_EQ(foglio.pixel(110, 240), fondo);
}

// Its file tells two ascents; the places are made for the larger one. In bold, letters are thick at every size.
TEST_F(Pittura, LaScritturaDelDisplayStaDoveStaSulDisplay) {
    SERVE(u"Tahoma"_s);
    for (const double punti : {24.0, 96.0}) {
        titolo().font = {u"Tahoma"_s, punti, false, false};
        const double em = punti * 96 / 72;
        const QImage chiaro = dipingi();
        const QRect h = dove(chiaro, inchiostro);
        EXPECT_NEAR(h.bottom() + 1, 50 + em * 2049 / 2048, 2.5) << punti;
        EXPECT_NEAR(h.height(), em * 1489 / 2048, 3) << punti;
        titolo().font = {u"Tahoma"_s, punti, true, false};
        EXPECT_GT(quanti(dipingi(), inchiostro), 1.2 * quanti(chiaro, inchiostro)) << punti;
        EXPECT_NEAR(dove(dipingi(), inchiostro).bottom(), h.bottom(), 3) << punti;
    }
    titolo().font = {u"Tahoma"_s, 48, true, false};
    layout.elemento(TipoElemento::Text9, 0).didascalia = u"HH"_s;
    const QImage due = dipingi();
    int salti = 0; // stems along the middle of the letters
    for (int x = 101; x < 500; ++x)
        salti += due.pixel(x, 78) == inchiostro && due.pixel(x - 1, 78) != inchiostro ? 1 : 0;
    EXPECT_EQ(salti, 4);
    EXPECT_NEAR(dove(due, inchiostro).width(), 64 * (1565 + 1081) / 2048.0 + 3, 4); // bold distances
}

TEST_F(Pittura, UnPannelloMostraLeSueEtichetteEntroISuoiBordi) {
    mostra(u"Pannello1(2)"_s, {1500, 1500, 3000, 3000}).coloreSfondo = rosso;
    LayoutElement &numero = layout.elemento(TipoElemento::Text1, 6);
    numero.visibile = true;
    numero.didascalia.clear();
    numero.coloreSfondo = blu;
    numero.area = {1500, 600, 6000, 600};
    const QImage foglio = dipingi();
    EXPECT_EQ(foglio.pixel(110, 290), 0xFFFF0000);
    EXPECT_EQ(dove(foglio, fondo), QRect(200, 140, 100, 40));
    EXPECT_NE(foglio.pixel(100, 200), 0xFFFF0000); // light on the left edge, shade on the right one
    EXPECT_GT(qGreen(foglio.pixel(101, 200)), qGreen(foglio.pixel(298, 250)));
    EXPECT_EQ(foglio.pixel(300, 250), tela);
    numero.visibile = false;
    EXPECT_EQ(quanti(dipingi(), fondo), 0);
    layout.elemento(TipoElemento::Pannello1, 2).visibile = false;
    EXPECT_EQ(quanti(dipingi(), tela), 800 * 600);
}

TEST_F(Pittura, OgniRiquadroHaIlSuoSegnaposto) {
    QList<QImage> visti;
    for (const auto &nome : {u"IM1"_s, u"MP1"_s, u"WB1"_s, u"WB2"_s, u"LeNews"_s, u"YT"_s}) {
        mostra(nome, {1500, 1500, 6000, 4500});
        const QImage foglio = dipingi();
        for (const QPoint p : {QPoint(100, 100), QPoint(499, 399)})
            EXPECT_NE(foglio.pixel(p), tela) << nome.toStdString();
        for (const QPoint p : {QPoint(99, 100), QPoint(500, 399), QPoint(499, 400)})
            EXPECT_EQ(foglio.pixel(p), tela) << nome.toStdString();
        EXPECT_FALSE(visti.contains(foglio)) << nome.toStdString();
        visti << foglio;
        layout[DisplayLayout::postoDi(nome)].visibile = false;
    }
}

class Figure : public Pittura {
protected:
    void SetUp() override {
        QImage verdeBlu(2, 1, QImage::Format_ARGB32);
        verdeBlu.setPixel(0, 0, 0xFF00FF00);
        verdeBlu.setPixel(1, 0, 0x00000000);
        ASSERT_TRUE(verdeBlu.scaled(40, 20).save(file(u"meta.png"_s)));
        QImage sfondo(80, 60, QImage::Format_RGB32);
        sfondo.fill(0xFF808000);
        ASSERT_TRUE(sfondo.save(file(u"sfondo.png"_s)));
    }
    QString file(const QString &nome) const { return m_cartella.filePath(nome); }

private:
    QTemporaryDir m_cartella;
};

TEST_F(Figure, UnaDecorazioneStiraLaSuaFiguraELasciaVedereSotto) {
    LayoutElement &e = mostra(u"Image1(4)"_s, {1500, 1500, 6000, 3000});
    e.cornice = false;
    e.immagine = file(u"meta.png"_s);
    QImage foglio = dipingi();
    EXPECT_EQ(foglio.pixel(110, 110), inchiostro);
    EXPECT_EQ(foglio.pixel(280, 290), inchiostro);
    EXPECT_EQ(foglio.pixel(330, 110), tela);
    layout.setCornice(file(u"sfondo.png"_s));
    e.cornice = true;
    EXPECT_EQ(dove(dipingi(), 0xFF808000), QRect(100, 100, 400, 200));
    e.cornice = false;
    e.immagine.clear(); // without a picture only the place is marked
    foglio = dipingi();
    EXPECT_NE(foglio.pixel(100, 100), tela);
    EXPECT_EQ(foglio.pixel(110, 110), tela);
    e.immagine = file(u"manca.png"_s);
    e.immagineMancante = true;
    EXPECT_NE(dipingi().pixel(110, 110), tela); // a veil, with a sign and the file's name
}

TEST_F(Figure, LoSfondoRiempieLaTelaEIPianiDiconoChiStaSopra) {
    layout.tela().immagine = file(u"sfondo.png"_s);
    EXPECT_EQ(quanti(dipingi(), 0xFF808000), 800 * 600);
    titolo().didascalia.clear();
    LayoutElement &e = mostra(u"Image1(4)"_s, {1500, 750, 6000, 3000});
    e.cornice = false;
    e.immagine = file(u"meta.png"_s);
    layout.setPiano(4, false);
    EXPECT_EQ(dipingi().pixel(110, 60), fondo);
    layout.setPiano(4, true);
    EXPECT_EQ(dipingi().pixel(110, 60), inchiostro);
}

// At twice the scale every place has twice the pixels, and no line of what lies below shows at an edge.
TEST_F(Figure, AlDoppioDellaScalaNonRestanoRighe) {
    layout.tela().immagine = file(u"sfondo.png"_s);
    titolo().didascalia.clear();
    const QImage foglio = dipingi(2);
    EXPECT_EQ(dove(foglio, fondo), QRect(200, 100, 800, 400));
    EXPECT_EQ(quanti(foglio, fondo) + quanti(foglio, 0xFF808000), 1600 * 1200);
    for (const qreal scala : {1.0, 1.5, 2.0}) {
        QImage riquadro(QSize(12, 8) * scala, QImage::Format_RGB32);
        riquadro.setDevicePixelRatio(scala);
        riquadro.fill(Qt::white);
        QPainter p(&riquadro);
        riquadra(p, QRect(0, 0, 12, 8), Qt::black);
        p.end();
        for (const QPoint angolo : {riquadro.rect().topLeft(), riquadro.rect().topRight(), riquadro.rect().bottomLeft(),
                                    riquadro.rect().bottomRight()})
            EXPECT_EQ(riquadro.pixel(angolo), 0xFF000000) << scala;
    }
}

TEST(Posti, SiArrotondanoIBordiNonLeMisure) {
    EXPECT_EQ(rettangoloTela({7, 8, 15, 15}), QRect(0, 1, 1, 1));
    EXPECT_EQ(rettangoloTela({1507, -1508, 100, 100}), QRect(100, -101, 7, 7));
    EXPECT_EQ(rettangoloTela({-3e38, 0, 15, -40}).size(), QSize(0, 0));
    EXPECT_EQ(pixelDispositivo({3, 5}, 1.5), QSize(5, 8));
}

} // namespace
} // namespace zuvora
