#include "kit/FintoSistema.h"
#include "kit/InstallazioneProva.h"
#include "shell/host/ListBox.h"
#include "shell/host/SceltaFile.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(Volumi, SoloQuelliVeri) {
    FintoSistema sistema;
    const struct {
        Montaggio montaggio;
        bool vero;
    } casi[] = {
        {{u"overlay"_s, u"/"_s, u"overlay"_s}, true},
        {{u"/dev/sdb1"_s, u"/media/chiave"_s, u"vfat"_s}, true},
        {{u"//srv/foto"_s, u"/mnt/rete"_s, u"cifs"_s}, true},
        {{u"//SALA/Totem"_s, u"/run/user/0/gvfs/smb-share:server=SALA,share=Totem"_s, u"cifs"_s}, true},
        {{u"/dev/sda1"_s, u"/etc/hosts"_s, u"ext4"_s}, false}, // a single file
        {{u"proc"_s, u"/proc"_s, u"proc"_s}, false},
        {{u"tmpfs"_s, u"/run"_s, u"tmpfs"_s}, false},
        {{u"/dev/sda2"_s, u"/boot/efi"_s, u"vfat"_s}, false},
        {{u"/dev/loop0"_s, u"/snap/x/1"_s, u"squashfs"_s}, false},
    };
    QStringList attese;
    for (const auto &caso : casi) {
        sistema.tabella << caso.montaggio;
        sistema.albero[caso.montaggio.cartella] =
            caso.montaggio.cartella == u"/etc/hosts" ? Specie::File : Specie::Cartella;
        if (caso.vero)
            attese << caso.montaggio.cartella;
    }
    attese.sort();
    sistema.muta = u"/mnt/rete"_s; // would hang this thread for ever, were it asked
    QStringList radici;
    QStringList nomi;
    for (const Volume &v : volumiMontati(sistema)) {
        radici << v.radice;
        nomi << v.nome;
    }
    EXPECT_EQ(radici, attese);
    EXPECT_TRUE(nomi.contains(u"//SALA/Totem"_s)) << "a share of the desktop by its own name";
    sistema.tabella.clear();
    EXPECT_EQ(volumiMontati(sistema).size(), 1) << "never empty";
}

TEST(Volumi, IlPiuInterno) {
    const QList<Volume> volumi{{u"/"_s, {}}, {u"/media/a"_s, {}}, {u"/media/ab"_s, {}}};
    EXPECT_EQ(volumeDi(u"/media/ab/foto"_s, volumi), u"/media/ab"_s);
    EXPECT_EQ(volumeDi(u"/media/a"_s, volumi), u"/media/a"_s);
    EXPECT_EQ(volumeDi(u"/media/abc"_s, volumi), u"/"_s);
}

