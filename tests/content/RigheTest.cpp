// What the room reads from and writes to the settings database.
#include "content/logic/Meteo.h"
#include "content/logic/PlaylistYouTube.h"
#include "content/logic/Predefinita.h"
#include "content/logic/Radio.h"
#include "content/logic/TestoScorrevole.h"
#include "kit/InstallazioneProva.h"
#include "shell/store/Data.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct RigheContenuto : testing::Test {
    QVariant configurazione(const QString &colonna) {
        return i.valore(u"SELECT "_s + colonna + u" FROM Configurazione"_s);
    }
    InstallazioneProva i;
};

TEST_F(RigheContenuto, StationNamesCollide) {
    i.esegui(u"DELETE FROM radio; INSERT INTO radio (NomeRadio, PercorsoURL) VALUES ('Radio L''Aquila', 'u'), "
             "('Onda Verde', 'v')"_s);
    struct Caso {
        QString nome;
        std::optional<QString> propria;
        bool presente;
    };
    const Caso casi[] = {
        {u"Radio Nuova"_s, {}, false},
        {u"ONDA verde"_s, {}, true},
        {u"ONDA verde"_s, u"Onda Verde"_s, false}, // a station keeps its own name, in any case
        {u"Onda Verde"_s, u"Radio L'Aquila"_s, true},
        {u"Radio L'Aquila"_s, {}, true},
        {u"Onda'Verde"_s, {}, true}, // an apostrophe is any character
        {u"Onda'"_s, {}, false},
        {u"Onda*"_s, {}, true},
    };
    for (const Caso &caso : casi)
        EXPECT_EQ(radioPresente(i.cartella(), caso.nome, caso.propria), caso.presente) << caso.nome.toStdString();
}

TEST_F(RigheContenuto, AStationIsAddedAndChanged) {
    i.esegui(u"DELETE FROM radio"_s);
    Data Data4;
    Recordset &elenco = apri(Data4, i.cartella(), elencoRadio.toString());
    salvaRadio(elenco, {u"Uno"_s, u"http://a/"_s}, true);
    salvaRadio(elenco, {u"Due"_s, u"http://b/"_s}, true);
    Data4.Refresh();
    salvaRadio(Data4.Recordset(), {u"DUE"_s, u"http://c/"_s}, false);
    EXPECT_EQ(i.righe(u"SELECT NomeRadio, PercorsoURL FROM radio"_s),
              (QStringList{u"Uno|http://a/"_s, u"DUE|http://c/"_s}));
}

TEST_F(RigheContenuto, TitlesAreFoundAgain) {
    i.esegui(u"DELETE FROM VideoYT"_s);
    Data Data1;
    Recordset &elenco = apri(Data1, i.cartella(), elencoYouTube.toString());
    aggiungiYouTube(elenco, u"L'ORO DI ROMA"_s, u"https://x/"_s);
    const std::pair<QString, bool> casi[] = {{u"L'ORO DI ROMA"_s, true},
                                             {u"l'oro di roma"_s, true},
                                             {u"L?ORO*"_s, true},
                                             {u"L'ORO"_s, false},
                                             {u"'"_s, false}};
    for (const auto &[titolo, presente] : casi)
        EXPECT_EQ(titoloPresente(i.cartella(), titolo), presente) << titolo.toStdString();
    salvaPredefinitaYouTube(i.cartella(), u"https://x/"_s);
    EXPECT_EQ(configurazione(u"plyt"_s), u"https://x/"_s);
}

TEST_F(RigheContenuto, TheTownIsTheWholeAddress) {
    const IndirizzoMeteo indirizzo(u"https://meteo.example"_s);
    salvaMeteo(i.cartella(), indirizzo, u"3012"_s);
    EXPECT_EQ(
        configurazione(u"meteo"_s),
        u"https://meteo.example/box/previsioni.php?citta=3012&type=day2&width=450&ico=swf1&lang=ita&days=5&font=Arial"
        "&fontsize=12&bg=FFFFFF&fg=000000&bgtitle=0099FF&fgtitle=FFFFFF&bgtab=F0F0F0&fglink=1773C2"_s);
    EXPECT_EQ(leggiMeteo(i.cartella()).MeteoCode, u"3012"_s);
    i.esegui(u"UPDATE Configurazione SET MeteoCode=NULL"_s);
    EXPECT_EQ(leggiMeteo(i.cartella()).MeteoCode, u"0000"_s);
    i.esegui(u"UPDATE Configurazione SET meteo=NULL, MeteoCode='77'"_s);
    EXPECT_EQ(leggiMeteo(i.cartella()).meteo, std::nullopt);
    EXPECT_EQ(leggiMeteo(i.cartella()).MeteoCode, u"0000"_s);
    const std::pair<QString, bool> codici[] = {{u"0000"_s, false}, {u""_s, false},      {u"abc"_s, false},
                                               {u"12ab"_s, true},  {u" 7"_s, true},     {u"0,5"_s, false},
                                               {u"-3"_s, true},    {u"0000001"_s, true}};
    for (const auto &[codice, vale] : codici)
        EXPECT_EQ(eCodiceComune(codice), vale) << codice.toStdString();
}

