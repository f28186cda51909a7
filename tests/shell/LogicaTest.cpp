#include "kit/FintaPiattaforma.h"
#include "pannello/logic/Configurazione.h"
#include "pannello/logic/Versione.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(Nominativo, SoloServer1EPrincipale) {
    for (const QStringView si : {u"SERVER1", u"server1", u"Server1"})
        EXPECT_TRUE(ePrincipale(si)) << si.toString().toStdString();
    for (const QStringView no : {u"", u"SERVER1 ", u" SERVER1", u"SERVER2", u"Non definito"})
        EXPECT_FALSE(ePrincipale(no)) << no.toString().toStdString();
}

TEST(Versione, SoloLeCinquePrecedentiSiAggiornano) {
    for (const QStringView breve : {u"3.1.0", u"3.1.6", u"3.1.8", u"3.1.9", u"3.1.10"})
        EXPECT_EQ(versioneDaAggiornare(u"Versione "_s + breve.toString()), breve.toString());
    for (const QStringView altra :
         {u"Versione 3.1.7", u"Versione 3.1.11", u"versione 3.1.8", u"Versione 3.1.8 ", u"n.d.", u"3.1.8", u""})
        EXPECT_FALSE(versioneDaAggiornare(altra)) << altra.toString().toStdString();
}

struct CasoMonitor {
    const char *nome;
    std::vector<QRect> monitor;
    std::vector<int> trovati; // handles in order
};
class ElencoMonitor : public testing::TestWithParam<CasoMonitor> {};

TEST_P(ElencoMonitor, NellOrdineDelPrimoIncontro) {
    FintiMonitor sistema;
    sistema.monitor = GetParam().monitor;
    const clsMonitors elenco(sistema);
    std::vector<int> handle;
    for (const clsMonitor &m : elenco.Monitors())
        handle.push_back(m.Handle);
    EXPECT_EQ(handle, GetParam().trovati);
}

INSTANTIATE_TEST_SUITE_P(
    Desktop, ElencoMonitor,
    testing::Values(CasoMonitor{"uno", {{0, 0, 1920, 1080}}, {1}},
                    CasoMonitor{"secondoADestra", {{0, 0, 1920, 1080}, {1920, 0, 1024, 768}}, {1, 2}},
                    CasoMonitor{"secondoASinistra", {{0, 0, 1920, 1080}, {-1280, 0, 1280, 1024}}, {2, 1}},
                    CasoMonitor{"sopra", {{0, 0, 1920, 1080}, {0, -1080, 1920, 1080}}, {2, 1}},
                    CasoMonitor{"tre", {{1920, 0, 1920, 1080}, {0, 0, 1920, 1080}, {3840, 0, 1080, 1920}}, {2, 1, 3}},
                    CasoMonitor{"piccoloFuoriDaiCampioni", {{0, 0, 1920, 1080}, {1920, 0, 300, 200}}, {1}}),
    [](const auto &caso) { return std::string(caso.param.nome); });

TEST(Monitor, MembriDiUnMonitorConNegativi) {
    FintiMonitor sistema;
    sistema.monitor = {{0, 0, 1920, 1080}, {-1280, 56, 1280, 1024}};
    const clsMonitors elenco(sistema);
    const clsMonitor *m = elenco.Item(u"2"_s);
    ASSERT_NE(m, nullptr);
    EXPECT_EQ((std::vector{m->left, m->right, m->top, m->bottom, m->Width, m->Height, m->WorkBottom}),
              (std::vector{-1280, 0, 56, 1080, 1280, 1024, 1040}));
    EXPECT_EQ(elenco.DesktopLeft(), -1280);
}

TEST(Monitor, SenzaSupportoValeLoSchermo) {
    FintiMonitor sistema;
    sistema.supporto = false;
    const clsMonitors elenco(sistema);
    ASSERT_EQ(elenco.Monitors().size(), 1U);
    EXPECT_EQ(elenco.Monitors().front().Handle, 0);
    EXPECT_EQ(elenco.Monitors().front().Width, 1920);
    EXPECT_EQ(elenco.DesktopHeight(), 1080);
}

} // namespace
} // namespace zuvora
