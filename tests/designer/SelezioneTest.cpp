#include "designer/logic/Selezione.h"

#include "designer/ArchivioLayout.h"

#include <gmock/gmock.h>

namespace zuvora::prova {

namespace {

using enum AzionePressione;
using Azioni = std::vector<AzionePressione>;

Azioni azioni(TipoElemento tipo, Qt::MouseButton bottone, bool base) {
    const auto a = azioniPressione(tipo, bottone, base);
    return {a.begin(), a.end()};
}

TEST(Selezione, EveryElementAnswersTheMouseAsTold) {
    struct Caso {
        TipoElemento tipo;
        Azioni sinistro;
        Azioni destro;
        Azioni sinistroBase;
        Azioni destroBase;
    };
    const Azioni trascina{RipristinaDidascalia, Seleziona, Trascina};
    const std::vector<Caso> casi{
        {TipoElemento::Text1,
         {RipristinaDidascalia, Seleziona, TrascinaPannello},
         {RipristinaDidascalia, Lampo, ApriForm2},
         {},
         {}},
        {TipoElemento::Text2, {Seleziona, Trascina}, {Lampo, ApriForm2}, {}, {}},
        {TipoElemento::Text9, trascina, {RipristinaDidascalia, Lampo, ApriForm2}, {}, {}},
        {TipoElemento::Pannello1, trascina, {ApriForm2, RipristinaDidascalia}, {}, {ApriForm2}},
        {TipoElemento::Image1,
         {TestoDecorazione, Seleziona, Trascina},
         {TestoDecorazione, Lampo, ApriDecorazione},
         {TestoDecorazione, Seleziona, Trascina},
         {TestoDecorazione, Lampo, ApriDecorazione}},
        {TipoElemento::IM1, trascina, {RipristinaDidascalia}, {}, {}},
        {TipoElemento::MP1, trascina, {RipristinaDidascalia}, {}, {}},
        {TipoElemento::LeNews, trascina, {RipristinaDidascalia}, {}, {}},
        {TipoElemento::YT, trascina, {RipristinaDidascalia}, {}, {}},
        {TipoElemento::WB1, trascina, {RipristinaDidascalia, Lampo}, {}, {}},
        {TipoElemento::WB2, trascina, {RipristinaDidascalia, ApriAnteprimaTG}, {}, {}},
        {TipoElemento::Tela, {NascondiManiglie}, {}, {MenuChiudi}, {MenuChiudi}},
    };
    for (const Caso &caso : casi) {
        SCOPED_TRACE(nomeTipo(caso.tipo).toString().toStdString());
        EXPECT_EQ(azioni(caso.tipo, Qt::LeftButton, false), caso.sinistro);
        EXPECT_EQ(azioni(caso.tipo, Qt::RightButton, false), caso.destro);
        EXPECT_EQ(azioni(caso.tipo, Qt::LeftButton, true), caso.sinistroBase);
        EXPECT_EQ(azioni(caso.tipo, Qt::RightButton, true), caso.destroBase);
        const bool menu = caso.tipo == TipoElemento::Tela;
        EXPECT_EQ(azioni(caso.tipo, Qt::MiddleButton, true), menu ? Azioni{MenuChiudi} : Azioni{ScorriSchermata});
        EXPECT_EQ(azioni(caso.tipo, Qt::MiddleButton, false), Azioni{ScorriSchermata});
    }
}

TEST(Rimozione, ParksTheElementBelowTheScreen) {
    struct Caso {
        QString nome;
        TipoElemento tipo;
        int indice;
        double top;
        double left;
    };
    const std::vector<Caso> casi{{u"Pannello1(6)"_s, TipoElemento::Pannello1, 6, 23000, 1000},
                                 {u"Text1(20)"_s, TipoElemento::Pannello1, 6, 23000, 1000},
                                 {u"Text1(0)"_s, TipoElemento::Pannello1, 0, 23000, 1000},
                                 {u"Image1(25)"_s, TipoElemento::Image1, 25, 17000, 0},
                                 {u"Text2"_s, TipoElemento::Text2, 0, 18000, 0},
                                 {u"Text9(3)"_s, TipoElemento::Text9, 3, 18000, 0},
                                 {u"IM1"_s, TipoElemento::IM1, 0, 18000, 0},
                                 {u"MP1"_s, TipoElemento::MP1, 0, 18000, 0},
                                 {u"WB2"_s, TipoElemento::WB2, 0, 18000, 0},
                                 {u"WB1"_s, TipoElemento::WB1, 0, 18000, 0},
                                 {u"LeNews"_s, TipoElemento::LeNews, 0, 18000, 0},
                                 {u"YT"_s, TipoElemento::YT, 0, 18000, 0}};
    for (const Caso &caso : casi) {
        SCOPED_TRACE(caso.nome.toStdString());
        DisplayLayout layout(u"Layout1"_s);
        LayoutElement &e = layout.elemento(caso.tipo, caso.indice);
        e.area = {500, 600, 700, 800};
        e.visibile = true;
        for (int volta = 0; volta < 2; ++volta) { // twice does the same as once
            EXPECT_TRUE(parcheggia(layout, caso.nome));
            EXPECT_EQ(e.area, (Area{caso.left, caso.top, 700, 800}));
            EXPECT_FALSE(e.visibile);
        }
    }
}

TEST(Rimozione, OtherNamesDoNothing) {
    DisplayLayout layout(u"Layout1"_s);
    const DisplayLayout prima = layout;
    for (const auto &nome : {u""_s, u"Image1(0)"_s, u"Image1(26)"_s, u"Text9(4)"_s, u"Text1(24)"_s, u"Text1"_s,
                             u"Pannello1(8)"_s, u"Form1"_s, u"Label2"_s, u"wb1"_s})
        EXPECT_FALSE(parcheggia(layout, nome)) << nome.toStdString();
    EXPECT_TRUE(std::equal(layout.begin(), layout.end(), prima.begin()));
}

} // namespace

} // namespace zuvora::prova
