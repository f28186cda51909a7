#include "../store/Ostacoli.h"
#include "shell/immagini/LetturaImmagine.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zuvora {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QSize stanza{64, 64};

QByteArray codifica(const QImage &immagine, const char *formato) {
    QByteArray byte;
    QBuffer buffer(&byte);
    immagine.save(&buffer, formato);
    return byte;
}

QImage foto() {
    QImage immagine(120, 80, QImage::Format_RGB32);
    for (int y = 0; y < immagine.height(); ++y)
        for (int x = 0; x < immagine.width(); ++x)
            immagine.setPixel(x, y, qRgb(x * 2, y * 3, (x * 7 + y * 13) % 256));
    return immagine;
}

QByteArray jpeg() {
    return codifica(foto(), "jpg");
}

// Two frames of one point, with a colour table and a comment.
QByteArray gif() {
    const QByteArray immagine = QByteArray::fromHex("2C00000000010001000002024401 00");
    return "GIF89a" + QByteArray::fromHex("01000100 800000 FF0000 0000FF") + QByteArray::fromHex("21FE 03 3B3B3B 00") +
           immagine + immagine + "\x3B";
}

// An application segment behind the start of a JPEG: orientation, and a preview with an end marker of its own.
QByteArray conExif(QByteArray byte, char verso) {
    QByteArray exif = QByteArray::fromHex("457869660000 4D4D002A00000008 0001 0112 0003 00000001 0000 0000 00000000");
    exif[25] = verso;
    exif += QByteArray::fromHex("FFD8FFD9");
    const int lunghezza = static_cast<int>(exif.size()) + 2;
    return byte.insert(2, QByteArray::fromHex("FFE1") + static_cast<char>(lunghezza >> 8) +
                              static_cast<char>(lunghezza & 0xFF) + exif);
}

struct Immagini : testing::Test {
    Immagini() { applicazione(); }
    static void applicazione() {
        static int quanti = 1;
        static char nome[] = "prova";
        static char *argomenti[] = {nome, nullptr};
        if (QCoreApplication::instance() == nullptr)
            new QCoreApplication(quanti, argomenti); // image formats are plugins
    }
    QString metti(const QByteArray &byte) {
        const QString percorso = cartella.filePath(u"immagine"_s); // no extension: the content tells
        QFile file(percorso);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(byte);
        return percorso;
    }
    QTemporaryDir cartella;
};

TEST_F(Immagini, SoloUnFileInteroEUnImmagine) {
    const std::initializer_list<std::pair<const char *, QByteArray>> interi = {
        {"jpeg", jpeg()},
        {"jpeg with preview", conExif(jpeg(), 1)},
        {"bmp", codifica(foto(), "bmp")},
        {"bmp of 8 bits", codifica(foto().convertToFormat(QImage::Format_Indexed8), "bmp")},
        {"png", codifica(foto(), "png")},
        {"gif", gif()}};
    for (const auto &[nome, byte] : interi) {
        SCOPED_TRACE(nome);
        EXPECT_EQ(difettoImmagine(metti(byte)), QString());
        EXPECT_FALSE(leggiImmagine(metti(byte), stanza).isNull());
        EXPECT_FALSE(leggiImmagine(metti(byte + "coda"), stanza).isNull());
        for (const qsizetype tagliati : {byte.size() * 2 / 3, qsizetype{1}}) {
            const QString percorso = metti(byte.chopped(tagliati));
            EXPECT_FALSE(difettoImmagine(percorso).isEmpty()) << tagliati;
            EXPECT_FALSE(leggi(percorso, stanza).motivo.isEmpty()) << tagliati;
        }
    }
}

TEST_F(Immagini, LaFotocameraGirataSiRaddrizza) {
    const QString percorso = metti(conExif(jpeg(), 6));
    EXPECT_EQ(misuraImmagine(percorso), QSize(80, 120));
    EXPECT_EQ(leggiImmagine(percorso, {1000, 1000}).size(), QSize(80, 120));
    EXPECT_EQ(leggiImmagine(percorso, {40, 40}).size(), QSize(26, 40));
    EXPECT_EQ(leggiRitaglio(percorso, {50, 100}).immagine.size(), QSize(50, 100));
    EXPECT_EQ(leggiRitaglio(metti(jpeg()), {50, 1000}).immagine.size(), QSize(50, 80));
}

