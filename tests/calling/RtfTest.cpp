#include "calling/logic/Rtf.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// The paragraphs on one line each; a look other than the plain one in brackets before its text.
QString descrivi(const std::vector<ParagrafoRtf> &paragrafi) {
    QString testo;
    for (const ParagrafoRtf &p : paragrafi) {
        for (const TrattoRtf &t : p.tratti) {
            QString aspetto;
            aspetto += t.grassetto ? u"b"_s : QString();
            aspetto += t.italico ? u"i"_s : QString();
            aspetto += t.sottolineato ? u"u"_s : QString();
            aspetto += t.punti == 12 ? QString() : QString::number(t.punti);
            aspetto += t.colore ? u'#' + QString::number(*t.colore, 16) : QString();
            testo += aspetto.isEmpty() ? t.testo : u'[' + aspetto + u']' + t.testo;
        }
        testo += u'\n';
    }
    return testo;
}

TEST(ProvaRtf, QuelloCheSiCapisceEQuelloCheSiSalta) {
    const struct {
        QByteArray byte;
        QString testo;
    } casi[] = {
        {"{\\rtf1 uno\\par due\\par}", u"uno\ndue\n"_s},
        {"{\\rtf1 a\\b b\\i c\\b0 d\\plain e}", u"a[b]b[bi]c[i]de\n"_s},
        {"{\\rtf1 a{\\b b{\\fs48 c}}d}", u"a[b]b[b24]cd\n"_s},
        {"{\\rtf1{\\colortbl;\\red255\\green0\\blue16;}\\cf1 rosso\\cf0 no\\cf9 no}", u"[#ff0010]rossonono\n"_s},
        {"{\\rtf1 perch\\'e9 \\'c8 \\'80 {citt\xe0}}", u"perché È € città\n"_s},
        {"{\\rtf1\\uc1 \\u9728?x\\u-10179?\\u-8704?}", u"☀x😀\n"_s},
        {"{\\rtf1\\uc2 \\u8364\\'80\\'80x}", u"€x\n"_s},
        {"{\\rtf1{\\fonttbl{\\f0 Tahoma;}}{\\*\\generator X;}{\\info{\\author Y}}{\\pict 0102}testo}", u"testo\n"_s},
        {"{\\rtf1 a\\bin5 {{{{{b\\ignota99 c\\ignota-5}", u"abc\n"_s},
        {"{\\rtf1 \\{\\\\\\}\\~\\tab\\emdash\\rquote\\line z}", u"{\\}\u00a0\t—’\u2028z\n"_s},
        {"{\\rtf1 a\r\nb\\\r\nc}", u"ab\nc\n"_s},
        {"{\\rtf1 a}}}}b", u"ab\n"_s},
        {"{\\rtf1 a\\fs99999999999999999999 b\\fs-4 c\\'zz\\'", u"a[1]bczz\n"_s},
        {"{\\rtf1", u""_s},
        {"{\\rtf1 a\\", u"a\n"_s},
        {"testo semplice\r\nsenza \xe8 forma", u"testo semplice\nsenza è forma\n"_s},
        {"", u""_s},
    };
    for (const auto &[byte, testo] : casi)
        EXPECT_EQ(descrivi(leggiRtf(byte)).toStdString(), testo.toStdString()) << byte.toStdString();
}

TEST(ProvaRtf, IlParagrafoTieneLeSueMisure) {
    const auto paragrafi = leggiRtf("{\\rtf1\\qc\\li360\\sb60\\sa-5 a\\par b\\pard\\par c\\par}");
    ASSERT_EQ(paragrafi.size(), 3U);
    EXPECT_EQ(paragrafi[0].allineamento, Qt::AlignHCenter);
    EXPECT_EQ(paragrafi[0].rientro, 360);
    EXPECT_EQ(paragrafi[0].sopra, 60);
    EXPECT_EQ(paragrafi[0].sotto, 0);
    EXPECT_EQ(paragrafi[2].rientro, 0);
    EXPECT_EQ(paragrafi[2].allineamento, Qt::AlignLeft);
    // What a skipped group says of its own paragraphs is not of the text's.
    EXPECT_EQ(leggiRtf("{\\rtf1{\\stylesheet{\\s1\\qr stile;}}a}").at(0).allineamento, Qt::AlignLeft);
}

TEST(ProvaRtf, UnMilioneDiGruppiNonNuoce) {
    const QByteArray aperti = QByteArray("{\\rtf1 a") + QByteArray("{\\b b").repeated(1000000);
    EXPECT_EQ(leggiRtf(aperti).size(), 1U);
    const QByteArray chiusi = QByteArray("{\\rtf1 a") + QByteArray(1000000, '{') + QByteArray(1000000, '}') + "z}";
    EXPECT_EQ(descrivi(leggiRtf(chiusi)), u"az\n"_s);
}

} // namespace
} // namespace zuvora