class Elenchi : public testing::Test {
protected:
    static void SetUpTestSuite() { preparaApplicazione(); } // before the members: widgets need it
    Elenchi() {
        for (const char *nome : {"b.JPG", "A.bmp", "c.jpeg", "d.jpg.txt", "Ç è.jpg"})
            crea(QString::fromUtf8(nome));
        QDir(radice.path()).mkpath(u"Zeta"_s);
        QDir(radice.path()).mkpath(u"alfa.jpg"_s); // a folder is no file, whatever its name
        mkfifo(QFile::encodeName(radice.filePath(u"tubo.jpg"_s)).constData(), 0600);
    }
    void crea(const QString &nome) {
        QFile file(radice.filePath(nome));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    static QStringList voci(const FileListBox &elenco) {
        QStringList nomi;
        for (int n = 0; n < elenco.ListCount(); ++n)
            nomi << elenco.List(n);
        return nomi;
    }
    QTemporaryDir radice;
    QWidget finestra;
};

TEST_F(Elenchi, FileDelModelloInOrdine) {
    FileListBox elenco(&finestra, "File1", {0, 0, 3000, 3000});
    elenco.setPattern(u"*.jpg;*.bmp"_s);
    EXPECT_EQ(elenco.ListCount(), 0) << "no folder yet";
    elenco.setPath(radice.path());
    EXPECT_EQ(voci(elenco), QStringList({u"A.bmp"_s, u"b.JPG"_s, u"Ç è.jpg"_s}));
    EXPECT_EQ(elenco.percorso(1), QDir::toNativeSeparators(radice.filePath(u"b.JPG"_s)));
    EXPECT_EQ(elenco.percorso(-1), QString());
    elenco.setPath(radice.filePath(u"manca"_s));
    EXPECT_EQ(elenco.ListCount(), 0);
    elenco.setPath(u"/"_s);
    elenco.setPattern(u"*"_s);
    if (elenco.ListCount() > 0) {
        EXPECT_EQ(elenco.percorso(0), u'/' + elenco.List(0)) << "one separator in a root";
    }
}

TEST_F(Elenchi, CartelleDaTastiera) {
    DirListBox elenco(&finestra, "Dir1", {0, 0, 3000, 3000});
    QSignalSpy cambi(&elenco, &DirListBox::cambiato);
    EXPECT_TRUE(elenco.setPath(radice.path() + u"/."_s));
    EXPECT_EQ(elenco.Path(), QDir::toNativeSeparators(radice.path()));
    ASSERT_EQ(elenco.ListCount(), 2);
    EXPECT_EQ(elenco.List(1), QDir::toNativeSeparators(radice.filePath(u"Zeta"_s)));
    QTest::keyClick(&elenco, Qt::Key_Down);
    QTest::keyClick(&elenco, Qt::Key_Down);
    QTest::keyClick(&elenco, Qt::Key_Return);
    EXPECT_EQ(elenco.Path(), QDir::toNativeSeparators(radice.filePath(u"Zeta"_s)));
    EXPECT_EQ(elenco.ListCount(), 0);
    QTest::keyClick(&elenco, Qt::Key_Backspace);
    EXPECT_EQ(elenco.Path(), QDir::toNativeSeparators(radice.path()));
    EXPECT_EQ(cambi.size(), 3);
    for (const QString &nessuna : {radice.filePath(u"manca"_s), radice.filePath(u"b.JPG"_s), QString()})
        EXPECT_FALSE(elenco.setPath(nessuna));
    EXPECT_EQ(elenco.Path(), QDir::toNativeSeparators(radice.path()));
    for (int n = 0; n < 100; ++n)
        QTest::keyClick(&elenco, Qt::Key_Backspace); // the root has nothing above it
    EXPECT_EQ(elenco.Path(), u"/"_s);
}

TEST_F(Elenchi, InUnElencoSiEntraSenzaScegliereEUnClicEUnSegnale) {
    FileListBox elenco(&finestra, "File1", {0, 0, 3000, 3000});
    elenco.setPath(radice.path());
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    QSignalSpy clic(&elenco, &FileListBox::cliccato);
    QSignalSpy attivato(&elenco, &FileListBox::attivato);
    elenco.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(elenco.ListIndex(), -1);
    EXPECT_EQ(clic.size(), 0);
    QTest::keyClick(&elenco, Qt::Key_Return);
    EXPECT_EQ(attivato.size(), 0) << "no line, nothing to act on";
    QTest::keyClick(&elenco, Qt::Key_Down);
    EXPECT_EQ(elenco.ListIndex(), 0);
    EXPECT_EQ(clic.size(), 1);
    for (const int tasto : {int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Space)})
        QTest::keyClick(&elenco, Qt::Key(tasto));
    EXPECT_EQ(attivato.size(), 3);
    EXPECT_EQ(clic.size(), 1);
    for (const int clicOra : {2, 3}) { // a click on the chosen file is a click
        QTest::mouseClick(elenco.viewport(), Qt::LeftButton, {}, elenco.visualItemRect(elenco.item(1)).center());
        EXPECT_EQ(clic.size(), clicOra);
    }
    elenco.Refresh();
    EXPECT_EQ(clic.size(), 3);
    EXPECT_EQ(elenco.ListIndex(), -1);
}

