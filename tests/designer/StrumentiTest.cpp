#include "designer/logic/Strumenti.h"
#include "designer/logic/AnteprimaTG.h"
#include "designer/logic/Finestra.h"

#include "designer/ArchivioLayout.h"

#include <QRect>

namespace zuvora::prova {

namespace {

class Strumenti : public ::testing::Test {
protected:
    DisplayLayout layout{u"Layout1"_s};
    FinteImmagini immagini;
};

TEST_F(Strumenti, ButtonsFillTheGroupWithoutOverlap) {
    constexpr QRect gruppo(0, 0, 2655, 4575);
    QList<QRect> visti;
    for (const BottoneStrumenti &b : bottoniStrumenti()) {
        const QRect posto(b.left, b.top, b.width, altezzaBottone);
        EXPECT_TRUE(gruppo.contains(posto)) << b.indice;
        for (const QRect &altro : visti)
            EXPECT_FALSE(altro.intersects(posto)) << b.indice;
        visti.append(posto);
        EXPECT_EQ(bottoneStrumenti(b.indice), &b);
        EXPECT_EQ(b.comando == Comando::PiazzaElemento, b.tipo != TipoElemento::Tela);
    }
    EXPECT_EQ(visti.size(), 17);
    EXPECT_EQ(bottoneStrumenti(11), nullptr);
}

TEST_F(Strumenti, SingleElementGoesToTheCornerOnlyWhenItIsFree) {
    LayoutElement &titolo = layout.elemento(TipoElemento::Text9, 0);
    const LayoutElement prima = titolo;
    EXPECT_FALSE(piazzaElemento(layout, TipoElemento::Text9, 0));
    EXPECT_EQ(titolo, prima);
    titolo.visibile = false;
    titolo.area = {0, 18000, 321, 123};
    EXPECT_TRUE(piazzaElemento(layout, TipoElemento::Text9, 0));
    EXPECT_EQ(titolo.area, (Area{0, 0, 321, 123}));
    EXPECT_TRUE(titolo.visibile);
    EXPECT_EQ(titolo.font, prima.font);
}

TEST_F(Strumenti, PanelsAreTakenFromTheLowestFreeSlotUntilAllEightAreUsed) {
    EXPECT_EQ(piazzaPannello(layout), 1); // panel 0 is on the canvas from the start
    layout.elemento(TipoElemento::Pannello1, 0).visibile = false;
    EXPECT_EQ(piazzaPannello(layout), 0);
    for (int i = 2; i < numeroPannelli; ++i)
        EXPECT_EQ(piazzaPannello(layout), i);
    EXPECT_EQ(layout.elemento(TipoElemento::Pannello1, 7).area, (Area{0, 0, 7005, 6495}));
    EXPECT_EQ(piazzaPannello(layout), std::nullopt);
}

TEST_F(Strumenti, NewDecorationHasItsFixedSizeAndTheTwentySixthIsRefused) {
    layout.elemento(TipoElemento::Image1, 1).area = {5, 6, 7, 8};
    for (int i = 1; i <= numeroDecorazioni; ++i)
        EXPECT_EQ(piazzaDecorazione(layout), i);
    EXPECT_EQ(layout.elemento(TipoElemento::Image1, 1).area, (Area{0, 0, 1905, 1305}));
    EXPECT_EQ(piazzaDecorazione(layout), std::nullopt);
    layout.elemento(TipoElemento::Image1, 9).visibile = false;
    EXPECT_EQ(piazzaDecorazione(layout), 9);
}

TEST_F(Strumenti, ChosenDecorationIsAppliedWholeOrNotAtAll) {
    immagini.mancanti = {u"/manca.gif"_s};
    ASSERT_TRUE(applicaDecorazione(layout, 4, u"/c.gif"_s, false, immagini));
    EXPECT_EQ(layout.PercorsiDecorazione[4], u"/c.gif"_s);
    EXPECT_EQ(layout.PianiDecorazione[4], u"avanti"_s);
    EXPECT_EQ(layout.ordine().last(), DisplayLayout::postoDi(TipoElemento::Image1, 4));
    EXPECT_FALSE(applicaDecorazione(layout, 4, u"/manca.gif"_s, true, immagini));
    EXPECT_EQ(layout.PercorsiDecorazione[4], u"/c.gif"_s);
    EXPECT_EQ(layout.PianiDecorazione[4], u"avanti"_s);
    ASSERT_TRUE(applicaDecorazione(layout, 4, {}, true, immagini));
    EXPECT_EQ(layout.elemento(TipoElemento::Image1, 4).immagine, QString());
    EXPECT_EQ(layout.ordine().first(), DisplayLayout::postoDi(TipoElemento::Image1, 4));
    EXPECT_FALSE(applicaDecorazione(layout, 0, {}, true, immagini));
}

TEST_F(Strumenti, ChosenBackgroundReachesCanvasAndLabel) {
    ASSERT_TRUE(applicaSfondo(layout, u"/s.jpg"_s, immagini));
    immagini.mancanti = {u"/manca.jpg"_s};
    EXPECT_FALSE(applicaSfondo(layout, u"/manca.jpg"_s, immagini));
    EXPECT_EQ(layout.Label2(), u"/s.jpg"_s);
    EXPECT_EQ(layout.tela().immagine, u"/s.jpg"_s);
    ASSERT_TRUE(applicaSfondo(layout, {}, immagini));
    EXPECT_EQ(layout.Label2(), QString());
}

TEST_F(Strumenti, PreviewGrowsInStepsAndNeverShrinksBelowOne) {
    layout.elemento(TipoElemento::WB2).area = {14, 15, 250, 300};
    AnteprimaTG anteprima(layout);
    EXPECT_EQ(anteprima.GB1(), (Dimensione{490, 780}));
    anteprima.Allarga();
    anteprima.Abbassa();
    EXPECT_EQ(anteprima.A1(), u"350"_s);
    EXPECT_EQ(anteprima.A2(), u"200"_s);
    for (int i = 0; i < 9; ++i)
        anteprima.Stringi();
    EXPECT_EQ(anteprima.WB22(), (Dimensione{100, 200}));
    layout.elemento(TipoElemento::WB2).area.width = 0; // dragged flat: a step down leaves it, a step up opens it
    AnteprimaTG piatta(layout);
    piatta.Stringi();
    EXPECT_EQ(piatta.WB22().width, 0);
    piatta.Allarga();
    EXPECT_EQ(piatta.WB22().width, 100);
}

TEST_F(Strumenti, PreviewGivesBackOnlyPositiveNumbers) {
    Area &area = layout.elemento(TipoElemento::WB2).area;
    area = {14, 15, 250, 300};
    for (const auto &testo : {u""_s, u"abc"_s, u"0"_s, u"-100"_s, u"1e9"_s, u"nan"_s, u"12 34"_s}) {
        EXPECT_NE(AnteprimaTG::Accetta(layout, testo, u"400"_s), QString()) << testo.toStdString();
        EXPECT_NE(AnteprimaTG::Accetta(layout, u"400"_s, testo), QString()) << testo.toStdString();
    }
    EXPECT_EQ(area, (Area{14, 15, 250, 300}));
    EXPECT_EQ(AnteprimaTG::Accetta(layout, u" 6375,5 "_s, u"4455"_s), QString());
    EXPECT_EQ(area, (Area{14, 15, 6375.5, 4455}));
}

class Finestra : public ArchivioLayout {};

TEST_F(Finestra, PositionIsStoredAndReadAtTheNextOpening) {
    EXPECT_EQ(leggiPrimaAttivazione(cartella()).posizione, PuntoTwips{}); // no row at all
    esegui(u"insert into Configurazione default values; insert into TG default values"_s);
    EXPECT_EQ(leggiPrimaAttivazione(cartella()).posizione, PuntoTwips{}); // Null
    esegui(u"update TG set PercorsoURL='https://notizie.example/'"_s);
    SalvaPosizioneFinestra(cartella(), {28820, -15});
    const PrimaAttivazione letta = leggiPrimaAttivazione(cartella());
    EXPECT_EQ(letta.posizione, (PuntoTwips{28820, -15}));
    EXPECT_EQ(letta.PercorsoTG, u"https://notizie.example/"_s);
}

} // namespace

} // namespace zuvora::prova
