#include "kit/InstallazioneProva.h"
#include "shell/host/ElenchiFile.h"
#include "shell/host/Volumi.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(Volumi, SoloQuelliVeri) {
    const struct {
        Volume volume;
        bool vero;
    } casi[] = {
        {{u"/"_s, "overlay", "overlay"}, true},         {{u"/media/chiave"_s, "/dev/sdb1", "vfat"}, true},
        {{u"/mnt/rete"_s, "//srv/foto", "cifs"}, true}, {{u"C:/"_s, "\\\\?\\Volume{1}\\", "NTFS"}, true},
        {{u"/proc"_s, "proc", "proc"}, false},          {{u"/run"_s, "tmpfs", "tmpfs"}, false},
        {{u"/boot/efi"_s, "/dev/sda1", "vfat"}, false}, {{u"/snap/x/1"_s, "/dev/loop0", "squashfs"}, false},
    };
    for (const auto &caso : casi)
        EXPECT_EQ(volumeReale(caso.volume), caso.vero) << caso.volume.radice.toStdString();
    EXPECT_FALSE(volumiMontati().isEmpty());
}

TEST(Volumi, IlPiuInterno) {
    const QStringList volumi{u"/"_s, u"/media/a"_s, u"/media/ab"_s};
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

TEST_F(Elenchi, UnClicUnSegnale) {
    FileListBox elenco(&finestra, "File1", {0, 0, 3000, 3000});
    elenco.setPattern(u"*.jpg;*.bmp"_s);
    elenco.setPath(radice.path());
    finestra.show();
    QSignalSpy clic(&elenco, &FileListBox::cliccato);
    const auto premi = [&](int riga) {
        QTest::mouseClick(elenco.viewport(), Qt::LeftButton, {}, elenco.visualItemRect(elenco.item(riga)).center());
    };
    premi(1);
    EXPECT_EQ(clic.size(), 1);
    premi(1);
    EXPECT_EQ(clic.size(), 2) << "a click on the chosen file is a click";
    QTest::keyClick(&elenco, Qt::Key_Down);
    EXPECT_EQ(clic.size(), 3);
    EXPECT_EQ(elenco.ListIndex(), 2);
    premi(2);
    EXPECT_EQ(clic.size(), 4);
    elenco.Refresh();
    EXPECT_EQ(clic.size(), 4);
    EXPECT_EQ(elenco.ListIndex(), -1);
}

TEST_F(Elenchi, CartelleDaTastiera) {
    DirListBox elenco(&finestra, "Dir1", {0, 0, 3000, 3000});
    QSignalSpy cambi(&elenco, &DirListBox::cambiata);
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

TEST_F(Elenchi, IlDiscoSegueLaCartella) {
    DriveListBox dischi(&finestra, "Drive1", {0, 0, 3000, 300});
    QSignalSpy cambi(&dischi, &DriveListBox::cambiato);
    dischi.setDrive(radice.path());
    EXPECT_TRUE(radice.path().startsWith(dischi.Drive()));
    EXPECT_FALSE(dischi.Drive().isEmpty());
    EXPECT_EQ(cambi.size(), 0);
}

} // namespace
} // namespace zuvora