TEST_F(Immagini, LeGrandiSiRiduconoDiOgniGenere) {
    QImage grande(6000, 6000, QImage::Format_Indexed8);
    grande.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    grande.fill(1);
    for (const char *formato : {"png", "bmp"}) {
        const QImage letta = leggiImmagine(metti(codifica(grande, formato)), stanza);
        EXPECT_EQ(letta.size(), stanza) << formato;
        EXPECT_EQ(letta.pixelColor(32, 32), Qt::blue) << formato;
    }
}

TEST_F(Immagini, IlMotivoSiDiceAParole) {
    const QString coda = cartella.filePath(u"coda"_s);
    ASSERT_TRUE(prova::creaCoda(coda));
    const QString enorme = metti(jpeg());
    ASSERT_TRUE(QFile::resize(enorme, fileImmagineMassimo + 1)); // takes no room on the disk
    for (const auto &[percorso, motivo] : std::initializer_list<std::pair<QString, QString>>{
             {enorme, u"Il file è troppo grande (200,0 MB, al massimo 200,0 MB)."_s},
             {coda, u"Non è un file."_s},
             {cartella.path(), u"Non è un file."_s},
             {cartella.filePath(u"assente"_s), u"File non trovato."_s},
             {QString(1'000'000, u'a'), u"File non trovato."_s},
             {QString(), u"File non trovato."_s}}) {
        EXPECT_EQ(difettoImmagine(percorso), motivo);
        EXPECT_EQ(leggi(percorso, stanza).motivo, motivo);
        EXPECT_TRUE(misuraImmagine(percorso).isEmpty());
    }
    QByteArray nonBmp = codifica(foto(), "bmp");
    nonBmp[28] = 5; // bits a point
    EXPECT_EQ(difettoImmagine(metti(nonBmp)), u"Il file non è un'immagine leggibile."_s);
    EXPECT_EQ(difettoImmagine(metti("testo")), u"Il file non è un'immagine leggibile."_s);
}

TEST_F(Immagini, QuelleTroppoGrandiNonSonoIllegibili) {
    const auto bmp = [](const char *misura) {
        return codifica(foto(), "bmp").replace(18, 8, QByteArray::fromHex(misura));
    };
    const auto png = [](const char *testa) {
        return "\x89PNG\r\n\x1a\n" + QByteArray::fromHex("0000000D") + QByteArray::fromHex(testa) +
               QByteArray::fromHex("00000000 49444154 35AF061E 00000000 49454E44 AE426082");
    };
    for (const auto &[byte, misura, ridotta] : std::initializer_list<std::tuple<QByteArray, QString, bool>>{
             {bmp("983A0000 983A0000"), u"15000 x 15000"_s, false},
             {bmp("409C0000 30750000"), u"40000 x 30000"_s, false}, // the reader tells no size of the next two
             {png("49484452 0010C8E0 00000004 0802000000 0FE884EB"), u"1100000 x 4"_s, false},
             {png("49484452 00004E20 00004E20 0802000000 6C12D16E"), u"20000 x 20000"_s, true}}) {
        const QString motivo = u"L'immagine è troppo grande (%1 punti)."_s.arg(misura);
        EXPECT_EQ(difettoImmagine(metti(byte)), ridotta ? QString() : motivo) << misura.toStdString();
        EXPECT_EQ(difettoImmagine(metti(byte), Lettura::Ritaglio), motivo);
        EXPECT_EQ(leggiRitaglio(metti(byte), stanza).motivo, motivo);
    }
}

TEST_F(Immagini, LaLetturaSiVedeESiAnnulla) {
    const QString percorso = metti(jpeg());
    Avanzamento avanzamento;
    EXPECT_FALSE(leggi(percorso, stanza, Riduzione::Proporzioni, &avanzamento).immagine.isNull());
    EXPECT_EQ(avanzamento.percento(), 100);
    avanzamento.annulla();
    const ImmagineLetta letta = leggi(percorso, stanza, Riduzione::Proporzioni, &avanzamento);
    EXPECT_TRUE(letta.annullata && letta.immagine.isNull() && letta.motivo.isEmpty());
}

} // namespace
} // namespace zuvora
