#include "kit/FintaPiattaforma.h"
#include "pannello/logic/Configurazione.h"
#include "pannello/logic/Versione.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(Versione, SoloLeCinquePrecedentiSiAggiornano) {
    for (const QStringView breve : {u"3.1.0", u"3.1.6", u"3.1.8", u"3.1.9", u"3.1.10"})
        EXPECT_EQ(versioneDaAggiornare(u"Versione "_s + breve.toString()), breve.toString());
    for (const QStringView altra :
         {u"Versione 3.1.7", u"Versione 3.1.11", u"versione 3.1.8", u"Versione 3.1.8 ", u"n.d.", u"3.1.8", u""})
        EXPECT_FALSE(versioneDaAggiornare(altra)) << altra.toString().toStdString();
}

TEST(Monitor, NellOrdineDelPrimoIncontro) {
    const std::pair<std::vector<QRect>, std::vector<int>> casi[] = {
        {{{0, 0, 1920, 1080}}, {1}},
        {{{0, 0, 1920, 1080}, {1920, 0, 1024, 768}}, {1, 2}},
        {{{0, 0, 1920, 1080}, {-1280, 0, 1280, 1024}}, {2, 1}},
        {{{0, 0, 1920, 1080}, {0, -1080, 1920, 1080}}, {2, 1}},
        {{{1920, 0, 1920, 1080}, {0, 0, 1920, 1080}, {3840, 0, 1080, 1920}}, {2, 1, 3}},
        {{{0, 0, 1920, 1080}, {1920, 0, 300, 200}}, {1}}}; // too small for the places that are asked for
    FintiMonitor sistema;
    for (const auto &[monitor, trovati] : casi) {
        sistema.monitor = monitor;
        std::vector<int> handle;
        const clsMonitors elenco(sistema);
        for (const clsMonitor &m : elenco.Monitors())
            handle.push_back(m.Handle);
        EXPECT_EQ(handle, trovati);
    }
    sistema.monitor = {{0, 0, 1920, 1080}, {-1280, 56, 1280, 1024}};
    const clsMonitors elenco(sistema);
    const clsMonitor *m = elenco.Item(u"2"_s);
    ASSERT_NE(m, nullptr);
    EXPECT_EQ((std::vector{m->left, m->right, m->top, m->bottom, m->Width, m->Height, m->WorkBottom}),
              (std::vector{-1280, 0, 56, 1080, 1280, 1024, 1040}));
    EXPECT_EQ(elenco.DesktopLeft(), -1280);
    sistema.supporto = false;
    const clsMonitors solo(sistema);
    ASSERT_EQ(solo.Monitors().size(), 1U);
    EXPECT_EQ(solo.Monitors().front().Width, 1920);
}

} // namespace
} // namespace zuvora
