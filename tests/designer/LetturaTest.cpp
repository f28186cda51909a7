#include "designer/logic/LetturaLayout.h"
#include "designer/logic/ScritturaLayout.h"
#include "designer/logic/Strumenti.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include "kit/ArchivioLayout.h"

#include <gmock/gmock.h>

namespace zuvora::prova {

namespace {

class Lettura : public ArchivioLayout {
protected:
    // A table as a save of the start values leaves it, with everything visible and no picture.
    void prepara(const QString &nome) {
        tavola = nome;
        righeVuote(nome);
        DisplayLayout layout(nome);
        for (LayoutElement &e : layout)
            e.visibile = true;
        layout.Label2().clear();
        ASSERT_TRUE(SalvaLayout(layout, cartella()).completo());
    }
    DisplayLayout leggi() {
        DisplayLayout layout(tavola);
        esito = CaricaLayout(layout, immagini, cartella());
        return layout;
    }
    void cambia(int riga, const QString &colonna, const QString &sql) { imposta(tavola, riga, colonna, sql); }

    QString tavola;
    FinteImmagini immagini;
    EsitoLettura esito;
};

TEST_F(Lettura, NullTurnsIntoTheDefaultOfItsProperty) {
    prepara(u"Layout1"_s);
    for (const auto &c : {u"testo"_s, u"FontBold"_s, u"Visibile"_s, u"ColoreSfondo"_s, u"NomeFont"_s, u"top"_s,
                          u"Allineamento"_s, u"PercorsoImmagine"_s, u"DimFont"_s, u"Altezza"_s})
        esegui(u"update Layout1 set [%1]=NULL"_s.arg(c));
    const DisplayLayout layout = leggi();
    EXPECT_EQ(layout.elemento(TipoElemento::Text1, 4).didascalia, QString());
    EXPECT_EQ(layout.elemento(TipoElemento::Text2).didascalia, QString());
    EXPECT_EQ(layout.elemento(TipoElemento::Text9, 3).didascalia, u"20:45"_s); // keeps what it had
    EXPECT_FALSE(layout.elemento(TipoElemento::Text9, 3).font.grassetto);
    EXPECT_EQ(layout.elemento(TipoElemento::Text9, 3).font.nome, u"Tahoma"_s);
    EXPECT_FALSE(layout.elemento(TipoElemento::Pannello1, 0).visibile);
    EXPECT_EQ(layout.elemento(TipoElemento::Pannello1, 0).coloreSfondo, 12632256);
    EXPECT_EQ(layout.tela().coloreSfondo, 0);
    EXPECT_EQ(layout.Label2(), u"Label2"_s);
    EXPECT_EQ(layout.PercorsiDecorazione(7), QString());
    EXPECT_EQ(layout.PianiDecorazione(7), u"dietro");
    EXPECT_EQ(layout.elemento(TipoElemento::WB2).area.height, 5895);
    EXPECT_EQ(esito.avvisi, QStringList{});
}

TEST_F(Lettura, BadValuesLeaveTheirPropertyAndOnlyRowsFrom33Tell) {
    prepara(u"Layout1"_s);
    struct Caso {
        int riga;
        QString colonna;
        QString sql;
    };
    const std::vector<Caso> casi{{5, u"DimFont"_s, u"'grande'"_s},    {5, u"FontBold"_s, u"'boh'"_s},
                                 {26, u"top"_s, u"'in alto'"_s},      {29, u"Larghezza"_s, u"-1"_s},
                                 {26, u"Allineamento"_s, u"3"_s},     {33, u"DimFont"_s, u"0"_s},
                                 {34, u"ColoreSfondo"_s, u"-5"_s},    {36, u"left"_s, u"1e300"_s},
                                 {36, u"FontBold"_s, u"'davanti'"_s}, {63, u"Visibile"_s, u"'forse'"_s}};
    DisplayLayout prima = leggi();
    for (const Caso &c : casi)
        cambia(c.riga, c.colonna, c.sql);
    cambia(5, u"testo"_s, u"'si legge'"_s); // the statements behind a bad one still run
    cambia(36, u"top"_s, u"4321"_s);
    DisplayLayout dopo = leggi();
    prima.elemento(TipoElemento::Text1, 4).didascalia = u"si legge"_s;
    prima.elemento(TipoElemento::Image1, 2).area.top = 4321;
    for (int posto = 0; posto < righeLayout; ++posto)
        EXPECT_EQ(dopo[posto], prima[posto]) << posto + 1;
    EXPECT_EQ(esito.avvisi.size(), 5);
    EXPECT_TRUE(esito.avvisi.value(2).contains(u"Riga 36, Decorazione 2")) << esito.testo().toStdString();
    EXPECT_TRUE(esito.avvisi.value(1).contains(u"Riga 34, Colore dello schermo"));
    EXPECT_EQ(esito.testo(2).count(u'\n'), 2);
    EXPECT_EQ(esito.testo(5).count(u'\n'), 4);
}

TEST_F(Lettura, ATableWithoutAColumnIsReadAsFarAsItGoes) {
    prepara(u"Layout1"_s);
    esegui(u"alter table Layout1 drop column Altezza"_s);
    cambia(36, u"Larghezza"_s, u"4000"_s);
    const DisplayLayout layout = leggi();
    EXPECT_EQ(layout.elemento(TipoElemento::Image1, 2).area, (Area{0, 17000, 4000, 1305}));
    EXPECT_EQ(esito.righe, righeLayout);
    EXPECT_EQ(esito.avvisi.size(), 1); // one sentence, not one a row
}

TEST_F(Lettura, AShortTableLeavesTheOtherElementsAndSavesOnlyItsRows) {
    prepara(u"Layout1"_s);
    esegui(u"update Layout1 set [top]=15; delete from Layout1 where rowid>40"_s);
    DisplayLayout layout = leggi();
    EXPECT_EQ(esito.righe, 40);
    EXPECT_TRUE(esito.avvisi.value(0).contains(u"solo 40 righe su 70"));
    EXPECT_EQ(layout.elemento(TipoElemento::Image1, 6).area.top, 15);
    EXPECT_EQ(layout.elemento(TipoElemento::Pannello1, 0).area, (Area{1000, 1000, 7005, 6495}));
    const LayoutElement &libera = layout.elemento(TipoElemento::Image1, 9); // no row: still the frame
    EXPECT_EQ(layout.immagineMostrata(libera), percorsoIn(cartella(), nomi::corniceLibera));
    const EsitoScrittura salvata = SalvaLayout(layout, cartella());
    EXPECT_TRUE(salvata.riuscito());
    EXPECT_EQ(salvata.scritte, 40);
    EXPECT_TRUE(messaggioSalva(salvata).riga0.contains(u"40 righe su 70"));
    EXPECT_EQ(tabella(u"Layout1"_s).size(), 40);
    esegui(u"delete from Layout1"_s);
    leggi();
    EXPECT_EQ(esito.righe, 0);
    esegui(u"drop table Layout1"_s);
    EXPECT_THROW(leggi(), EngineError);
}

TEST_F(Lettura, BackgroundThatCannotBeLoadedDoesNotReachTheLabel) {
    prepara(u"Layout1"_s);
    cambia(32, u"PercorsoImmagine"_s, u"'/tolto.jpg'"_s);
    immagini.mancanti = {u"/tolto.jpg"_s};
    DisplayLayout layout = leggi();
    EXPECT_EQ(layout.Label2(), u"Label2"_s);
    EXPECT_EQ(layout.tela().immagine, QString());
    EXPECT_EQ(esito.avvisi, QStringList{});
    cambia(32, u"PercorsoImmagine"_s, u"'/c''è.jpg'"_s);
    layout = leggi();
    EXPECT_EQ(layout.Label2(), u"/c'è.jpg"_s);
    EXPECT_EQ(layout.tela().immagine, u"/c'è.jpg"_s);
}

TEST_F(Lettura, TheBaseShowsItsOwnBackgroundWhateverTheRowSays) {
    prepara(u"LayoutBase"_s);
    const QString base = percorsoIn(cartella(), nomi::sfondoBase);
    cambia(32, u"PercorsoImmagine"_s, u"'/altro.jpg'"_s);
    DisplayLayout layout = leggi();
    EXPECT_EQ(layout.tela().immagine, base);
    EXPECT_EQ(layout.Label2(), u"/altro.jpg"_s);
    immagini.mancanti = {base};
    layout = leggi();
    EXPECT_EQ(layout.tela().immagine, u"/altro.jpg"_s);
    immagini.mancanti = {u"/altro.jpg"_s}; // gives up the rest of the row
    layout = leggi();
    EXPECT_EQ(layout.tela().immagine, QString());
    EXPECT_EQ(layout.Label2(), u"Label2"_s);
}

TEST_F(Lettura, ADecorationWithoutItsPictureIsMarkedAndKeepsItsPath) {
    prepara(u"Layout1"_s);
    cambia(37, u"PercorsoImmagine"_s, u"'/manca.gif'"_s);
    cambia(38, u"PercorsoImmagine"_s, u"'/bella.gif'"_s);
    immagini.mancanti = {u"/manca.gif"_s};
    DisplayLayout layout = leggi();
    EXPECT_TRUE(layout.elemento(TipoElemento::Image1, 3).immagineMancante);
    EXPECT_FALSE(layout.elemento(TipoElemento::Image1, 4).immagineMancante);
    EXPECT_EQ(layout.elemento(TipoElemento::Image1, 4).immagine, u"/bella.gif"_s);
    ASSERT_EQ(esito.avvisi.size(), 1);
    EXPECT_TRUE(esito.avvisi[0].contains(u"Decorazione 3") && esito.avvisi[0].contains(u"/manca.gif"));
    cambia(36, u"PercorsoImmagine"_s, u"'/"_s + QString(1'000'000, u'x') + u"'"_s);
    immagini.mancanti.insert(u"/"_s + QString(1'000'000, u'x'));
    leggi();
    ASSERT_EQ(esito.avvisi.size(), 2); // by row, whatever the decoding took
    EXPECT_LT(esito.avvisi[0].size(), 300);
    SalvaLayout(layout, cartella());
    EXPECT_EQ(valore(tavola, 37, u"PercorsoImmagine"_s), u"/manca.gif"_s);
    EXPECT_TRUE(applicaDecorazione(layout, 3, u"/bella.gif"_s, false, immagini));
    EXPECT_FALSE(layout.elemento(TipoElemento::Image1, 3).immagineMancante);
}

TEST_F(Lettura, AFreeDecorationShowsTheFrameAndSavesItsOwnPath) {
    prepara(u"Layout1"_s);
    const QString cornice = percorsoIn(cartella(), nomi::corniceLibera);
    esegui(u"update Layout1 set Visibile=0, PercorsoImmagine='/sua.gif' where rowid in (35,36); "
           "update Layout1 set PercorsoImmagine=NULL where rowid=36"_s);
    immagini.mancanti = {u"/sua.gif"_s}; // nobody sees it, nobody is told
    DisplayLayout layout = leggi();
    EXPECT_EQ(esito.avvisi, QStringList{});
    for (const int i : {1, 2})
        EXPECT_EQ(layout.immagineMostrata(layout.elemento(TipoElemento::Image1, i)), cornice);
    SalvaLayout(layout, cartella());
    EXPECT_EQ(valore(tavola, 35, u"PercorsoImmagine"_s), u"/sua.gif"_s);
    EXPECT_EQ(valore(tavola, 36, u"PercorsoImmagine"_s), QString());
    immagini.mancanti = {cornice};
    leggi();
    EXPECT_EQ(esito.avvisi.size(), 1); // once, not for every free slot
}

TEST_F(Lettura, PlanesStackLaterRowsAboveInFrontAndBelowBehind) {
    prepara(u"Layout1"_s);
    esegui(u"update Layout1 set FontBold=(rowid%2) where rowid between 35 and 59"_s);
    const DisplayLayout layout = leggi();
    QStringList ordine;
    for (const int posto : layout.ordine())
        ordine.append(layout[posto].nome());
    EXPECT_EQ(ordine.first(), u"Image1(24)"_s);
    EXPECT_EQ(ordine.at(1), u"Image1(22)"_s);
    EXPECT_EQ(ordine.last(), u"Image1(25)"_s);
    EXPECT_LT(ordine.indexOf(u"Text2"_s), ordine.indexOf(u"Image1(1)"_s));
    EXPECT_LT(ordine.indexOf(u"Image1(1)"_s), ordine.indexOf(u"Image1(3)"_s));
    EXPECT_EQ(ordine.size(), 44);
}

} // namespace

} // namespace zuvora::prova
