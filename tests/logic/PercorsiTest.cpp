#include "shell/logic/Percorsi.h"
#include "kit/FintoSistema.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace zuvora {

void PrintTo(const QString &s, std::ostream *os) {
    *os << '"' << s.toStdString() << '"';
}

namespace {

using namespace Qt::Literals::StringLiterals;

std::shared_ptr<FintoSistema> macchina() {
    auto sistema = std::make_shared<FintoSistema>();
    sistema->condivise = {{u"Archivi"_s, u"/srv/archivi"_s}};
    sistema->tabella = {{u"//SERVER1/Totem"_s, u"/mnt/totem"_s, u"cifs"_s},
                        {u"//nas.clinica.example/Dati/sala"_s, u"/media/dati sala"_s, u"cifs"_s},
                        {u"nfs1:/export/video"_s, u"/mnt/video"_s, u"nfs4"_s},
                        {u"/dev/sda1"_s, u"/"_s, u"ext4"_s}};
    for (const QString &cartella : {u"/"_s, u"/Totem"_s, u"/srv"_s, u"/srv/archivi"_s, u"/Città d'Arte"_s})
        sistema->albero[cartella] = Specie::Cartella;
    for (const QString &file : {u"/Totem/TotemZuvora.mdb"_s, u"/srv/archivi/a\\b.txt"_s, u"/Città d'Arte/Foto 1.JPG"_s})
        sistema->albero[file] = Specie::File;
    return sistema;
}

TEST(PercorsiTest, OgniFormaDiventaNativa) {
    const Percorsi percorsi(macchina());
    const QString nessuno = u"(none)"_s;
    for (const auto &[scritto, atteso] : std::initializer_list<std::pair<QString, QString>>{
             {u"/home/sala/Totem/"_s, u"/home/sala/Totem"_s},
             {u"/"_s, u"/"_s},
             {u"//a.jpg"_s, u"/a.jpg"_s}, // the root and one more separator
             {u"//altrove/Foto/a.jpg"_s, u"/altrove/Foto/a.jpg"_s},
             {uR"(C:\Totem\)"_s, u"/Totem"_s},
             {u"d:/Città d'Arte/Foto 1.JPG"_s, u"/Città d'Arte/Foto 1.JPG"_s},
             {uR"(C:)"_s, u"/"_s},
             {uR"(\TotemZuvora.mdb)"_s, u"/TotemZuvora.mdb"_s},
             {uR"(\\SALA1\Totem\x y.jpg)"_s, u"/Totem/x y.jpg"_s},
             {uR"(\\sala1.clinica.example\Totem)"_s, u"/Totem"_s},
             {uR"(\\localhost\archivi\è.txt)"_s, u"/srv/archivi/è.txt"_s},
             {uR"(\\SALA1\ArchiviVecchi)"_s, u"/ArchiviVecchi"_s},
             {uR"(\\SALA1\C$\Totem)"_s, u"/Totem"_s},
             {u"//SALA1/Totem"_s, u"/Totem"_s},
             {uR"(\\server1\TOTEM\)"_s, u"/mnt/totem"_s},
             {uR"(\\SERVER1\Totem\Ticket.lbl)"_s, u"/mnt/totem/Ticket.lbl"_s},
             {uR"(\\SERVER1\Altro)"_s, nessuno},
             {uR"(\\NAS\Dati\Sala\l'uno.txt)"_s, u"/media/dati sala/l'uno.txt"_s},
             {uR"(\\nfs1\video\a.mp4)"_s, u"/mnt/video/a.mp4"_s},
             {uR"(\\nfs1\export\video)"_s, u"/mnt/video"_s},
             {uR"(\\SERVER9\Totem)"_s, nessuno},
             {uR"(\\)"_s, nessuno},
             {QString(), nessuno},
             {u"/x"_s + QChar(QChar::Null), nessuno},
             {QString(1'000'000, u'a'), nessuno}})
        EXPECT_EQ(percorsi.nativo(scritto).value_or(nessuno), atteso) << scritto.left(40).toStdString();
}

TEST(PercorsiTest, ConUnitaRestanoComeSono) {
    auto sistema = macchina();
    sistema->unita = true;
    const Percorsi percorsi(sistema);
    EXPECT_EQ(percorsi.nativo(u"C:/Totem/x"_s), uR"(C:\Totem\x)"_s);
    EXPECT_EQ(percorsi.nativo(uR"(\\SALA1\Totem)"_s), uR"(\\SALA1\Totem)"_s);
    EXPECT_EQ(percorsi.conUnita(u"C:/Totem"_s), uR"(C:\Totem)"_s);
    EXPECT_EQ(percorsi.unisci(u"C:/Totem/"_s, u"x"), uR"(C:/Totem\x)"_s);
}

TEST(PercorsiTest, UnisceConUnSoloSeparatore) {
    const Percorsi percorsi(macchina());
    const QString nome = uR"(\TotemZuvora.mdb)"_s;
    for (const auto &[cartella, atteso] : std::initializer_list<std::pair<QString, QString>>{
             {u"/home/sala"_s, u"/home/sala/TotemZuvora.mdb"_s},
             {u"/home/sala//"_s, u"/home/sala/TotemZuvora.mdb"_s},
             {u"/"_s, u"/TotemZuvora.mdb"_s},
             {QString(), u"/TotemZuvora.mdb"_s},
             {uR"(C:\)"_s, uR"(C:\TotemZuvora.mdb)"_s},
             {uR"(\\SERVER1\Totem)"_s, uR"(\\SERVER1\Totem\TotemZuvora.mdb)"_s}})
        EXPECT_EQ(percorsi.unisci(cartella, nome), atteso);
    EXPECT_EQ(percorsi.unisci(u"/x"_s, uR"(ZuvoraDecorazioni\Cornici\)"), u"/x/ZuvoraDecorazioni/Cornici/"_s);
}

TEST(PercorsiTest, FormaConUnitaEFormaDiRete) {
    const Percorsi percorsi(macchina());
    const struct {
        QString percorso, unita, rete;
    } casi[] = {{u"/Suoni/l'ora è.wav"_s, uR"(C:\Suoni\l'ora è.wav)"_s, uR"(\\SALA1\Suoni\l'ora è.wav)"_s},
                {u"/din.wav"_s, uR"(C:\din.wav)"_s, uR"(\\SALA1\din.wav)"_s},
                {uR"(D:\Suoni\din.wav)"_s, uR"(D:\Suoni\din.wav)"_s, uR"(\\SALA1\Suoni\din.wav)"_s},
                {uR"(\\PC9\Suoni\din.wav)"_s, uR"(\\PC9\Suoni\din.wav)"_s, uR"(\\PC9\Suoni\din.wav)"_s},
                {QString(), QString(), QString()}};
    for (const auto &caso : casi) {
        EXPECT_EQ(percorsi.conUnita(caso.percorso), caso.unita);
        EXPECT_EQ(percorsi.diRete(caso.percorso), caso.rete);
    }
}

TEST(PercorsiTest, TrovaSenzaGuardareLeMaiuscole) {
    const Percorsi percorsi(macchina());
    for (const auto &[scritto, atteso] : std::initializer_list<std::pair<QString, QString>>{
             {u"/totem/TOTEMZUVORA.MDB"_s, u"/Totem/TotemZuvora.mdb"_s},
             {uR"(\\SALA1\CITTÀ D'ARTE\foto 1.jpg)"_s, u"/Città d'Arte/Foto 1.JPG"_s},
             {u"/Citta\u0300 d'Arte/Foto 1.JPG"_s, u"/Città d'Arte/Foto 1.JPG"_s}, // composed otherwise
             {u"/srv/archivi/a\\b.txt"_s, u"/srv/archivi/a\\b.txt"_s},
             {u"/Totem\\TotemZuvora.mdb"_s, u"/Totem/TotemZuvora.mdb"_s},
             {u"/Totem/assente"_s, QString()},
             {u"/Assente/TotemZuvora.mdb"_s, QString()}})
        EXPECT_EQ(percorsi.esamina(scritto).percorso, atteso) << scritto.toStdString();
    EXPECT_EQ(percorsi.esamina(u"/TOTEM"_s).specie, Specie::Cartella);
}

TEST(PercorsiTest, SulDiscoVero) {
    const QTemporaryDir cartella;
    ASSERT_TRUE(QDir(cartella.path()).mkpath(u"Foto Città"_s));
    const Percorsi percorsi;
    const auto esame = percorsi.esamina(cartella.filePath(u"FOTO città"_s));
    EXPECT_EQ(esame.percorso, cartella.filePath(u"Foto Città"_s));
    EXPECT_EQ(esame.specie, Specie::Cartella);
    EXPECT_EQ(percorsi.esamina(u"/dev/null"_s).specie, Specie::Altro);
}

struct Applicazione : testing::Test {
    int quanti = 1;
    char nome[6] = "prova";
    char *argomenti[2] = {nome, nullptr};
    QCoreApplication applicazione{quanti, argomenti};
};
using Domande = Applicazione;

TEST_F(Domande, UnPercorsoMutoContaComeMancanteEntroDueSecondi) {
    auto sistema = macchina();
    sistema->muta = u"/mnt/totem"_s;
    const Percorsi percorsi(sistema);
    int battiti = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++battiti; });
    timer.start(50);
    QElapsedTimer tempo;
    tempo.start();
    const auto muto = percorsi.chiediEAspetta(uR"(\\SERVER1\Totem)"_s);
    EXPECT_TRUE(muto.muto && muto.specie == Specie::Manca);
    EXPECT_LT(tempo.elapsed(), 3000);
    EXPECT_GT(battiti, 20);                                                // the event loop went on
    EXPECT_EQ(percorsi.chiediEAspetta(u"/totem"_s).percorso, u"/Totem"_s); // another path still answers
    sistema->risveglia();
}

