#include "etichette/logic/Pittore.h"

#include <QDir>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// A ticket of 60 x 60 mm with one code, drawn dot by dot as a 203 dpi head prints it.
QImage stampa(const Oggetto &codice, QStringList *avvisi = nullptr) {
    constexpr int punti = 480;
    QImage carta(punti, punti, QImage::Format_RGB32);
    carta.fill(Qt::white);
    QPainter p(&carta);
    p.scale(203 / 254.0, 203 / 254.0);
    Pittore pittore;
    pittore.disegnaOggetto(p, codice, codice.area, 203, Valori(), Pittore::Modo::Stampa);
    if (avvisi != nullptr)
        *avvisi = pittore.prendiAvvisi();
    return carta;
}

QString leggiCon(const QString &programma, const QStringList &argomenti, const QString &file) {
    QProcess lettore;
    lettore.start(programma, argomenti + QStringList{file});
    if (!lettore.waitForFinished(20000))
        return u"(nessun lettore)"_s;
    return QString::fromUtf8(lettore.readAllStandardOutput()).trimmed();
}

TEST(Codici, SiRileggonoConLoStessoContenuto) {
    if (QStandardPaths::findExecutable(u"zbarimg"_s).isEmpty() ||
        QStandardPaths::findExecutable(u"dmtxread"_s).isEmpty())
        GTEST_SKIP() << "no decoder on this machine (zbar-tools, dmtx-utils)";
    const QTemporaryDir cartella;
    const struct {
        Simbologia simbologia;
        QString contenuto;
        QString letto;
        int rotazione;
    } casi[] = {
        {Simbologia::Code128, u"A152-cassa"_s, {}, 0}, {Simbologia::Code128, u"A152"_s, {}, 90},
        {Simbologia::Code39, u"A152"_s, {}, 0},        {Simbologia::Ean13, u"800123456789"_s, u"8001234567897"_s, 0},
        {Simbologia::Itf, u"123456"_s, {}, 0},         {Simbologia::Qr, u"Perché? A152 – 12,50 €"_s, {}, 0},
        {Simbologia::Qr, u"A152"_s, {}, 180},          {Simbologia::DataMatrix, u"A152/2013"_s, {}, 0}};
    for (const auto &caso : casi) {
        Oggetto o = nuovoOggetto(TipoOggetto::Codice, QPoint(13, 17)); // off the dots' grid
        o.area.setSize(QSize(550, 500));
        o.simbologia = caso.simbologia;
        o.testo = caso.contenuto;
        o.rotazione = caso.rotazione;
        const QString file = cartella.filePath(u"codice.png"_s);
        ASSERT_TRUE(stampa(o).save(file));
        const QString letto = caso.simbologia == Simbologia::DataMatrix
                                  ? leggiCon(u"dmtxread"_s, {u"-m2000"_s, u"-N1"_s}, file)
                                  : leggiCon(u"zbarimg"_s, {u"-q"_s, u"--raw"_s, u"-Si25.enable"_s}, file);
        EXPECT_EQ(letto, caso.letto.isEmpty() ? caso.contenuto : caso.letto)
            << nomeSimbologia(caso.simbologia).toStdString();
    }
}

TEST(Codici, ContenutiCheNonCiStannoSonoDettiAParole) {
    const struct {
        Simbologia simbologia;
        QString contenuto;
        const char16_t *parola;
    } casi[] = {{Simbologia::Code128, QString(), u"non ha contenuto"},
                {Simbologia::Code128, u"prezzo €"_s, u"€"},
                {Simbologia::Code128, QString(500, u'x'), u"troppo lungo"},
                {Simbologia::Code39, u"abc"_s, u"maiuscole"},
                {Simbologia::Ean13, u"12345"_s, u"12 o 13 cifre"},
                {Simbologia::Ean13, u"8001234567890"_s, u"dovrebbe essere 7"},
                {Simbologia::Itf, u"123"_s, u"numero pari"},
                {Simbologia::Qr, QString(8000, u'x'), u"troppo lungo"},
                {Simbologia::DataMatrix, QString(5000, u'x'), u"troppo lungo"}};
    for (const auto &caso : casi) {
        const Codice codice = codifica(caso.simbologia, caso.contenuto);
        EXPECT_TRUE(codice.errore.contains(QString::fromUtf16(caso.parola))) << codice.errore.toStdString();
        EXPECT_TRUE(codice.scuri.isEmpty());
    }
}

TEST(Codici, UnRiquadroStrettoLoDiceEStampaIlContenuto) {
    Oggetto o = nuovoOggetto(TipoOggetto::Codice, QPoint(10, 10));
    o.area.setSize(QSize(60, 100));
    QStringList avvisi;
    const QImage carta = stampa(o, &avvisi);
    EXPECT_EQ(avvisi, QStringList{u"Il codice non sta nel suo riquadro: allargarlo."_s});
    QImage bianca(carta.size(), carta.format());
    bianca.fill(Qt::white);
    EXPECT_NE(carta, bianca);
}

} // namespace
} // namespace zuvora
