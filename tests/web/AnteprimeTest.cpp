// The two forms that show a page, driven with the real component and without it.
#include "content/forms/P1.h"
#include "designer/forms/AnteprimaTGOnline.h"
#include "kit/FintiDialoghi.h"
#include "kit/Guida.h"
#include "web/FinestraWeb.h"
#include "web/ServerProva.h"

#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Anteprime : testing::Test {
    Anteprime() { piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI); }
    // Shows the news preview of a box of that size and lets `azione` act on it.
    void apriTG(const Dimensione &wb2, const QString &indirizzo, const std::function<void(QWidget &)> &azione) {
        AnteprimaTGOnline form(
            ambiente, wb2, indirizzo, [this](const Dimensione &d) { accettate.push_back(d); }, nullptr);
        guida.quando("AnteprimaTGOnline", [&](QWidget &w) {
            azione(w);
            clicca(w, "Chiudi");
        });
        form.mostraModale();
        EXPECT_TRUE(guida.finita());
    }

    ValoriCondivisi valori;
    FintiDialoghi dialoghi;
    FintaPiattaforma piattaforma;
    Ambiente ambiente{valori, dialoghi, piattaforma};
    Guida guida;
    std::vector<Dimensione> accettate;
};

QString testoDi(QWidget &form, const char *nome) {
    return trova<QLineEdit>(form, nome).text();
}
void scrivi(QWidget &form, const char *nome, const QString &testo) {
    trova<QLineEdit>(form, nome).setText(testo);
}

TEST_F(Anteprime, P1ShowsItsPageUntilOk) {
    ServerProva server;
    server.pagine[u"/"_s] = {"<title>filmato</title>"};
    P1 form(ambiente, server.indirizzo(u"/"_s), QUrl(), nullptr);
    guida.quando("P1", [&](QWidget &w) {
        auto &wb1 = trova<Browser>(w, "wb1");
        EXPECT_TRUE(aspetta([&] { return titoloDi(wb1) == u"filmato"_s; }, Attesa_ms));
        EXPECT_EQ(vistaDi(wb1)->size(), QSize(661, 424));
        EXPECT_TRUE(w.rect().contains(trova<QPushButton>(w, "ok").geometry()));
        fotografa(w);
        clicca(w, "ok");
    });
    form.mostraModale();
    EXPECT_TRUE(form.isHidden());
}

TEST_F(Anteprime, TGStepsChangePageAndFrameTogether) {
    ServerProva server;
    server.pagine[u"/"_s] = {"<title>tg</title>"};
    apriTG({3000, 2000}, server.indirizzo(u"/"_s), [&](QWidget &w) {
        auto &WB22 = trova<Browser>(w, "WB22");
        auto &GB1 = trova<GroupBox>(w, "GB1");
        const auto misure = [&] {
            return std::array{WB22.posto().width, WB22.posto().height, GB1.posto().width, GB1.posto().height};
        };
        EXPECT_EQ(misure(), (std::array{3000, 2000, 3240, 2480}));
        EXPECT_EQ(GB1.mapTo(&w, QPoint()), QPoint(8, 40));
        EXPECT_TRUE(aspetta([&] { return titoloDi(WB22) == u"tg"_s; }, Attesa_ms));
        EXPECT_EQ(testoDi(w, "A1") + u'x' + testoDi(w, "A2"), u"3000x2000"_s);
        for (const char *bottone : {"Allarga", "Allarga", "Alza", "Stringi", "Abbassa", "Abbassa"})
            clicca(w, bottone);
        EXPECT_EQ(misure(), (std::array{3100, 1900, 3340, 2380}));
        EXPECT_EQ(testoDi(w, "A1") + u'x' + testoDi(w, "A2"), u"3100x1900"_s);
        EXPECT_EQ(vistaDi(WB22)->size(), WB22.size());
        EXPECT_TRUE(didascalieTagliate(w).isEmpty()) << didascalieTagliate(w).join(u' ').toStdString();
        fotografa(w);
        EXPECT_TRUE(accettate.empty());
        clicca(w, "Accetta");
        EXPECT_TRUE(w.isVisible());
    });
    EXPECT_EQ(accettate, (std::vector<Dimensione>{{3100, 1900}}));
}

TEST_F(Anteprime, TGStepsStopAtTheSmallestSize) {
    apriTG({150, 0}, QString(), [&](QWidget &w) {
        for (const char *bottone : {"Stringi", "Stringi", "Abbassa"})
            clicca(w, bottone);
        EXPECT_EQ(testoDi(w, "A1") + u'x' + testoDi(w, "A2"), u"100x0"_s);
        clicca(w, "Alza");
        EXPECT_EQ(testoDi(w, "A2"), u"100"_s);
    });
}

TEST_F(Anteprime, TGAcceptsWhatIsTypedButNoNonsense) {
    const QTemporaryDir senzaComponente;
    piattaforma.cartella = senzaComponente.path();
    QStringList messaggi;
    apriTG({3000, 2000}, u"http://127.0.0.1/"_s, [&](QWidget &w) {
        auto &WB22 = trova<Browser>(w, "WB22");
        EXPECT_TRUE(aspetta([&] { return WB22.avviso().contains(u"non è disponibile"_s); }, Attesa_ms));
        scrivi(w, "A1", u" 6400,5 "_s);
        clicca(w, "Accetta");
        EXPECT_EQ(WB22.posto().width, 3000);
        for (const QString &testo : {u"largo"_s, u""_s, u"0"_s, u"-200"_s, u"99"_s, u"60001"_s, u"1e9"_s}) {
            scrivi(w, "A1", testo);
            QString righe;
            guida.messaggio(&righe);
            clicca(w, "Accetta");
            messaggi << righe;
        }
        scrivi(w, "A1", u"100"_s);
        scrivi(w, "A2", u"60000"_s);
        clicca(w, "Accetta");
    });
    EXPECT_EQ(accettate, (std::vector<Dimensione>{{6400.5, 2000}, {100, 60000}}));
    EXPECT_EQ(messaggi.size(), 7);
    EXPECT_EQ(messaggi.count(u"Larghezza e altezza devono essere numeri\ncompresi fra 100 e 60000."_s), 7);
}

TEST_F(Anteprime, TGBoxLargerThanTheScreenIsScrolledUnderTheFixedButtons) {
    apriTG({40000, 30000}, QString(), [&](QWidget &w) {
        const QSize schermo = w.screen()->availableSize().expandedTo(w.minimumSize());
        EXPECT_LE(w.width(), schermo.width());
        EXPECT_LE(w.height(), schermo.height());
        auto &finestra = trova<QScrollArea>(w, "finestra");
        finestra.verticalScrollBar()->setValue(finestra.verticalScrollBar()->maximum());
        finestra.horizontalScrollBar()->setValue(finestra.horizontalScrollBar()->maximum());
        auto &GB1 = trova<GroupBox>(w, "GB1");
        EXPECT_TRUE(w.rect().contains(GB1.mapTo(&w, GB1.rect().bottomRight())));
        EXPECT_EQ(trova<QPushButton>(w, "Allarga").geometry().topLeft(), QPoint(8, 8));
        EXPECT_FALSE(finestra.geometry().intersects(trova<QPushButton>(w, "Allarga").geometry()));
    });
}

} // namespace
} // namespace zuvora