TEST_F(Domande, NienteArrivaAChiNonCePiu) {
    auto sistema = macchina();
    sistema->muta = u"/mnt"_s;
    const Percorsi percorsi(sistema);
    auto partito = std::make_unique<QObject>();
    bool chiamato = false;
    percorsi.chiedi(u"/mnt/totem"_s, *partito, [&](const Percorsi::Esame &) { chiamato = true; });
    partito.reset();
    sistema->risveglia();
    QObject presente;
    QEventLoop ciclo;
    percorsi.chiedi(u"/Totem"_s, presente, [&](const Percorsi::Esame &esame) {
        EXPECT_EQ(esame.specie, Specie::Cartella);
        ciclo.quit();
    });
    ciclo.exec();
    EXPECT_FALSE(chiamato);
}

TEST(TabelleTest, MontaggiECondivisioni) {
    EXPECT_EQ(
        montaggiDa("//srv/Totem /mnt/il\\040totem cifs rw,addr=1.2.3.4 0 0\n\nmonco\n/dev/sda1 / ext4 rw 0 0\n"),
        (QList<Montaggio>{{u"//srv/Totem"_s, u"/mnt/il totem"_s, u"cifs"_s}, {u"/dev/sda1"_s, u"/"_s, u"ext4"_s}}));
    EXPECT_EQ(montaggioGvfs(u"/run/user/1/gvfs"_s, u"smb-share:server=nas,share=dati,user=io"_s),
              (Montaggio{u"//nas/dati"_s, u"/run/user/1/gvfs/smb-share:server=nas,share=dati,user=io"_s, u"cifs"_s}));
    EXPECT_EQ(montaggioGvfs(u"/g"_s, u"mtp:host=x"_s), Montaggio());
    EXPECT_EQ(condivisioniDa("[global]\n path = /no\n[Totem]\n ; path = /vecchio\n  Path = /srv/il totem \n[homes]\n"
                             "path=/h\n[senza]\nread only = yes\n"),
              (QList<Condivisione>{{u"Totem"_s, u"/srv/il totem"_s}}));
    EXPECT_EQ(condivisioniDa("#VERSION 2\npath=/srv/foto\ncomment=\nsharename=Foto\n"),
              (QList<Condivisione>{{u"Foto"_s, u"/srv/foto"_s}}));
}

} // namespace
} // namespace zuvora
