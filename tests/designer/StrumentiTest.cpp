#include "designer/logic/Strumenti.h"
#include "designer/logic/AnteprimaTG.h"
#include "designer/logic/Finestra.h"

#include "kit/ArchivioLayout.h"
#include "shell/store/EngineError.h"

#include <QRect>

namespace zuvora::prova {

namespace {

class Strumenti : public ::testing::Test {
protected:
    DisplayLayout layout{u"Layout1"_s};
};

// Index, left and top in twips, tool tip, caption.
TEST_F(Strumenti, EveryButtonStandsInItsPlaceAndSaysWhatItDoes) {
    const QStringList attesi{
        u"0 120 840 735| Testo Scorrevole |"_s,
        u"1 120 240 1575| Servizio| Pannelli"_s,
        u"2 960 840 735|Titolo |"_s,
        u"3 120 1440 735| Sottotitolo |"_s,
        u"4 960 1440 735| Data |"_s,
        u"5 1800 840 735| Ora|"_s,
        u"6 120 2040 735| Sfondo |"_s,
        u"7 960 2040 735| Colore Sfondo |"_s,
        u"8 1800 1440 735| Decorazioni |"_s,
        u"9 1800 2040 735| Immagini |"_s,
        u"10 120 2640 735| Video |"_s,
        u"12 1800 2640 735| Meteo |"_s,
        u"14 960 2640 735| Individua posizione Secondo Schermo |"_s,
        u"15 960 3240 735| Salva Posizione Finestra|"_s,
        u"16 1800 3240 735| Salva Impostazioni|"_s,
        u"17 120 3840 2415| Chiudi Impostazione Layout |"_s,
        u"22 120 3240 735| PlayList YouTube|"_s,
    };
    QStringList visti;
    for (const BottoneStrumenti &b : bottoniStrumenti())
        visti << u"%1 %2 %3 %4|%5|%6"_s.arg(b.indice).arg(b.left).arg(b.top).arg(b.width).arg(b.suggerimento,
                                                                                              b.didascalia);
    EXPECT_EQ(visti, attesi);
    EXPECT_EQ(bottoneStrumenti(22)->indice, 22);
    EXPECT_EQ(bottoneStrumenti(11), nullptr);
    EXPECT_EQ(piazzati(layout, *bottoneStrumenti(1)), 1);
    EXPECT_EQ(piazzati(layout, *bottoneStrumenti(8)), 0);
    EXPECT_EQ(piazzati(layout, *bottoneStrumenti(3)), 1);
    layout.elemento(TipoElemento::Text9, 1).visibile = false;
    EXPECT_EQ(piazzati(layout, *bottoneStrumenti(3)), 0);
    EXPECT_EQ(piazzati(layout, *bottoneStrumenti(16)), 0);
}

TEST_F(Strumenti, TheLowestFreeSlotIsTakenUntilAllAreUsed) {
    layout.elemento(TipoElemento::Image1, 1).area = {5, 6, 7, 8};
    for (int i = 1; i <= numeroDecorazioni; ++i)
        EXPECT_EQ(piazzaDecorazione(layout), i);
    EXPECT_EQ(layout.elemento(TipoElemento::Image1, 1).area, (Area{0, 0, 1905, 1305}));
    EXPECT_EQ(piazzaDecorazione(layout), std::nullopt);
    layout.elemento(TipoElemento::Image1, 9).visibile = false;
    EXPECT_EQ(piazzaDecorazione(layout), 9);
    EXPECT_EQ(piazzaPannello(layout), 1); // panel 0 is on the canvas from the start
    layout.elemento(TipoElemento::Pannello1, 0).visibile = false;
    EXPECT_EQ(piazzaPannello(layout), 0);
    for (int i = 2; i < numeroPannelli; ++i)
        EXPECT_EQ(piazzaPannello(layout), i);
    EXPECT_EQ(piazzaPannello(layout), std::nullopt);
}

TEST_F(Strumenti, PreviewGrowsInStepsAndNeverShrinksBelowOne) {
    AnteprimaTG anteprima({250, 300});
    EXPECT_EQ(anteprima.GB1(), (Dimensione{490, 780}));
    anteprima.Allarga();
    anteprima.Abbassa();
    EXPECT_EQ(anteprima.A1(), u"350"_s);
    EXPECT_EQ(anteprima.A2(), u"200"_s);
    anteprima.Alza();
    for (int i = 0; i < 9; ++i)
        anteprima.Stringi();
    EXPECT_EQ(anteprima.WB22(), (Dimensione{100, 300}));
    AnteprimaTG piatta({0, 70000}); // out of range: a step leads back, never further out
    piatta.Stringi();
    piatta.Alza();
    EXPECT_EQ(piatta.WB22(), (Dimensione{0, 70000}));
    piatta.Allarga();
    piatta.Abbassa();
    EXPECT_EQ(piatta.WB22(), (Dimensione{100, 69900}));
}

TEST_F(Strumenti, PreviewGivesBackOnlyNumbersInRange) {
    for (const auto &testo : {u""_s, u"abc"_s, u"99"_s, u"-100"_s, u"60001"_s, u"nan"_s, u"12 34"_s}) {
        EXPECT_EQ(AnteprimaTG::leggi(testo, u"400"_s), std::nullopt) << testo.toStdString();
        EXPECT_EQ(AnteprimaTG::leggi(u"400"_s, testo), std::nullopt) << testo.toStdString();
    }
    EXPECT_EQ(AnteprimaTG::leggi(u" 6375,5 "_s, u"60000"_s), (Dimensione{6375.5, 60000}));
    EXPECT_EQ(AnteprimaTG::leggi(u"100"_s, u"100"_s), (Dimensione{100, 100}));
}

// Geometry, font, colours, style and text of a form that nobody has changed.
TEST(ValoriIniziali, AreThoseOfTheFormsDefinition) {
    const auto detto = [](const LayoutElement &e) {
        return u"%1 %2 %3 %4|%5 %6%7|%8 %9|%10%11|%12"_s.arg(e.area.left)
            .arg(e.area.top)
            .arg(e.area.width)
            .arg(e.area.height)
            .arg(e.font.nome)
            .arg(e.font.dimensione)
            .arg(e.font.grassetto ? u"b"_s : QString())
            .arg(e.coloreSfondo)
            .arg(e.coloreTesto)
            .arg(int(e.allineamento))
            .arg(e.trasparente ? u"t"_s : QString(), e.didascalia);
    };
    const std::pair<QString, QString> casi[] = {
        {u"Text1(0)"_s, u"960 2880 4935 3375|Tahoma 126|4210752 16777215|2|0"_s},
        {u"Text1(21)"_s, u"960 2880 4935 3375|Tahoma 128.25|4210752 16777215|2|0"_s},
        {u"Text1(1)"_s, u"240 240 6615 735|Tahoma 27.75|4210752 16777215|0|Postazione 1"_s},
        {u"Text1(22)"_s, u"120 240 6615 735|Tahoma 27.75|4210752 16777215|0|Postazione 8"_s},
        {u"Text1(5)"_s, u"240 1200 6615 720|Arial 27.75|12632256 0|0t|Servizio (2)"_s},
        {u"Text1(14)"_s, u"240 1080 6615 720|Arial 27.75|12632256 0|0t|Servizio (5)"_s},
        {u"Text1(17)"_s, u"360 1200 6615 720|Arial 27.75|12632256 0|0t|Servizio (6)"_s},
        {u"Text9(0)"_s, u"7320 240 9735 810|Tahoma 36|12632256 0|0t|Titolo della Schermata"_s},
        {u"Text9(1)"_s, u"6840 1080 7575 570|Tahoma 24|12632256 0|0t|Sottotitolo della Schermata"_s},
        {u"Text9(2)"_s, u"12480 8280 6255 495|Tahoma 18b|4210752 16777215|2|Giovedi 29 Settembre 2011"_s},
        {u"Text9(3)"_s, u"12480 8880 6255 1215|Tahoma 48b|4210752 16777215|2|20:45"_s},
        {u"Text2"_s, u"13440 13200 10695 495|Tahoma 14.25|0 16777215|0|Testo scorrevole"_s},
    };
    const DisplayLayout layout(u"Layout1"_s);
    for (const auto &[nome, atteso] : casi)
        EXPECT_EQ(detto(layout[DisplayLayout::postoDi(nome)]), atteso) << nome.toStdString();
    const std::pair<QString, Area> riquadri[] = {
        {u"IM1"_s, {17280, 8160, 9615, 6615}},         {u"MP1"_s, {14280, 4680, 8775, 6135}},
        {u"WB1"_s, {6600, 9360, 6765, 5055}},          {u"WB2"_s, {14640, 1440, 8775, 5895}},
        {u"LeNews"_s, {6600, 11400, 7590, 1380}},      {u"YT"_s, {10440, 2280, 6375, 5055}},
        {u"Image1(25)"_s, {0, 17000, 1905, 1305}},     {u"Pannello1(0)"_s, {1000, 1000, 7005, 6495}},
        {u"Pannello1(7)"_s, {1000, 23000, 7005, 6495}}};
    for (const auto &[nome, area] : riquadri)
        EXPECT_EQ(layout[DisplayLayout::postoDi(nome)].area, area) << nome.toStdString();
    EXPECT_EQ(layout.elemento(TipoElemento::Pannello1, 3).coloreSfondo, 12632256);
}

TEST(NomiParlati, AreThoseThatAUserKnows) {
    const DisplayLayout layout(u"Layout1"_s);
    QStringList nomi;
    for (const int riga : {1, 5, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 59, 60, 61, 62, 70})
        nomi << layout[riga - 1].nomeParlato();
    EXPECT_EQ(nomi.join(u'|'),
              u"Numero del pannello 1|Postazione del pannello 2|Servizio del pannello 8|Titolo|Sottotitolo|Data|Ora|"
              "Riquadro immagini|Riquadro meteo|Riquadro video|Sfondo|Testo scorrevole|Colore dello schermo|"
              "Decorazione 25|Riquadro TG online|Striscia delle news|Riquadro YouTube|Pannello 8"_s);
}

TEST(Finestra, TheCanvasHasTheSizeOfItsResolution) {
    const Dimensione attese[] = {{24525, 14115}, {15360, 11520}, {20490, 11520},
                                 {28800, 16200}, {16200, 28800}, {24525, 14115}};
    for (int r = -1; r < 5; ++r)
        EXPECT_EQ(dimensioneTela(r), attese[r + 1]) << r;
}

TEST(Finestra, AFormOfWhichNothingCanBeTakenGetsAnotherTopAndNoOtherDoes) {
    const QList<QRect> schermi{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    const auto top = [&](int x, int y) { // the strip alone, at 24 and 24 of the form
        return topRaggiungibile({x, y, 1920, 1080}, {{x + 24, y + 24, 193, 28}}, schermi);
    };
    EXPECT_EQ(top(0, -44), -44); // eight pixels still show
    EXPECT_EQ(top(0, -45), 0);
    EXPECT_EQ(top(0, 1048), 1048);
    EXPECT_EQ(top(1921, 1000), 0); // below the lower second screen
    EXPECT_EQ(top(1921, 900), 900);
    EXPECT_EQ(top(5000, 300), 300); // beside all screens: Esc brings it back as it is
    EXPECT_EQ(top(5000, -900), 0);
    EXPECT_EQ(topRaggiungibile({0, -900, 10, 10}, {}, {}), -900);
}

TEST(Finestra, OnlyALargerFormIsShiftedAndOnlyToItsEdges) {
    const QRect schermo(100, 50, 1000, 800);
    EXPECT_EQ(scorri({100, 50, 1500, 800}, schermo, {-200, -200}), QPoint(-100, 50));
    EXPECT_EQ(scorri({100, 50, 1500, 900}, schermo, {-9000, -9000}), QPoint(-400, -50));
    EXPECT_EQ(scorri({-300, 0, 1500, 900}, schermo, {9000, 9000}), QPoint(100, 50));
    EXPECT_EQ(scorri({140, 50, 1500, 900}, schermo, {20, 0}), QPoint(140, 50)); // further out: never more so
    EXPECT_EQ(scorri({140, 50, 1500, 900}, schermo, {-20, 0}), QPoint(120, 50));
}

class FinestraSalvata : public ArchivioLayout {};

TEST_F(FinestraSalvata, PositionAndNewsAddressComeFromTheirRows) {
    EXPECT_EQ(leggiPercorsoTG(cartella()), QString()); // no row at all
    esegui(u"insert into Configurazione default values; insert into TG default values"_s);
    EXPECT_EQ(leggiPosizioneFinestra(cartella()), PuntoTwips{}); // Null
    EXPECT_EQ(leggiPercorsoTG(cartella()), QString());
    esegui(u"update TG set PercorsoURL='https://notizie.example/'"_s);
    SalvaPosizioneFinestra(cartella(), {28820, -15});
    EXPECT_EQ(leggiPosizioneFinestra(cartella()), (PuntoTwips{28820, -15}));
    EXPECT_EQ(leggiPercorsoTG(cartella()), u"https://notizie.example/"_s);
    EXPECT_EQ(VaiSecondoSchermo(28800), (PuntoTwips{28820, 0}));
    esegui(u"drop table TG"_s);
    EXPECT_THROW(leggiPercorsoTG(cartella()), EngineError);
}

} // namespace

} // namespace zuvora::prova
