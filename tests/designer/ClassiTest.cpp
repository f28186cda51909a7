#include "designer/logic/Classi.h"

#include "kit/ArchivioLayout.h"

namespace zuvora::prova {

namespace {

class Proprieta : public ::testing::Test {
protected:
    // Names of the elements that differ from a fresh layout.
    QStringList cambiati() const {
        const DisplayLayout fresco(u"Layout1"_s);
        QStringList nomi;
        for (int posto = 0; posto < righeLayout; ++posto) {
            if (layout[posto] != fresco[posto])
                nomi.append(layout[posto].nome());
        }
        return nomi;
    }
    static QStringList ogniTre(int primo) {
        QStringList nomi;
        for (int i = primo; i < 24; i += 3)
            nomi.append(nomeElemento(TipoElemento::Text1, i));
        return nomi;
    }

    DisplayLayout layout{u"Layout1"_s};
    CampiForm2 campi{{u"Courier"_s, u"14.5"_s, u"255"_s, u"65280"_s}, true, true, 2, true, u"Benvenuti"_s, 77};
};

TEST_F(Proprieta, ClassGetsTheStyleAndNoOtherElementDoes) {
    const std::vector<std::pair<Classe, QStringList>> casi{
        {Classe::Numeri, ogniTre(0)},      {Classe::Postazione, ogniTre(1)},        {Classe::Servizio, ogniTre(2)},
        {Classe::Titolo, {u"Text9(0)"_s}}, {Classe::SottoTitolo, {u"Text9(1)"_s}},  {Classe::Data, {u"Text9(2)"_s}},
        {Classe::Orario, {u"Text9(3)"_s}}, {Classe::TestoScorrevole, {u"Text2"_s}},
    };
    for (const auto &[classe, elementi] : casi) {
        SCOPED_TRACE(elementi.last().toStdString());
        layout = DisplayLayout(u"Layout1"_s);
        ASSERT_TRUE(applicaClasse(layout, classe, campi));
        EXPECT_EQ(cambiati(), elementi);
        const LayoutElement &e = layout[DisplayLayout::postoDi(elementi.last())];
        EXPECT_EQ(e.font, (Carattere{u"Courier"_s, 14.5, true, true}));
        EXPECT_EQ(e.coloreSfondo, 255);
        EXPECT_EQ(e.coloreTesto, 65280);
        EXPECT_EQ(e.allineamento, Allineamento::Destra);
        EXPECT_TRUE(e.trasparente);
    }
}

TEST_F(Proprieta, OnlyServicesLineUpAndOnlyTitlesTakeTheText) {
    campi.RB1 = bottoneDi(Allineamento::Sinistra);
    for (const Classe classe : {Classe::Numeri, Classe::Postazione, Classe::Servizio, Classe::Titolo, Classe::Data})
        applicaClasse(layout, classe, campi);
    EXPECT_EQ(layout.elemento(TipoElemento::Text1, 17).area, (Area{77, 1200, 6615, 720}));
    EXPECT_EQ(layout.elemento(TipoElemento::Text1, 22).area.left, 120);
    EXPECT_EQ(layout.elemento(TipoElemento::Text1, 0).area.left, 960);
    EXPECT_EQ(layout.elemento(TipoElemento::Text9, 0).didascalia, u"Benvenuti"_s);
    EXPECT_EQ(layout.elemento(TipoElemento::Text9, 2).didascalia, u"Giovedi 29 Settembre 2011"_s);
    EXPECT_EQ(layout.elemento(TipoElemento::Text9, 2).allineamento, Allineamento::Sinistra);
    EXPECT_EQ(layout.elemento(TipoElemento::Text1, 5).didascalia, u"Servizio (2)"_s);
}

TEST_F(Proprieta, EmptyOrImpossibleFieldsChangeNothing) {
    const std::pair<int, QStringList> casi[] = {{0, {u""_s}},
                                                {1, {u""_s, u"0"_s, u"dodici"_s, u"2161"_s}},
                                                {2, {u""_s, u"-1"_s, u"16777216"_s}},
                                                {3, {u""_s, u"rosso"_s}}};
    for (const auto &[campo, testi] : casi)
        for (const QString &testo : testi) {
            CampiForm2 rotti = campi;
            rotti.FE1[static_cast<std::size_t>(campo)] = testo;
            EXPECT_FALSE(applicaClasse(layout, Classe::Titolo, rotti)) << campo << testo.toStdString();
        }
    campi.FE1[2].clear();
    EXPECT_FALSE(applicaClasse(layout, Classe::Pannello, campi));
    EXPECT_EQ(cambiati(), QStringList{});
}

TEST_F(Proprieta, FillingAndApplyingUnchangedLeavesTheElementAsItWas) {
    for (LayoutElement &e : layout) {
        e.font.dimensione = 27.75;
        e.allineamento = static_cast<Allineamento>(e.indice % 3);
        e.coloreSfondo = 1000 + e.indice;
    }
    for (int posto = 0; posto < righeLayout; ++posto) {
        const auto classe = classeDi(layout[posto]);
        if (!classe)
            continue;
        const LayoutElement prima = layout[posto];
        EXPECT_TRUE(applicaClasse(layout, *classe, riempiCampi(layout, posto))) << prima.nome().toStdString();
        EXPECT_EQ(layout[posto], prima) << prima.nome().toStdString();
    }
}

} // namespace

} // namespace zuvora::prova
