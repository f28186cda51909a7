// The ticket handed over to a print service of the test's own, with queues that print into files.
#include "etichette/biglietto/Stampante.h"

#include <QBuffer>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString programmaCupsd = u"/usr/sbin/cupsd"_s;

// A driver of one filter that copies: without a filter, cupsd gives a file device nothing.
const QString driver = uR"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PROVA.PPD"
*Manufacturer: "Prova"
*Product: "(Prova)"
*ModelName: "Prova"
*ShortNickName: "Prova"
*NickName: "Prova"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*cupsFilter: "application/pdf 0 %1"
*OpenUI *PageSize/Page: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Page: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "0 0 595 842"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*CustomPageSize True: ""
*ParamCustomPageSize Width: 1 points 72 288
*ParamCustomPageSize Height: 2 points 72 1440
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 0
*OpenUI *CutMedia/Cut: PickOne
*DefaultCutMedia: None
*CutMedia None/None: ""
*CutMedia EndOfJob/Job: ""
*CutMedia EndOfPage/Page: ""
*CloseUI: *CutMedia
*OpenUI *Darkness/Darkness: PickOne
*DefaultDarkness: -1
*Darkness -1/Printer: ""
*Darkness 1/1: ""
*Darkness 15/15: ""
*Darkness 30/30: ""
*CloseUI: *Darkness
)ppd"_s;

struct ServizioDiStampa : testing::Test {
    QTemporaryDir cartella;
    QProcess cupsd;

    QString file(const QString &nome) const { return cartella.filePath(nome); }
    void scrivi(const QString &nome, const QString &testo) const {
        QFile f(file(nome));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(testo.toUtf8());
    }
    bool esegui(const QString &programma, const QStringList &argomenti) {
        QProcess p;
        p.start(programma, argomenti);
        return p.waitForFinished(20000) && p.exitCode() == 0;
    }
    void SetUp() override {
        if (!QFileInfo(programmaCupsd).isExecutable())
            GTEST_SKIP() << "cupsd is not installed";
        if (::geteuid() != 0)
            GTEST_SKIP() << "cupsd starts with its own folders only for root";
        QFile::setPermissions(cartella.path(), QFile::Permissions(0x7755)); // its filters run as another user
        for (const QString &nome : {u"spool"_s, u"cache"_s, u"stato"_s, u"tmp"_s})
            ASSERT_TRUE(QDir(cartella.path()).mkdir(nome));
        scrivi(u"cupsd.conf"_s,
               u"Listen %1/presa\nLimitRequestBody 100k\nBrowsing No\nDefaultAuthType None\nWebInterface No\n"
               "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
               "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n"_s.arg(cartella.path()));
        scrivi(u"files.conf"_s, u"FileDevice Yes\nServerRoot %1\nRequestRoot %1/spool\nCacheDir %1/cache\n"
                                "StateDir %1/stato\nTempDir %1/tmp\nAccessLog %1/access\nErrorLog %1/error\n"
                                "PageLog %1/page\n"_s.arg(cartella.path()));
        scrivi(u"copia"_s, u"#!/bin/sh\necho \"$4 $5\" >\"$TMPDIR/opzioni\"\nexec cat \"${6:--}\"\n"_s);
        QFile::setPermissions(file(u"copia"_s), QFile::Permissions(0x7755));
        QFile::setPermissions(file(u"tmp"_s), QFile::Permissions(0x7777));
        scrivi(u"driver.ppd"_s, driver.arg(file(u"copia"_s)));
        qputenv("CUPS_SERVER", QFile::encodeName(file(u"presa"_s)));
        cupsd.start(programmaCupsd, {u"-f"_s, u"-c"_s, file(u"cupsd.conf"_s), u"-s"_s, file(u"files.conf"_s)});
        ASSERT_TRUE(cupsd.waitForStarted());
        const QDeadlineTimer limite(20000);
        while (!esegui(u"lpstat"_s, {u"-r"_s}) || !QFileInfo::exists(file(u"presa"_s)))
            ASSERT_FALSE(limite.hasExpired()) << "cupsd does not answer";
        for (const QString &nome : {u"Cassa"_s, u"Chiusa"_s})
            ASSERT_TRUE(esegui(u"lpadmin"_s, {u"-p"_s, nome, u"-E"_s, u"-v"_s, u"file:"_s + file(nome + u".prn"_s),
                                              u"-P"_s, file(u"driver.ppd"_s)}));
        ASSERT_TRUE(esegui(u"cupsreject"_s, {u"Chiusa"_s}));
    }
    void TearDown() override {
        qunsetenv("CUPS_SERVER");
        cupsd.terminate();
        if (cupsd.state() != QProcess::NotRunning && !cupsd.waitForFinished(20000))
            cupsd.kill();
    }
};

TEST_F(ServizioDiStampa, SoloQuelloCheEPresoInCaricoEStampato) {
    EXPECT_EQ(stampanti().nomi, (QStringList{u"Cassa"_s, u"Chiusa"_s}));
    Etichetta e = modelliPronti().first().etichetta;
    e.stampa = {3, true, 5};
    EXPECT_EQ(stampa(u"Cassa"_s, e, Valori()).motivo, QString());
    QFile prn(file(u"Cassa.prn"_s));
    QByteArray stampato;
    for (const QDeadlineTimer limite(20000); !stampato.endsWith("%%EOF\n") && !limite.hasExpired(); prn.close())
        if (esegui(u"lpstat"_s, {u"-o"_s}) && prn.open(QIODevice::ReadOnly))
            stampato = prn.readAll();
    EXPECT_TRUE(stampato.startsWith("%PDF") && stampato.endsWith("%%EOF\n"));
    QFile opzioni(file(u"tmp/opzioni"_s));
    ASSERT_TRUE(opzioni.open(QIODevice::ReadOnly));
    const QByteArray chieste = opzioni.readAll();
    for (const char *una : {"3 ", "CutMedia=EndOfPage", "Darkness=30", "media=Custom.80x100mm", "print-scaling=none"})
        EXPECT_TRUE(chieste.contains(una)) << una << " not in " << chieste.constData();

    EXPECT_TRUE(stampa(u"Chiusa"_s, e, Valori()).motivo.contains(u"ha rifiutato"_s));
    EXPECT_TRUE(stampa(u"Ignota"_s, e, Valori()).motivo.contains(u"non c'è"_s));
    EXPECT_FALSE(QFileInfo::exists(file(u"Chiusa.prn"_s)));
    // The service takes the job and breaks off in the middle of the document.
    QImage rumore(500, 500, QImage::Format_RGB32);
    for (int i = 0; i < 250000; ++i)
        rumore.setPixel(i % 500, i / 500, QRandomGenerator::global()->generate());
    Oggetto foto = nuovoOggetto(TipoOggetto::Immagine, {});
    foto.area.setSize(QSize(700, 700));
    foto.riduzione = RiduzioneColori::Colori;
    QBuffer buffer(&foto.immagine);
    ASSERT_TRUE(rumore.save(&buffer, "PNG"));
    e.oggetti << foto;
    EXPECT_TRUE(stampa(u"Cassa"_s, e, Valori()).motivo.contains(u"non è arrivato intero"_s));
    cupsd.terminate();
    ASSERT_TRUE(cupsd.waitForFinished(20000));
    EXPECT_FALSE(stampa(u"Cassa"_s, e, Valori()).motivo.isEmpty());
}

} // namespace
} // namespace zuvora
