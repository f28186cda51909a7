#include "designer/logic/Selezione.h"

#include "kit/ArchivioLayout.h"

namespace zuvora::prova {

namespace {

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
                                                             {u"Text1(0)"_s, u"Pannello1(0)"_s, {1000, 23000}},
                                                             {u"Image1(25)"_s, u"Image1(25)"_s, {0, 17000}},
                                                             {u"Text2"_s, u"Text2"_s, {0, 18000}},
                                                             {u"Text9(3)"_s, u"Text9(3)"_s, {0, 18000}},
                                                             {u"IM1"_s, u"IM1"_s, {0, 18000}},
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
}

TEST(Rimozione, OtherNamesDoNothing) {
    DisplayLayout layout(u"Layout1"_s);
    const DisplayLayout prima = layout;
    for (const auto &nome : {u""_s, u"Image1(0)"_s, u"Text9(4)"_s, u"Text1"_s, u"Form1"_s, u"Label2"_s, u"wb1"_s})
        EXPECT_FALSE(parcheggia(layout, nome)) << nome.toStdString();
    EXPECT_TRUE(std::equal(layout.begin(), layout.end(), prima.begin()));
}

} // namespace

} // namespace zuvora::prova
