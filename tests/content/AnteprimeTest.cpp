// The forms that play: a film, a station.
#include "content/forms/AnteprimaRadio.h"
#include "content/forms/AnteprimaVideo.h"
#include "kit/Stanza.h"
#include "web/ServerProva.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTcpServer>

namespace zuvora {
namespace {

const QString Film = QStringLiteral(CARTELLA_ESEMPIO) + u"/Filmati/mare_al_tramonto.mp4"_s;

struct Anteprime : Stanza {
    auto video(const QString &file) { return apriForm<AnteprimaVideo>(i.ambiente, file, nullptr); }
    auto radio(const QString &url) { return apriForm<AnteprimaRadio>(i.ambiente, VoceRadio{u"Onda"_s, url}, nullptr); }
};

TEST_F(Anteprime, AFilmPlaysPausesAndMoves) {
    const auto form = video(Film);
    auto &MP1 = trova<Riproduttore>(*form, "MP1");
    ASSERT_TRUE(aspetta([&] { return MP1.suona(); })) << MP1.avviso().toStdString();
    auto &posizione = trova<QSlider>(*form, "posizione");
    ASSERT_TRUE(aspetta([&] { return posizione.value() > 0; }));
    EXPECT_NEAR(posizione.maximum(), 8000, 100);
    EXPECT_EQ(scritto(*form, "nome"), u"mare_al_tramonto.mp4"_s);
    clic(*form, "pausa");
    EXPECT_TRUE(aspetta([&] { return !MP1.suona(); }));
    posizione.setFocus();
    QTest::keyClick(&posizione, Qt::Key_End);
    EXPECT_TRUE(aspetta([&] { return scritto(*form, "tempo").startsWith(u"0:07"_s); }));
    clic(*form, "pausa"); // from the start again
    EXPECT_TRUE(aspetta([&] { return MP1.suona() && posizione.value() < 2000; }));
    clic(*form, "pausa");
    EXPECT_TRUE(aspetta([&] { return !MP1.suona(); }));
    QTest::keyClick(&MP1, Qt::Key_Space);
    EXPECT_TRUE(aspetta([&] { return MP1.suona(); }));
    QTest::keyClick(&posizione, Qt::Key_Right);
    EXPECT_TRUE(aspetta([&] { return posizione.value() >= 5000; }));
}

TEST_F(Anteprime, WhatIsNoFilmIsToldAndAMissingOneIsSilent) {
    scrivi(u"testo.mp4"_s, "non sono un filmato");
    for (const auto &[nome, detto] : {std::pair{u"testo.mp4"_s, u"riprodurre"_s}, {u"manca.mp4"_s, u""_s}}) {
        const auto form = video(i.file(nome));
        auto &MP1 = trova<Riproduttore>(*form, "MP1");
        QSignalSpy cambi(&MP1, &Riproduttore::cambiato);
        EXPECT_TRUE(aspetta([&] { return cambi.size() >= 2; })); // opening, outcome
        EXPECT_TRUE(detto.isEmpty() ? MP1.avviso().isEmpty() : MP1.avviso().contains(detto));
    }
}

TEST_F(Anteprime, AStationThatCannotBeHeardSaysWhyOrShowsItsPage) {
    ServerProva server;
    server.pagine[u"/manca"_s] = {.corpo = "", .stato = "404 Not Found"};
    server.pagine[u"/"_s] = {"<title>radio</title>"};
    const auto pagina = radio(server.indirizzo(u"/"_s));
    EXPECT_TRUE(aspetta([&] { return trova<QWidget>(*pagina, "wb1").isVisible(); }));
    EXPECT_FALSE(trova<QWidget>(*pagina, "Ascolto").isVisible());
    const auto muta = [&](const QString &indirizzo, const QString &motivo) {
        const auto form = radio(indirizzo);
        EXPECT_TRUE(aspetta([&] { return scritto(*form, "stato") == u"Interrotto"_s; })) << indirizzo.toStdString();
        EXPECT_TRUE(scritto(*form, "motivo").contains(motivo)) << scritto(*form, "motivo").toStdString();
    };
    muta(u"file:///etc/passwd"_s, u"non è quello di una stazione"_s);
    muta(u"http://127.0.0.1:%1/"_s.arg(portaChiusa()), u"127.0.0.1"_s);
    muta(server.indirizzo(u"/manca"_s), u"404"_s);
    i.piattaforma.cartella = i.cartella(); // no component
    muta(server.indirizzo(u"/"_s), u"libzuvora-film.so"_s);
    const auto film = video(Film);
    EXPECT_TRUE(aspetta([&] { return trova<Riproduttore>(*film, "MP1").avviso().contains(u"libzuvora-film.so"_s); }));
}

// The window must answer, and close, while a server keeps silent.
TEST_F(Anteprime, ASilentServerHoldsNothingUp) {
    QTcpServer muto;
    ASSERT_TRUE(muto.listen(QHostAddress::LocalHost));
    auto form = radio(u"http://127.0.0.1:%1/"_s.arg(muto.serverPort()));
    ASSERT_TRUE(aspetta([&] { return muto.hasPendingConnections(); }));
    EXPECT_EQ(scritto(*form, "stato"), u"Collegamento in corso…"_s);
    QElapsedTimer chiusura;
    chiusura.start();
    form.reset();
    EXPECT_LT(chiusura.elapsed(), 500);
}

} // namespace
} // namespace zuvora
