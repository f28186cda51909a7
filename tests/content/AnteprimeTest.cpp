// The forms that play: a film, a station.
#include "content/Premi.h"
#include "content/forms/AnteprimaRadio.h"
#include "content/forms/AnteprimaVideo.h"
#include "content/forms/SalvaNuovoIM.h"
#include "kit/FintaPiattaforma.h"
#include "kit/FintiDialoghi.h"
#include "kit/InstallazioneProva.h"
#include "web/ServerProva.h"

#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QTcpServer>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString Film = QStringLiteral(CARTELLA_ESEMPIO) + u"/Filmati/mare_al_tramonto.mp4"_s;

struct Anteprime : testing::Test {
    Anteprime() {
        preparaApplicazione();
        piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI);
    }
    ValoriCondivisi valori;
    FintiDialoghi dialoghi;
    FintaPiattaforma piattaforma;
    Ambiente ambiente{valori, dialoghi, piattaforma};
    QTemporaryDir cartella;
};

template <class F> bool aspetta(F condizione) {
    return QTest::qWaitFor(condizione, Attesa_ms);
}

QString scritto(QWidget &form, const char *nome) {
    return trova<QLabel>(form, nome).text();
}

TEST_F(Anteprime, AFilmPlaysPausesAndMoves) {
    AnteprimaVideo form(ambiente, Film, nullptr);
    form.show();
    auto &MP1 = trova<Riproduttore>(form, "MP1");
    ASSERT_TRUE(aspetta([&] { return MP1.suona(); })) << MP1.avviso().toStdString();
    auto &posizione = trova<QSlider>(form, "posizione");
    ASSERT_TRUE(aspetta([&] { return posizione.value() > 0; }));
    EXPECT_NEAR(posizione.maximum(), 8000, 100);
    EXPECT_EQ(scritto(form, "nome"), u"mare_al_tramonto.mp4"_s);
    clic(form, "pausa");
    EXPECT_TRUE(aspetta([&] { return !MP1.suona(); }));
    fotografa(form);
    QTest::keyClick(&MP1, Qt::Key_Space);
    EXPECT_TRUE(aspetta([&] { return MP1.suona(); }));
    posizione.setFocus();
    QTest::keyClick(&posizione, Qt::Key_Right);
    EXPECT_TRUE(aspetta([&] { return posizione.value() >= 5000; }));
}

TEST_F(Anteprime, AMissingFilmIsEmptyAndSilent) {
    AnteprimaVideo form(ambiente, cartella.filePath(u"manca.mp4"_s), nullptr);
    form.show();
    auto &MP1 = trova<Riproduttore>(form, "MP1");
    QSignalSpy cambi(&MP1, &Riproduttore::cambiato);
    ASSERT_TRUE(aspetta([&] { return cambi.size() >= 2; })); // opening, outcome
    EXPECT_EQ(MP1.avviso(), QString());
    EXPECT_FALSE(MP1.suona());
}

