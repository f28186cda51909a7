#include "content/logic/ControlloPlaylist.h"
#include "content/logic/Playlist.h"
#include "kit/InstallazioneProva.h"
#include "store/Ostacoli.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <gtest/gtest.h>
#include <mutex>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

struct ProvaPlaylist : testing::Test {
    ProvaPlaylist() { preparaApplicazione(); }
    QString file(const QString &nome) const { return cartella.filePath(nome); }
    QString scrivi(const QString &nome, const QByteArray &contenuto) const {
        QFile f(file(nome));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contenuto);
        return f.fileName();
    }
    QByteArray leggi(const QString &nome) const {
        QFile f(file(nome));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(manca)");
    }
    QTemporaryDir cartella;
};

TEST_F(ProvaPlaylist, WhatIsReadIsWrittenBack) {
    const struct {
        QByteArray prima;
        int righe;
        QByteArray dopo;
    } casi[] = {
        {"/a.jpg\r\n/b.jpg\r\n", 2, "/a.jpg\r\n/b.jpg\r\n"},
        {"/a.jpg\n/b.jpg", 2, "/a.jpg\r\n/b.jpg\r\n"},
        {"/a.jpg\r\n\r\n/b.jpg\r\n", 3, "/a.jpg\r\n\r\n/b.jpg\r\n"},
        {"\r\n", 1, "\r\n"},
        {"/citt\xe0/\x80uro.jpg\r\n", 1, "/citt\xe0/\x80uro.jpg\r\n"},
        {"\x81\x8d\x8f\x90\x9d\x01\xff", 1, "\x81\x8d\x8f\x90\x9d\x01\xff\r\n"},
        {QByteArray("a\0b\r\n", 5), 1, QByteArray("a\0b\r\n", 5)},
        {"a\rb\r\n", 1, "a\rb\r\n"},
    };
    for (const auto &caso : casi) {
        const PlaylistLetta letta = leggiPlaylist(scrivi(u"x.zvi"_s, caso.prima));
        EXPECT_EQ(letta.guasto, QString());
        EXPECT_EQ(letta.righe.size(), caso.righe) << caso.prima.toStdString();
        EXPECT_EQ(scriviPlaylist(file(u"x.zvi"_s), letta.righe), QString());
        EXPECT_EQ(leggi(u"x.zvi"_s), caso.dopo);
    }
    EXPECT_TRUE(leggiPlaylist(scrivi(u"vuota.zvi"_s, {})).righe.isEmpty());
}

TEST_F(ProvaPlaylist, WhatCannotBeReadSaysSo) {
    QDir(cartella.path()).mkdir(u"cartella.zvi"_s);
    ASSERT_TRUE(prova::creaCoda(file(u"coda.zvi"_s)));
    {
        QFile enorme(scrivi(u"enorme.zvi"_s, {}));
        ASSERT_TRUE(enorme.resize(50 << 20));
    }
    QFile(scrivi(u"chiuso.zvi"_s, "/a\r\n")).setPermissions({});
    const prova::UtenteQualunque utente;
    for (const QString &nome :
         {u"manca.zvi"_s, u"cartella.zvi"_s, u"coda.zvi"_s, u"enorme.zvi"_s, u"chiuso.zvi"_s}) {
        const PlaylistLetta letta = leggiPlaylist(file(nome));
        EXPECT_FALSE(letta.guasto.isEmpty()) << nome.toStdString();
        EXPECT_TRUE(letta.righe.isEmpty());
    }
}

TEST_F(ProvaPlaylist, ARefusedSaveLeavesTheOldFile) {
    const QString playlist = scrivi(u"x.zvi"_s, "/vecchia.jpg\r\n");
    const QString mancante = scriviPlaylist(playlist, {u"/a.jpg"_s, u"/foto/\u0416uk.jpg"_s});
    EXPECT_TRUE(mancante.contains(u'\u0416')) << mancante.toStdString();
    EXPECT_TRUE(mancante.contains(u"/foto/\u0416uk.jpg"_s));
    EXPECT_FALSE(scriviPlaylist(playlist, {u"/a\nb.jpg"_s}).isEmpty());
    {
        const prova::LimiteFile pieno(1024);
        EXPECT_FALSE(scriviPlaylist(playlist, QStringList(500, u"/una/foto.jpg"_s)).isEmpty());
    }
    EXPECT_EQ(leggi(u"x.zvi"_s), "/vecchia.jpg\r\n");
    QDir(cartella.path()).mkdir(u"c.zvi"_s);
    EXPECT_FALSE(scriviPlaylist(file(u"c.zvi"_s), {u"/a.jpg"_s}).isEmpty());
    EXPECT_FALSE(scriviPlaylist(file(u"manca/x.zvi"_s), {u"/a.jpg"_s}).isEmpty());
    EXPECT_EQ(QDir(cartella.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"x.zvi"_s});
}