TEST_F(RigheContenuto, TownsByTheirBeginning) {
    const auto trovati = [&](const QString &testo) {
        Data Data2;
        Recordset &comuni = apri(Data2, i.cartella(), sorgenteComuni(testo));
        QStringList nomi;
        for (; !comuni.Eof() && nomi.size() < 3; comuni.MoveNext())
            nomi << comuni[u"Comune"].Value().toString();
        return nomi.join(u',');
    };
    EXPECT_EQ(trovati(u"l'aquila"_s), u"L'Aquila"_s);
    EXPECT_EQ(trovati(u"zzz"_s), QString());
    EXPECT_TRUE(trovati(u""_s).startsWith(u"Abano"_s) || trovati(u""_s).startsWith(u"Abb"_s))
        << trovati(u""_s).toStdString();
}

TEST_F(RigheContenuto, MusicAndTicker) {
    EXPECT_TRUE(salvaCartellaMusica(i.cartella(), u"/musica"_s));
    EXPECT_FALSE(salvaCartellaMusica(i.cartella(), {}));
    EXPECT_EQ(leggiCartellaMusica(i.cartella()), u"/musica"_s);
    salvaTestoScorrevole(i.cartella(), u"Riga uno\r\nRiga due"_s);
    EXPECT_EQ(configurazione(u"StringaScorrevole"_s), u"Riga uno\r\nRiga due"_s);
    salvaTestoScorrevole(i.cartella(), u""_s);
    EXPECT_EQ(configurazione(u"StringaScorrevole"_s).toString(), QString());
    i.esegui(u"UPDATE Configurazione SET StringaScorrevole=NULL, cartellamp3=NULL"_s);
    EXPECT_EQ(leggiTestoScorrevole(i.cartella()) + leggiCartellaMusica(i.cartella()), QString());
}

TEST_F(RigheContenuto, TheDefaultAndItsTime) {
    const std::pair<QString, std::optional<double>> tempi[] = {
        {u"60"_s, 60000.0}, {u"61"_s, {}}, {u"0"_s, {}}, {u""_s, {}}, {u"1"_s, 1000.0}, {u"2,5"_s, 2500.0}};
    for (const auto &[secondi, tempo] : tempi)
        EXPECT_EQ(tempoDaSecondi(secondi), tempo) << secondi.toStdString();
    const std::pair<QVariant, QString> mostrati[] = {
        {QVariant(), u"0"_s}, {20000.0, u"20"_s}, {2500.0, u"2,5"_s}, {qlonglong{1000}, u"1"_s}};
    for (const auto &[tempo, testo] : mostrati)
        EXPECT_EQ(secondiDaTempo(tempo), testo);
    salvaPredefinita(i.cartella(), PlaylistFoto, u"/z/a.zvi"_s, 1500.7);
    salvaPredefinita(i.cartella(), PlaylistVideo, u"/z/a.zvv"_s, {});
    EXPECT_EQ(i.righe(u"SELECT playlistFoto, playlistVideo, tempo FROM Configurazione"_s),
              QStringList{u"/z/a.zvi|/z/a.zvv|1500"_s});
}

TEST(Predefinita, LengthAndEnding) {
    const QString lungo(250, u'x');
    struct Caso {
        QString percorso;
        Predefinibile foto;
        Predefinibile video;
    };
    const Caso casi[] = {
        {u""_s, Predefinibile::No, Predefinibile::No},
        {lungo + u".zvi"_s, Predefinibile::Si, Predefinibile::No},
        {lungo + u".zvv"_s, Predefinibile::No, Predefinibile::Si},
        {lungo + u"x.zvi"_s, Predefinibile::TroppoLunga, Predefinibile::No},
        {lungo + u"x.zvv"_s, Predefinibile::TroppoLunga, Predefinibile::TroppoLunga},
        {u"/a/b.ZVI"_s, Predefinibile::No, Predefinibile::No},
    };
    for (const Caso &caso : casi) {
        EXPECT_EQ(predefinibile(PlaylistFoto, caso.percorso), caso.foto) << caso.percorso.toStdString();
        EXPECT_EQ(predefinibile(PlaylistVideo, caso.percorso), caso.video) << caso.percorso.toStdString();
    }
}

TEST(TestoScorrevole, Turns) {
    TestoScorrevole mobile;
    EXPECT_EQ(mobile.passo(), QString());
    mobile.prepara(u"AB"_s);
    EXPECT_EQ(mobile.passo(), QString(29, u' ') + u"AB "_s);
    for (int n = 0; n < 29; ++n)
        mobile.passo();
    EXPECT_EQ(mobile.passo(), u"B"_s + QString(30, u' ') + u"A"_s);
    mobile.svuota();
    EXPECT_EQ(mobile.passo(), QString());
    mobile.prepara(u"\U0001F600x"_s); // outside the first plane: stays whole
    for (int n = 0; n < 31; ++n)
        EXPECT_TRUE(mobile.passo().isValidUtf16());
}

} // namespace
} // namespace zuvora