TEST_F(Elenchi, DiscoCartellaEFileVannoInsieme) {
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->tabella = {{u"/dev/sda1"_s, u"/"_s, u"ext4"_s}, {u"//srv/foto"_s, u"/mnt/rete"_s, u"cifs"_s}};
    for (const char *cartella : {"/", "/mnt", "/mnt/rete", "/foto", "/foto/gite"})
        sistema->albero[QString::fromLatin1(cartella)] = Specie::Cartella;
    for (const char *file : {"/foto/b.jpg", "/foto/A.JPG", "/foto/.c.jpg", "/foto/nota.txt"})
        sistema->albero[QString::fromLatin1(file)] = Specie::File;
    sistema->muta = u"/mnt/rete"_s;
    DriveListBox dischi(&finestra, "Drive1", {0, 0, 3000, 300}, sistema);
    DirListBox cartelle(&finestra, "Dir1", {0, 300, 3000, 3000}, sistema);
    FileListBox file(&finestra, "File1", {3000, 300, 3000, 3000}, sistema);
    SceltaFile scelta(dischi, cartelle, file, u"*.jpg"_s);
    ASSERT_TRUE(scelta.setPath(u"/foto"_s));
    EXPECT_EQ(voci(file), QStringList({u"A.JPG"_s, u"b.jpg"_s}));
    EXPECT_EQ(scelta.percorso(), QString());
    file.setListIndex(1);
    EXPECT_EQ(scelta.percorso(), u"/foto/b.jpg"_s);
    QSignalSpy assente(&scelta, &SceltaFile::rifiutato);
    dischi.setFocus();
    QTest::keyClick(&dischi, Qt::Key_Down); // to the share that never answers
    EXPECT_EQ(assente.size(), 1);
    EXPECT_EQ(cartelle.Path(), u"/foto"_s);
    EXPECT_EQ(dischi.Drive(), u"/"_s);
    EXPECT_EQ(file.ListIndex(), 1);
    sistema->risveglia();
}

TEST_F(Elenchi, LElencoOrdinatoSegueLaSuaVoce) {
    ListBox elenco(&finestra, "List2", {0, 0, 3000, 3000});
    QSignalSpy clic(&elenco, &ListBox::cliccato);
    elenco.setVoci({u"a"_s, u"b"_s, u"c"_s});
    elenco.AddItem(u"d"_s);
    elenco.AddItem(u"z"_s, 0);
    EXPECT_EQ(elenco.voci().join(QString()), u"zabcd"_s);
    elenco.setListIndex(1);
    EXPECT_EQ(clic.size(), 1);
    elenco.sposta(1, 3);
    EXPECT_EQ(elenco.voci().join(QString()), u"zbcad"_s);
    EXPECT_EQ(elenco.ListIndex(), 3);
    for (const auto &[da, a] : {std::pair(-1, 0), std::pair(0, -1), std::pair(4, 5)})
        elenco.sposta(da, a);
    EXPECT_EQ(elenco.voci().join(QString()), u"zbcad"_s);
    elenco.RemoveItem(0);
    EXPECT_EQ(elenco.List(elenco.ListIndex()), u"a"_s) << "the chosen line stays chosen";
    elenco.RemoveItem(2);
    EXPECT_EQ(elenco.ListIndex(), -1);
    EXPECT_EQ(clic.size(), 1) << "what the program does is no click";
}

TEST_F(Elenchi, RilascioDiFile) {
    ListBox elenco(&finestra, "List2", {0, 0, 3000, 3000});
    elenco.setRilascioFile(true);
    QSignalSpy rilascio(&elenco, &ListBox::fileRilasciati);
    QMimeData dati;
    dati.setUrls({QUrl::fromLocalFile(u"/foto/b.jpg"_s), QUrl(u"https://zuvora.example/a.jpg"_s),
                  QUrl::fromLocalFile(u"/foto/a.jpg"_s)});
    QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(elenco.viewport(), &entra);
    EXPECT_TRUE(entra.isAccepted());
    QDropEvent lascia(QPointF(5, 5), Qt::MoveAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(elenco.viewport(), &lascia);
    ASSERT_EQ(rilascio.size(), 1);
    EXPECT_EQ(rilascio.front().front().toStringList(), QStringList({u"/foto/b.jpg"_s, u"/foto/a.jpg"_s}));
}

} // namespace
} // namespace zuvora