TEST_F(Anteprime, WhatIsNoFilmIsToldInTheBox) {
    QFile file(cartella.filePath(u"testo.mp4"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("non sono un filmato");
    file.close();
    AnteprimaVideo form(ambiente, file.fileName(), nullptr);
    form.show();
    EXPECT_TRUE(aspetta([&] { return trova<Riproduttore>(form, "MP1").avviso().contains(u"riprodurre"_s); }));
    fotografa(form, u"AnteprimaVideo-guasto"_s);
}

TEST_F(Anteprime, WithoutTheComponentTheFormsSaySo) {
    piattaforma.cartella = cartella.path();
    AnteprimaVideo video(ambiente, Film, nullptr);
    video.show();
    EXPECT_TRUE(aspetta([&] { return trova<Riproduttore>(video, "MP1").avviso().contains(u"libzuvora-film.so"_s); }));
    AnteprimaRadio radio(ambiente, {u"Onda"_s, u"http://127.0.0.1:9/"_s}, nullptr);
    radio.show();
    EXPECT_TRUE(aspetta([&] { return scritto(radio, "motivo").contains(u"libzuvora-film.so"_s); }));
}

TEST_F(Anteprime, AStationThatCannotBeHeardSaysWhy) {
    ServerProva server;
    server.pagine[u"/manca"_s] = {.corpo = "", .stato = "404 Not Found"};
    const struct {
        QString indirizzo;
        QString motivo; // part of it
    } casi[] = {
        {u"radio senza indirizzo"_s, u"non è quello di una stazione"_s},
        {u"file:///etc/passwd"_s, u"non è quello di una stazione"_s},
        {u"http://127.0.0.1:%1/"_s.arg(portaChiusa()), u"127.0.0.1"_s},
        {server.indirizzo(u"/manca"_s), u"404"_s},
    };
    for (const auto &caso : casi) {
        AnteprimaRadio form(ambiente, {u"Onda"_s, caso.indirizzo}, nullptr);
        form.show();
        EXPECT_TRUE(aspetta([&] { return scritto(form, "stato") == u"Interrotto"_s; })) << caso.indirizzo.toStdString();
        EXPECT_TRUE(scritto(form, "motivo").contains(caso.motivo)) << scritto(form, "motivo").toStdString();
        EXPECT_EQ(scritto(form, "nome"), u"Onda"_s);
        fotografa(form);
    }
}

TEST_F(Anteprime, AnAddressThatAnswersWithAPageShowsIt) {
    ServerProva server;
    server.pagine[u"/"_s] = {"<title>radio</title>"};
    AnteprimaRadio form(ambiente, {u"Onda"_s, server.indirizzo(u"/"_s)}, nullptr);
    form.show();
    auto &wb1 = trova<QWidget>(form, "wb1");
    EXPECT_TRUE(aspetta([&] { return wb1.isVisible(); }));
    EXPECT_FALSE(trova<QWidget>(form, "Ascolto").isVisible());
}

// The window must answer, and close, while a server keeps silent.
TEST_F(Anteprime, ASilentServerHoldsNothingUp) {
    QTcpServer muto;
    ASSERT_TRUE(muto.listen(QHostAddress::LocalHost));
    auto form = std::make_unique<AnteprimaRadio>(
        ambiente, VoceRadio{u"Onda"_s, u"http://127.0.0.1:%1/"_s.arg(muto.serverPort())}, nullptr);
    form->show();
    ASSERT_TRUE(aspetta([&] { return muto.hasPendingConnections(); }));
    EXPECT_EQ(scritto(*form, "stato"), u"Collegamento in corso…"_s);
    QElapsedTimer chiusura;
    chiusura.start();
    form.reset();
    EXPECT_LT(chiusura.elapsed(), 500);
}

struct ProvaSalvaNuovo : Anteprime {
    ProvaSalvaNuovo() { valori.PercorsoApplicazione = cartella.path(); }
    QByteArray leggi(const QString &nome) const {
        QFile file(cartella.filePath(nome));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(manca)");
    }
};

TEST_F(ProvaSalvaNuovo, OnlySmallLettersAndDigitsAndNoClipboard) {
    SalvaNuovoIM form(ambiente, PlaylistFoto, {u"/città/a.jpg"_s, u""_s}, nullptr);
    form.show();
    EXPECT_EQ(scritto(form, "Label1"), u"zvi"_s);
    EXPECT_EQ(scritto(form, "Label2"), u"Foto"_s);
    EXPECT_EQ(premi(form, "PushButton1"), u"Inserire un nome per il file !"_s);
    auto &FE = trova<QLineEdit>(form, "FE");
    QTest::keyClicks(&FE, u"Na.t le 2024"_s);
    EXPECT_EQ(FE.text(), u"atle2024"_s);
    EXPECT_GE(piattaforma.appuntiSvuotati, 12);
    QTest::keyClick(&FE, Qt::Key_Backspace);
    EXPECT_EQ(didascalieTagliate(form), QStringList());
    fotografa(form);
    QTest::keyClick(&FE, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(leggi(u"atle202.zvi"_s), "/citt\xe0/a.jpg\r\n\r\n");
}

TEST_F(ProvaSalvaNuovo, ARefusedSaveStays) {
    QDir(cartella.path()).mkdir(u"natale.zvv"_s);
    SalvaNuovoIM form(ambiente, PlaylistVideo, {u"/a.mp4"_s}, nullptr);
    form.show();
    auto &FE = trova<QLineEdit>(form, "FE");
    QTest::keyClicks(&FE, u"natale"_s);
    EXPECT_TRUE(premi(form, "PushButton1").startsWith(u"La playlist non è stata salvata !\n"_s));
    EXPECT_TRUE(form.isVisible());
    SalvaNuovoIM altra(ambiente, PlaylistVideo, {u"/\u0416.mp4"_s}, nullptr);
    altra.show();
    QTest::keyClicks(&trova<QLineEdit>(altra, "FE"), u"x"_s);
    EXPECT_TRUE(premi(altra, "PushButton1").contains(u'\u0416'));
    EXPECT_EQ(leggi(u"x.zvv"_s), "(manca)");
}

} // namespace
} // namespace zuvora
