#include "content/logic/Playlist.h"
#include "content/logic/ControlloPlaylist.h"
#include "kit/FintoSistema.h"
#include "kit/InstallazioneProva.h"
#include "shell/logic/Percorsi.h"

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
    QByteArray leggi(const QString &nome) const {
        QFile f(cartella.filePath(nome));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(manca)");
    }
    QTemporaryDir cartella;
};

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

TEST_F(ProvaPlaylist, AnEntryInAnyForm) {
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->albero = {{u"/foto"_s, Specie::Cartella}, {u"/foto/A.jpg"_s, Specie::File}};
    const Percorsi percorsi(sistema);
    const std::pair<QString, bool> casi[] = {
        {u"/foto/A.jpg"_s, true}, {u"C:\\foto\\a.JPG"_s, true},        {u"\\\\SALA1\\foto\\A.jpg"_s, true},
        {u"/foto"_s, false},      {u"/foto/b.jpg"_s, false},           {u""_s, false},
        {cartella.path(), false}, {u"\\\\ALTRA\\foto\\A.jpg"_s, false}};
    for (const auto &[voce, presente] : casi)
        EXPECT_EQ(vocePresente(percorsi, voce), presente) << voce.toStdString();
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
