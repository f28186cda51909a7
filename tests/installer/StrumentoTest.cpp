#include "installer/Banco.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;
using namespace prova;

namespace {
struct Risposta {
    int uscita;
    QString testo; // both streams
};

Risposta strumento(const QStringList &argomenti) {
    QProcess processo;
    processo.setProcessChannelMode(QProcess::MergedChannels);
    processo.start(QStringLiteral(ZUVORA_INSTALLA), argomenti);
    EXPECT_TRUE(processo.waitForFinished());
    EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit);
    return {processo.exitCode(), QString::fromLocal8Bit(processo.readAll())};
}
} // namespace

using Strumento = Banco;

TEST_F(Strumento, UsoErratoDaIstruzioniEDue) {
    const QString c = percorso(u"nuova"_s);
    const QStringList errati[] = {{},
                                  {u"costruisci"_s},
                                  {u"crea"_s},
                                  {u"crea"_s, c, c},
                                  {u"crea"_s, u"--esempi"_s, c},
                                  {u"verifica"_s},
                                  {u"verifica"_s, u"--esempio"_s, c}};
    for (const QStringList &argomenti : errati) {
        const Risposta r = strumento(argomenti);
        EXPECT_EQ(r.uscita, 2) << qPrintable(argomenti.join(u' '));
        EXPECT_TRUE(r.testo.contains(u"Uso: zuvora-installa"_s)) << qPrintable(r.testo);
    }
    EXPECT_FALSE(QFile::exists(c));
    EXPECT_EQ(strumento({u"--help"_s}).uscita, 0);
}

TEST_F(Strumento, VerificaDiceOgniDifettoEUscendoLoConferma) {
    const QString cartella = impianto();
    EXPECT_EQ(strumento({u"verifica"_s, cartella}).uscita, 0);
    QFile::remove(cartella + u"/th19.rtf"_s);
    QFile::remove(cartella + u"/FraseTTS.txt"_s);
    const Risposta r = strumento({u"verifica"_s, cartella});
    EXPECT_EQ(r.uscita, 1);
    EXPECT_EQ(r.testo,
              u"Nell'installazione manca il file %1/FraseTTS.txt\nNell'installazione manca il file %1/th19.rtf\n"_s.arg(
                  cartella));
}

TEST_F(Strumento, CreaRifiutaConUno) {
    scrivi(u"piena/Zuvora.mdb"_s, "x");
    const Risposta r = strumento({u"crea"_s, u"--esempio"_s, percorso(u"piena"_s)});
    EXPECT_EQ(r.uscita, 1);
    EXPECT_TRUE(r.testo.contains(u"c'è già un archivio"_s)) << qPrintable(r.testo);
}
