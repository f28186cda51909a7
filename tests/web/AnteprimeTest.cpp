// The two forms that show a page, driven with the real component and without it.
#include "content/forms/P1.h"
#include "designer/forms/AnteprimaTGOnline.h"
#include "kit/FintiDialoghi.h"
#include "kit/Guida.h"
#include "web/FinestraWeb.h"
#include "web/ServerProva.h"

#include <QScreen>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Anteprime : testing::Test {
    Anteprime() {
        piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI);
        server.pagine[u"/"_s] = {"<title>filmato</title>"};
    }
    static bool mostra(const Browser &pagina) {
        return aspetta([&] { return titoloDi(pagina) == u"filmato"_s; }, Attesa_ms);
    }

    ValoriCondivisi valori;
    FintiDialoghi dialoghi;
    FintaPiattaforma piattaforma;
    Ambiente ambiente{valori, dialoghi, piattaforma};
    ServerProva server;
    Guida guida;
};

TEST_F(Anteprime, P1ShowsItsPageUntilOk) {
    P1 form(ambiente, server.indirizzo(u"/"_s), QUrl(), nullptr);
    guida.quando("P1", [&](QWidget &w) {
        auto &wb1 = trova<Browser>(w, "wb1");
        EXPECT_TRUE(mostra(wb1));
        EXPECT_EQ(vistaDi(wb1)->size(), QSize(661, 424));
        EXPECT_TRUE(w.rect().contains(trova<QPushButton>(w, "ok").geometry()));
        clicca(w, "ok");
    });
    form.mostraModale();
    EXPECT_TRUE(form.isHidden());
}

TEST_F(Anteprime, TGBoxLargerThanTheScreenIsScrolledUnderTheFixedButtons) {
    AnteprimaTGOnline form(
        ambiente, {40000, 30000}, server.indirizzo(u"/"_s), [](const Dimensione &) {}, nullptr);
    guida.quando("AnteprimaTGOnline", [](QWidget &w) {
        auto &WB22 = trova<Browser>(w, "WB22");
        EXPECT_TRUE(mostra(WB22));
        clicca(w, "Stringi");
        EXPECT_EQ(vistaDi(WB22)->size(), WB22.size());
        EXPECT_LE(w.width(), w.screen()->availableSize().expandedTo(w.minimumSize()).width());
        auto &finestra = trova<QScrollArea>(w, "finestra");
        finestra.verticalScrollBar()->setValue(finestra.verticalScrollBar()->maximum());
        finestra.horizontalScrollBar()->setValue(finestra.horizontalScrollBar()->maximum());
        auto &GB1 = trova<GroupBox>(w, "GB1");
        EXPECT_TRUE(w.rect().contains(GB1.mapTo(&w, GB1.rect().bottomRight())));
        EXPECT_EQ(trova<QPushButton>(w, "Allarga").geometry().topLeft(), QPoint(8, 8));
        EXPECT_FALSE(finestra.geometry().intersects(trova<QPushButton>(w, "Allarga").geometry()));
        clicca(w, "Chiudi");
    });
    form.mostraModale();
}

} // namespace
} // namespace zuvora
