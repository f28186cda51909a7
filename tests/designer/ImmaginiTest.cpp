#include "designer/logic/ImmaginiQt.h"

#include "kit/ArchivioLayout.h"

#include <QImage>
#include <sys/stat.h>

namespace zuvora::prova {

namespace {

class Immagini : public ::testing::Test {
protected:
    QString file(const QString &nome) const { return m_cartella.filePath(nome); }
    void disegna(const QString &nome, QSize misura, const char *formato) {
        QImage immagine(misura, QImage::Format_RGB32);
        immagine.fill(Qt::red);
        ASSERT_TRUE(immagine.save(file(nome), formato));
    }

    ImmaginiQt immagini{{200, 200}};

private:
    QTemporaryDir m_cartella;
};

TEST_F(Immagini, WhatIsNoPictureIsRefusedWithoutBlocking) {
    QFile testo(file(u"testo.jpg"_s));
    ASSERT_TRUE(testo.open(QIODevice::WriteOnly));
    testo.write("non sono un'immagine");
    testo.close();
    ASSERT_EQ(mkfifo(file(u"tubo.jpg"_s).toUtf8().constData(), 0600), 0);
    for (const auto &nome : {u"testo.jpg"_s, u"tubo.jpg"_s, u"."_s, u"manca.png"_s})
        EXPECT_FALSE(immagini.carica(file(nome))) << nome.toStdString();
    EXPECT_FALSE(immagini.carica({}));
    EXPECT_FALSE(immagini.carica(u"/dev/zero"_s));
}

TEST_F(Immagini, WhatWasPreparedIsWhatIsGiven) {
    for (int i = 0; i < 12; ++i)
        disegna(u"%1.png"_s.arg(i), {10 + i, 20}, "PNG");
    immagini.prepara(file(u"manca.png"_s));
    immagini.prepara({});
    for (int i = 0; i < 12; ++i)
        immagini.prepara(file(u"%1.png"_s.arg(i)));
    for (int i = 11; i >= 0; --i)
        EXPECT_EQ(immagini.immagine(file(u"%1.png"_s.arg(i))).width(), 10 + i);
    EXPECT_FALSE(immagini.carica(file(u"manca.png"_s)));
    disegna(u"larga.png"_s, {4000, 1000}, "PNG");
    EXPECT_EQ(immagini.immagine(file(u"larga.png"_s)).size(), QSize(200, 50));
}

// A disk that no longer answers would stop the window.
TEST_F(Immagini, WhatIsKnownIsNotAskedOfTheDiskUntilItIsReadAgain) {
    disegna(u"a.png"_s, {10, 10}, "PNG");
    immagini.prepara(file(u"a.png"_s));
    EXPECT_EQ(immagini.immagine(file(u"a.png"_s)).width(), 10);
    EXPECT_FALSE(immagini.carica(file(u"b.png"_s)));
    QFile::rename(file(u"a.png"_s), file(u"b.png"_s));
    for (int volta = 0; volta < 2; ++volta) { // asked once or twice
        immagini.prepara(file(u"a.png"_s));
        immagini.prepara(file(u"b.png"_s));
        EXPECT_TRUE(immagini.carica(file(u"a.png"_s)));
        EXPECT_FALSE(immagini.carica(file(u"b.png"_s)));
    }
    Avanzamento avanzamento;
    for (const auto &nome : {u"a.png"_s, u"b.png"_s})
        immagini.tieni(file(nome), immagini.lettura(file(nome))(avanzamento));
    EXPECT_FALSE(immagini.carica(file(u"a.png"_s)));
    EXPECT_EQ(immagini.immagine(file(u"b.png"_s)).width(), 10);
}

} // namespace

} // namespace zuvora::prova