TEST_F(ProvaPlaylist, Names) {
    EXPECT_TRUE(haEstensione(PlaylistFoto, u"/a/b.zvi"_s));
    EXPECT_FALSE(haEstensione(PlaylistFoto, u"/a/b.Zvi"_s));
    EXPECT_EQ(conEstensione(PlaylistFoto, u"natale"_s), u"natale.zvi"_s);
    EXPECT_EQ(conEstensione(PlaylistFoto, u"b.ZVI"_s), u"b.ZVI"_s);
    EXPECT_EQ(conEstensione(PlaylistVideo, u"b.zvi"_s), u"b.zvi.zvv"_s);
    EXPECT_TRUE(eContenuto(PlaylistFoto, u"/a/FOTO.JPG"_s));
    EXPECT_FALSE(eContenuto(PlaylistFoto, u"/a/foto.jpg.txt"_s));
    EXPECT_TRUE(eContenuto(PlaylistVideo, u"/a/f.mpg"_s));
    EXPECT_FALSE(eContenuto(PlaylistVideo, u"/a/f.jpg"_s));
    EXPECT_TRUE(FileEsiste(scrivi(u"a"_s, "x")));
    EXPECT_FALSE(FileEsiste(cartella.path()));
    EXPECT_FALSE(FileEsiste({}));
}

TEST_F(ProvaPlaylist, TheReport) {
    const QString prima = QDir::currentPath();
    QDir::setCurrent(cartella.path());
    EXPECT_EQ(scriviRapporto(PlaylistFoto, {u"/città/a.jpg"_s, u""_s}), QString());
    EXPECT_EQ(leggi(u"FileImmaginiMancanti.txt"_s), "\"/citt\xe0/a.jpg\"\r\n\"\"\r\n");
    EXPECT_EQ(scriviRapporto(PlaylistFoto, {}), QString());
    EXPECT_EQ(leggi(u"FileImmaginiMancanti.txt"_s), "");
    QDir::setCurrent(prima);
}

// A path service that never answers for what lies in some folders.
class Muta {
public:
    explicit Muta(QStringList cartelle) : m_cartelle(std::move(cartelle)) {}
    ~Muta() {
        m_liberi = true;
        m_liberi.notify_all();
        while (m_fermi > 0)
            std::this_thread::yield();
    }
    bool esiste(const QString &percorso) {
        for (const QString &cartella : m_cartelle)
            if (percorso.startsWith(cartella)) {
                ++m_fermi;
                ++domande;
                m_liberi.wait(false);
                --m_fermi;
            }
        return !percorso.contains(u"manca"_s);
    }
    std::atomic<int> domande{0};

private:
    QStringList m_cartelle;
    std::atomic<bool> m_liberi{false};
    std::atomic<int> m_fermi{0};
};

TEST_F(ProvaPlaylist, ASilentPlaceCountsAsMissingAndIsAskedTwiceAtMost) {
    Muta muta({u"/mnt/nas/"_s});
    ControlloPlaylist controllo([&](const QString &p) { return muta.esiste(p); }, 50ms);
    QStringList righe{u"/qui/a.jpg"_s};
    for (int n = 0; n < 30; ++n)
        righe << u"/mnt/nas/foto%1/x.jpg"_s.arg(n);
    righe << u"/qui/manca.jpg"_s;
    std::optional<QStringList> mancanti;
    controllo.chiedi(righe, [&](const QStringList &m) { mancanti = m; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return mancanti.has_value(); }, 20000));
    EXPECT_EQ(*mancanti, righe.mid(1));
    EXPECT_EQ(muta.domande, 2);
}

TEST_F(ProvaPlaylist, ANewQuestionLetsTheOldOneGo) {
    Muta muta({u"/mnt/"_s});
    ControlloPlaylist controllo([&](const QString &p) { return muta.esiste(p); }, 20s);
    controllo.chiedi({u"/mnt/a"_s}, [](const QStringList &) { ADD_FAILURE(); });
    std::optional<QStringList> mancanti;
    controllo.chiedi({u"/qui/manca"_s}, [&](const QStringList &m) { mancanti = m; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return mancanti.has_value(); }, 20000));
    EXPECT_EQ(*mancanti, QStringList{u"/qui/manca"_s});
}

} // namespace
} // namespace zuvora
