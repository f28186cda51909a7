#include "installer/Banco.h"
#include "installer/Programma.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;
using namespace prova;
using zuvora::installa::aggiornaInstallazione;

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

TEST_F(Strumento, DisegnaUnLayoutSenzaSchermo) {
    const QString cartella = impianto();
    sql(cartella + u"/Zuvora.mdb"_s, u"UPDATE Configurazione SET MisuraFormWH = 2"_s);
    sql(cartella + u"/Zuvora.mdb"_s, u"UPDATE Layout2 SET ColoreSfondo = 255, PercorsoImmagine = NULL"_s);
    const QString file = percorso(u"layout.png"_s);
    const Risposta r = strumento({u"disegna"_s, cartella, u"LAYOUT2"_s, file});
    EXPECT_EQ(r.uscita, 0) << qPrintable(r.testo);
    // A picture of 1366 x 768: its width and height stand in the file's head.
    EXPECT_EQ(leggi(file).mid(16, 8).toHex(), QByteArray("0000055600000300"));
    for (const QStringList &errati : {QStringList{cartella, u"Layout11"_s, file},
                                      {percorso(u"manca"_s), u"Layout1"_s, file},
                                      {cartella, u"Layout1"_s, percorso(u"manca/x.png"_s)},
                                      {cartella, u"Layout1"_s, percorso(u"x.xyz"_s)}})
        EXPECT_EQ(strumento(QStringList{u"disegna"_s} + errati).uscita, 1) << qPrintable(errati.join(u' '));
    sql(cartella + u"/Zuvora.mdb"_s, u"DELETE FROM Layout1"_s);
    EXPECT_TRUE(strumento({u"disegna"_s, cartella, u"Layout1"_s, file}).testo.contains(u"righe"_s));
}

TEST_F(Strumento, AggiornaPortaIlProgrammaELasciaIDati) {
    const QString cartella = impianto();
    for (const char *parte : {"zuvora", "libzuvora-web.so", "guida/index.html"})
        scrivi(u"macchina/"_s + QString::fromLatin1(parte), "nuovo");
    scrivi(u"impianto/zuvora"_s, "vecchio");
    scrivi(u"impianto/guida/sparita.html"_s, "vecchio");
    const QByteArray dati = leggi(cartella + u"/Zuvora.mdb"_s);
    const auto aggiorna = [&] { return aggiornaInstallazione(cartella, percorso(u"macchina"_s)); };
    EXPECT_TRUE(aggiorna().riuscito) << qPrintable(aggiorna().messaggio);
    EXPECT_EQ(leggi(cartella + u"/zuvora"_s), QByteArray("nuovo"));
    EXPECT_EQ(leggi(cartella + u"/guida/index.html"_s), QByteArray("nuovo"));
    EXPECT_FALSE(QFile::exists(cartella + u"/guida/sparita.html"_s));
    EXPECT_EQ(leggi(cartella + u"/Zuvora.mdb"_s), dati);
    sql(cartella + u"/Zuvora.mdb"_s, u"UPDATE Versione SET Numero = 'Versione 3.2.0'"_s);
    scrivi(u"macchina/zuvora"_s, "altro");
    EXPECT_TRUE(aggiorna().messaggio.contains(u"più recente"_s));
    EXPECT_EQ(leggi(cartella + u"/zuvora"_s), QByteArray("nuovo"));
    EXPECT_TRUE(aggiornaInstallazione(percorso(u"macchina"_s), percorso(u"macchina"_s))
                    .messaggio.contains(u"non c'è un'installazione"_s));
}
