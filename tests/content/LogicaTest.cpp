#include "content/logic/ControlloPlaylist.h"
#include "content/logic/CorniceFilmato.h"
#include "content/logic/EstraiUrl.h"
#include "content/logic/Meteo.h"
#include "content/logic/Playlist.h"
#include "content/logic/PlaylistYouTube.h"
#include "content/logic/Predefinita.h"
#include "content/logic/Radio.h"
#include "content/logic/TestoScorrevole.h"
#include "kit/FintoSistema.h"
#include "kit/InstallazioneProva.h"
#include "shell/logic/Percorsi.h"

#include <QTest>
#include <gtest/gtest.h>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

TEST(EstraiUrl, CuttingTheAddressOut) {
    const std::pair<QString, std::optional<QString>> casi[] = {
        // without the tail
        {u"<iframe width=\"560\" src=\"https://www.youtube.com/embed/videoseries?list=PLabC\" frameborder=\"0\">"_s,
         u"https://www.youtube.com/embed/videoseries?list=PLabC"_s},
        // The first of each counts, wherever it stands.
        {u"src=\"a\" src=\"b\" frameborder frameborder"_s, u"a\" src=\"b"_s},
        // Without "src=" the cut begins at the fifth character: not noticed as wrong.
        {u"<iframe title=\"x\" frameborder"_s, u"ame title=\"x"_s},
        {u"1234 frameborder"_s, {}},
        {u"12345 frameborder"_s, u""_s},
        {u"<iframe src=\"https://x/\">"_s, {}},
        {u"SRC=\"https://x/\" FRAMEBORDER"_s, {}},
    };
    for (const auto &[codice, url] : casi)
        EXPECT_EQ(EstraiUrl(codice), url ? std::optional(*url + u"&autoplay=1&autohide=1"_s) : url);
}

TEST(CorniceFilmato, OnlyForFilmsOfYouTube) {
    const std::pair<QString, QString> casi[] = {
        // and what stands in the frame; nothing for what is shown by itself
        {u"https://www.youtube.com/embed/x?list=PL1&autoplay=1"_s,
         u"https://www.youtube.com/embed/x?list=PL1&amp;autoplay=1"_s},
        {u"http://www.youtube-nocookie.com/embed/x"_s, u"http://www.youtube-nocookie.com/embed/x"_s},
        {u"//www.youtube.com/x\"><script>"_s, u"https://www.youtube.com/x%22%3E%3Cscript%3E"_s},
        {u"https://notyoutube.com/embed/x"_s, {}},
        {u"https://www.youtube.com.example/x"_s, {}},
        {u"senza indirizzo"_s, {}},
    };
    for (const auto &[indirizzo, src] : casi) {
        const auto cornice = corniceFilmato(indirizzo, QUrl(u"https://www.zuvora.example/"_s));
        ASSERT_EQ(cornice.has_value(), !src.isEmpty()) << indirizzo.toStdString();
        EXPECT_TRUE(!cornice || cornice->html.contains(u"src=\""_s + src + u'"')) << cornice->html.toStdString();
        EXPECT_TRUE(!cornice || cornice->provenienza == QUrl(QUrl(src).scheme() + u"://www.zuvora.example/"_s));
    }
}

TEST(Playlist, Names) {
    const QString lungo(250, u'x');
    using enum Predefinibile;
    const struct {
        QString percorso;
        Predefinibile foto, video;
        QString salvata; // as a playlist of images
    } casi[] = {
        {u""_s, No, No, u".zvi"_s},
        {u"/a/b.ZVI"_s, No, No, u"/a/b.ZVI"_s},
        {lungo + u".zvi"_s, Si, No, lungo + u".zvi"_s},
        {lungo + u".zvv"_s, No, Si, lungo + u".zvv.zvi"_s},
        {lungo + u"x.zvi"_s, TroppoLunga, No, lungo + u"x.zvi"_s},
        {lungo + u"x.zvv"_s, TroppoLunga, TroppoLunga, lungo + u"x.zvv.zvi"_s},
    };
    for (const auto &caso : casi) {
        EXPECT_EQ(predefinibile(PlaylistFoto, caso.percorso), caso.foto) << caso.percorso.toStdString();
        EXPECT_EQ(predefinibile(PlaylistVideo, caso.percorso), caso.video) << caso.percorso.toStdString();
        EXPECT_EQ(conEstensione(PlaylistFoto, caso.percorso), caso.salvata);
    }
}

TEST(Playlist, SecondsAndTime) {
    const std::pair<QString, std::optional<double>> tempi[] = {
        {u"60"_s, 60000.0}, {u"61"_s, {}}, {u"0"_s, {}}, {u""_s, {}}, {u"1"_s, 1000.0}, {u"2,5"_s, 2500.0}};
    for (const auto &[secondi, tempo] : tempi)
        EXPECT_EQ(tempoDaSecondi(secondi), tempo) << secondi.toStdString();
    const std::pair<QVariant, QString> mostrati[] = {{QVariant(), u"0"_s}, {2500.0, u"2,5"_s}, {1000LL, u"1"_s}};
    for (const auto &[tempo, testo] : mostrati)
        EXPECT_EQ(secondiDaTempo(tempo), testo);
}

TEST(Playlist, AnEntryInAnyForm) {
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->albero = {{u"/foto"_s, Specie::Cartella}, {u"/foto/A.jpg"_s, Specie::File}};
    const std::pair<QString, bool> casi[] = {
        {u"/foto/A.jpg"_s, true}, {u"C:\\foto\\a.JPG"_s, true},        {u"\\\\SALA1\\foto\\A.jpg"_s, true},
        {u"/foto"_s, false},      {u"/foto/b.jpg"_s, false},           {u""_s, false},
        {u"/tmp"_s, false},       {u"\\\\ALTRA\\foto\\A.jpg"_s, false}};
    for (const auto &[voce, presente] : casi)
        EXPECT_EQ(vocePresente(Percorsi(sistema), voce), presente) << voce.toStdString();
}

