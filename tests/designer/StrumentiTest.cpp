#include "designer/logic/Strumenti.h"
#include "designer/logic/AnteprimaTG.h"
#include "designer/logic/Finestra.h"

#include "designer/logic/Selezione.h"
#include "kit/ArchivioLayout.h"

#include <QRegion>

namespace zuvora::prova {

namespace {

class Strumenti : public ::testing::Test {
protected:
    DisplayLayout layout{u"Layout1"_s};
};

TEST_F(Strumenti, ButtonsStandInTheirGridNoneOverAnotherAndEachSaysSomethingElse) {
    QRegion occupata;
    QSet<QString> detti;
    for (const BottoneStrumenti &b : bottoniStrumenti()) {
        const QRect posto(b.left, b.top, b.width, altezzaBottone);
        EXPECT_TRUE((b.left - 120) % 840 == 0 && (b.width + 105) % 840 == 0 && (b.top - 240) % 600 == 0) << b.indice;
        EXPECT_FALSE(occupata.intersects(posto)) << b.indice;
        occupata += posto;
        detti << b.suggerimento.trimmed().toString();
        EXPECT_EQ(bottoneStrumenti(b.indice), &b);
    }
    EXPECT_EQ(occupata.boundingRect(), QRect(120, 240, 2415, 3600 + altezzaBottone));
    EXPECT_EQ(detti.size(), qsizetype(bottoniStrumenti().size()));
    EXPECT_EQ(bottoneStrumenti(11), nullptr);
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

TEST_F(Strumenti, PreviewGivesBackOnlyNumbersInRangeAndStepsIntoIt) {
    for (const auto &testo : {u""_s, u"abc"_s, u"99"_s, u"-100"_s, u"60001"_s, u"nan"_s, u"12 34"_s}) {
        EXPECT_EQ(AnteprimaTG::leggi(testo, u"400"_s), std::nullopt) << testo.toStdString();
        EXPECT_EQ(AnteprimaTG::leggi(u"400"_s, testo), std::nullopt) << testo.toStdString();
    }
    EXPECT_EQ(AnteprimaTG::leggi(u" 6375,5 "_s, u"60000"_s), (Dimensione{6375.5, 60000}));
    AnteprimaTG piatta({150, 70000}); // a step from out of range leads back, never further out
    for (int volta = 0; volta < 2; ++volta)
        piatta.Stringi();
    piatta.Alza();
    EXPECT_EQ(piatta.WB22(), (Dimensione{100, 70000}));
    piatta.Abbassa();
    EXPECT_EQ(piatta.WB22(), (Dimensione{100, 69900}));
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
        {u"Text1(22)"_s, u"120 240 6615 735|Tahoma 27.75|4210752 16777215|0|Postazione 8"_s},
        {u"Text1(14)"_s, u"240 1080 6615 720|Arial 27.75|12632256 0|0t|Servizio (5)"_s},
        {u"Text9(0)"_s, u"7320 240 9735 810|Tahoma 36|12632256 0|0t|Titolo della Schermata"_s},
        {u"Text9(2)"_s, u"12480 8280 6255 495|Tahoma 18b|4210752 16777215|2|Giovedi 29 Settembre 2011"_s},
        {u"Text9(3)"_s, u"12480 8880 6255 1215|Tahoma 48b|4210752 16777215|2|20:45"_s},
        {u"Text2"_s, u"13440 13200 10695 495|Tahoma 14.25|0 16777215|0|Testo scorrevole"_s},
    };
    const DisplayLayout layout(u"Layout1"_s);
    for (const auto &[nome, atteso] : casi)
        EXPECT_EQ(detto(layout[DisplayLayout::postoDi(nome)]), atteso) << nome.toStdString();
    const std::pair<QString, Area> riquadri[] = {{u"IM1"_s, {17280, 8160, 9615, 6615}},
                                                 {u"LeNews"_s, {6600, 11400, 7590, 1380}},
                                                 {u"Image1(25)"_s, {0, 17000, 1905, 1305}},
                                                 {u"Pannello1(0)"_s, {1000, 1000, 7005, 6495}},
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
    const QList<QRect> scalati{{1920, 2000, 1920, 1080}, {0, 0, 1920, 1080}};
    for (const auto &[x, atteso] : {std::pair(1912, 0), {1913, 2000}}) // eight pixels beside the edge, and seven
        EXPECT_EQ(topRaggiungibile({x - 24, 0, 1920, 1080}, {{x, 24, 193, 28}}, scalati), atteso);
}

TEST(Finestra, OnlyALargerFormIsShiftedAndOnlyToItsEdges) {
    const QRect schermo(100, 50, 1000, 800);
    EXPECT_EQ(scorri({100, 50, 1500, 800}, schermo, {-200, -200}), QPoint(-100, 50));
    EXPECT_EQ(scorri({100, 50, 1500, 900}, schermo, {-9000, -9000}), QPoint(-400, -50));
    EXPECT_EQ(scorri({-300, 0, 1500, 900}, schermo, {9000, 9000}), QPoint(100, 50));
    EXPECT_EQ(scorri({140, 50, 1500, 900}, schermo, {20, 0}), QPoint(140, 50)); // further out: never more so
    EXPECT_EQ(scorri({140, 50, 1500, 900}, schermo, {-20, 0}), QPoint(120, 50));
}

// The actions of a press by their letters, in the order of the enumeration.
QString azioni(TipoElemento tipo, Qt::MouseButton bottone, bool base) {
    static const QString lettere = u"rdstplfcamgn"_s;
    QString esito;
    for (const AzionePressione a : azioniPressione(tipo, bottone, base))
        esito += lettere[static_cast<int>(a)];
    return esito;
}

// Left and right in any layout, then left, right and middle in the base: r the caption goes back, d it names the
// decoration, s selects, t outline, p live drag, l flash, f Form2, c decoration form, a news box, m menu, g shifts the
// form, n hides the handles.
TEST(Selezione, EveryElementAnswersTheMouseAsTold) {
    const QStringList attese{u"Text1 rsp rlf - - g"_s,    u"Text2 st lf - - g"_s,        u"Text9 rst rlf - - g"_s,
                             u"Pannello1 rst fr - f g"_s, u"Image1 dst dlc dst dlc g"_s, u"IM1 rst r - - g"_s,
                             u"MP1 rst r - - g"_s,        u"LeNews rst r - - g"_s,       u"YT rst r - - g"_s,
                             u"WB1 rst rl - - g"_s,       u"WB2 rst ra - - g"_s,         u"Form1 n - m m m"_s};
    for (const QString &attesa : attese) {
        const QString nome = attesa.section(u' ', 0, 0);
        auto tipo = TipoElemento::Text1;
        while (nomeTipo(tipo) != nome)
            tipo = static_cast<TipoElemento>(static_cast<int>(tipo) + 1);
        QStringList viste{nome};
        for (const auto &[bottone, base] :
             {std::pair(Qt::LeftButton, false), std::pair(Qt::RightButton, false), std::pair(Qt::LeftButton, true),
              std::pair(Qt::RightButton, true), std::pair(Qt::MiddleButton, true)}) {
            const QString vista = azioni(tipo, bottone, base);
            viste << (vista.isEmpty() ? u"-"_s : vista);
        }
        EXPECT_EQ(viste.join(u' '), attesa);
        EXPECT_EQ(azioni(tipo, Qt::MiddleButton, false), u"g"_s);
    }
}

TEST(Rimozione, ParksTheElementBelowTheScreen) {
    const std::tuple<QString, QString, PuntoTwips> casi[] = {{u"Pannello1(6)"_s, u"Pannello1(6)"_s, {1000, 23000}},
                                                             {u"Text1(20)"_s, u"Pannello1(6)"_s, {1000, 23000}},
                                                             {u"Image1(25)"_s, u"Image1(25)"_s, {0, 17000}},
                                                             {u"Text2"_s, u"Text2"_s, {0, 18000}},
                                                             {u"LeNews"_s, u"LeNews"_s, {0, 18000}}};
    for (const auto &[selezionato, tolto, posto] : casi) {
        DisplayLayout layout(u"Layout1"_s);
        LayoutElement &e = layout[DisplayLayout::postoDi(tolto)];
        e.area = {500, 600, 700, 800};
        e.visibile = true;
        for (int volta = 0; volta < 2; ++volta) { // twice does the same as once
            EXPECT_TRUE(parcheggia(layout, selezionato));
            EXPECT_EQ(e.area, (Area{posto.left, posto.top, 700, 800})) << selezionato.toStdString();
            EXPECT_FALSE(e.visibile);
        }
    }
    DisplayLayout layout(u"Layout1"_s);
    for (const auto &nome : {u""_s, u"Image1(0)"_s, u"Text9(4)"_s, u"Text1"_s, u"Form1"_s, u"Label2"_s, u"wb1"_s})
        EXPECT_FALSE(parcheggia(layout, nome)) << nome.toStdString();
}

} // namespace

} // namespace zuvora::prova