// A place that never answers counts as missing after two questions, and a new list lets the stuck one go.
TEST(Controllo, ASilentPlace) {
    preparaApplicazione();
    std::binary_semaphore svegliati{0};
    std::atomic<int> domande = 0;
    std::atomic<int> fermi = 0;
    const auto esiste = [&](const QString &percorso) {
        if (percorso.startsWith(u"/mnt/nas/"_s)) {
            ++domande;
            ++fermi;
            svegliati.acquire();
            svegliati.release();
            --fermi;
        }
        return !percorso.contains(u"manca"_s);
    };
    ControlloPlaylist controllo(esiste, 50ms);
    const QStringList muti{u"/mnt/nas/a/x.jpg"_s, u"/mnt/nas/b/x.jpg"_s, u"/mnt/nas/c/x.jpg"_s, u"/qui/manca.jpg"_s};
    const auto mancanti = [&](const QStringList &lista) {
        std::optional<QStringList> esito;
        controllo.chiedi(lista, [&](const QStringList &m) { esito = m; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return esito.has_value(); }, 20000));
        return esito.value_or(QStringList());
    };
    EXPECT_EQ(mancanti(QStringList{u"/qui/a.jpg"_s} + muti), muti);
    EXPECT_EQ(domande, 2);
    controllo.chiedi(muti, [](const QStringList &) { ADD_FAILURE() << "let go"; });
    EXPECT_EQ(mancanti({u"/qui/manca"_s}), QStringList{u"/qui/manca"_s});
    svegliati.release();
    while (fermi > 0)
        std::this_thread::yield();
}

TEST(Righe, NamesThatCollide) {
    const InstallazioneProva i;
    i.esegui(u"DELETE FROM radio; INSERT INTO radio (NomeRadio, PercorsoURL) VALUES ('Radio L''Aquila', 'u'), "
             "('Onda Verde', 'v'); DELETE FROM VideoYT; INSERT INTO VideoYT (Titolo) VALUES ('L''ORO DI ROMA')"_s);
    const struct {
        QString nome;
        std::optional<QString> propria;
        bool presente;
    } stazioni[] = {
        {u"ONDA verde"_s, {}, true},
        {u"ONDA verde"_s, u"Onda Verde"_s, false}, // a station keeps its own name, in any case
        {u"Onda Verde"_s, u"Radio L'Aquila"_s, true},
        {u"Radio L'Aquila"_s, {}, true},
        {u"Onda'Verde"_s, {}, true}, // an apostrophe is any character
        {u"Onda'"_s, {}, false},
        {u"Onda*"_s, {}, true},
    };
    for (const auto &[nome, propria, presente] : stazioni)
        EXPECT_EQ(radioPresente(i.cartella(), nome, propria), presente) << nome.toStdString();
    const std::pair<QString, bool> titoli[] = {
        {u"l'oro di roma"_s, true}, {u"L?ORO*"_s, true}, {u"L'ORO'DI ROMA"_s, false}, {u"L'ORO"_s, false}};
    for (const auto &[titolo, presente] : titoli)
        EXPECT_EQ(titoloPresente(i.cartella(), titolo), presente) << titolo.toStdString();
}

TEST(Righe, TheTownIsTheWholeAddress) {
    const InstallazioneProva i;
    salvaMeteo(i.cartella(), IndirizzoMeteo(u"https://meteo.example"_s), u"3012"_s);
    EXPECT_EQ(
        i.valore(u"SELECT meteo FROM Configurazione"_s),
        u"https://meteo.example/box/previsioni.php?citta=3012&type=day2&width=450&ico=swf1&lang=ita&days=5&font=Arial"
        "&fontsize=12&bg=FFFFFF&fg=000000&bgtitle=0099FF&fgtitle=FFFFFF&bgtab=F0F0F0&fglink=1773C2"_s);
    for (const auto &[sql, codice] : {std::pair{u"MeteoCode=MeteoCode"_s, u"3012"_s},
                                      {u"MeteoCode=NULL"_s, u"0000"_s},
                                      {u"meteo=NULL, MeteoCode='77'"_s, u"0000"_s}}) {
        i.esegui(u"UPDATE Configurazione SET "_s + sql);
        EXPECT_EQ(leggiMeteo(i.cartella()).MeteoCode, codice);
    }
    for (const QString &codice : {u"12ab"_s, u" 7"_s, u"-3"_s, u"0000001"_s})
        EXPECT_TRUE(eCodiceComune(codice)) << codice.toStdString();
    for (const QString &codice : {u"0000"_s, u""_s, u"abc"_s, u"0,5"_s})
        EXPECT_FALSE(eCodiceComune(codice)) << codice.toStdString();
}

TEST(TestoScorrevole, Turns) {
    TestoScorrevole mobile;
    EXPECT_EQ(mobile.passo(), QString());
    mobile.prepara(u"A\U0001F600"_s); // the second, outside the first plane, stays whole
    const auto dopo = [&](int passi) {
        QString testo;
        while (passi-- > 0)
            testo = mobile.passo();
        return testo;
    };
    EXPECT_EQ(dopo(1), QString(29, u' ') + u"A\U0001F600 "_s);
    EXPECT_EQ(dopo(30), u"\U0001F600"_s + QString(30, u' ') + u"A"_s);
    EXPECT_EQ(dopo(1), QString(30, u' ') + u"A\U0001F600"_s);
}

} // namespace
} // namespace zuvora
