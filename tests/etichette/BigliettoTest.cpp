#include "etichette/biglietto/Argomenti.h"
#include "etichette/biglietto/Record.h"
#include "etichette/logic/FileEtichetta.h"
#include "store/Ostacoli.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// A kiosk's folder with two records and a ticket of one text.
struct CartellaTotem {
    QTemporaryDir cartella;

    CartellaTotem() {
        esegui("CREATE TABLE DatiDaStampareIMP (Numero INTEGER, Servizio TEXT, [Data] DATE, Attesa REAL, Urgente "
               "BOOLEAN, Ora TIME)");
        esegui("INSERT INTO DatiDaStampareIMP VALUES (152, 'Cassa', '2013-10-03 10:25:07', 12.5, 0, '08:05:09')");
        esegui("INSERT INTO DatiDaStampareIMP VALUES (7, NULL, NULL, NULL, NULL, NULL)");
        Etichetta e;
        e.carta.altezza = 300;
        Oggetto o = nuovoOggetto(TipoOggetto::Testo, QPoint(30, 30));
        o.testo = u"{Numero:000} {Data:HH:mm:ss}"_s;
        e.oggetti << o;
        EXPECT_EQ(scriviEtichetta(file(u"Ticket.lbl"_s), e), QString());
    }
    QString file(const QString &nome) const { return cartella.filePath(nome); }
    void esegui(const char *sql) const {
        sqlite3 *db = nullptr;
        ASSERT_EQ(sqlite3_open(QFile::encodeName(file(u"TotemZuvora.mdb"_s)).constData(), &db), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
        sqlite3_close(db);
    }
    struct Esito {
        int codice;
        QString errore;
    };
    Esito biglietto(const QStringList &argomenti, const QString &file = QStringLiteral(ZUVORA_BIGLIETTO)) const {
        QProcess programma;
        programma.start(file, QStringList{cartella.path()} + argomenti);
        EXPECT_TRUE(programma.waitForFinished(60000));
        return {programma.exitCode(), QString::fromLocal8Bit(programma.readAllStandardError())};
    }
};

TEST(Biglietto, LeVariabiliVengonoDalRecordStesso) {
    const CartellaTotem totem;
    const RecordLetto primo = leggiRecord(totem.cartella.path(), 1);
    EXPECT_EQ(primo.motivo, QString());
    EXPECT_EQ(primo.valori.componi(
                  u"{Numero:0000}|{Servizio}|{Data:dd/MM/yyyy HH:mm:ss}|{Attesa}|{Urgente}|{Ora}|{Ora:HH.mm.ss}"_s),
              u"0152|Cassa|03/10/2013 10:25:07|12,5|No|08:05|08.05.09"_s);
    EXPECT_EQ(leggiRecord(totem.cartella.path(), 2).valori.componi(u"{Numero}|{Servizio}|{Data}|{Attesa}|{Urgente}"_s),
              u"7||||"_s);
    EXPECT_TRUE(leggiRecord(totem.cartella.path(), 3).motivo.contains(u"il numero 3 non c'è"_s));
    EXPECT_FALSE(leggiRecord(totem.file(u"manca"_s), 1).motivo.isEmpty());
    Valori valori = primo.valori;
    mettiValore(valori, u"attesa"_s, u"3,25"_s);
    mettiValore(valori, u"Data"_s, u"05/11/2026"_s);
    mettiValore(valori, u"Nuova"_s, u"x"_s);
    mettiValore(valori, u"Numero"_s, u"inf"_s); // a word, not a number
    mettiValore(valori, u"Ora"_s, u"14:30"_s);
    EXPECT_EQ(valori.componi(u"{Attesa:0,0}|{Data:d/M/yy}|{Nuova}|{Numero:0000}|{Ora:H mm}"_s),
              u"3,3|5/11/26|x|inf|14 30"_s);
}

TEST(Biglietto, ScrivePdfEImmagine) {
    const CartellaTotem totem;
    const QString png = totem.file(u"b.png"_s);
    EXPECT_EQ(totem.biglietto({u"--png"_s, png, u"--dpi"_s, u"254"_s}).codice, 0);
    const QImage primo(png);
    EXPECT_EQ(primo.size(), QSize(800, 300));
    EXPECT_EQ(totem.biglietto({u"--png"_s, png, u"--dpi"_s, u"254"_s, u"--record"_s, u"2"_s}).codice, 0);
    EXPECT_NE(QImage(png), primo);
    EXPECT_EQ(totem.biglietto({u"--pdf"_s, totem.file(u"b.pdf"_s)}).codice, 0);
    QFile pdf(totem.file(u"b.pdf"_s));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().trimmed().endsWith("%%EOF"));
}

TEST(Biglietto, SenzaRiuscireNonEsceConZero) {
    const CartellaTotem totem;
    const QString pdf = totem.file(u"b.pdf"_s);
    const struct {
        QStringList argomenti;
        int codice;
        const char16_t *parola;
    } casi[] = {{{u"--pdf"_s, totem.file(u"manca/b.pdf"_s)}, 1, u"Nessun biglietto stampato"},
                {{u"--pdf"_s, pdf, u"--record"_s, u"9"_s}, 1, u"il numero 9"},
                {{u"--pdf"_s, pdf, u"--record"_s, u"9"_s, u"--valore"_s, u"Numero=5"_s}, 1, u"il numero 9"},
                {{u"--pdf"_s, u"/dev/full"_s}, 1, u"Nessun biglietto stampato"},
                {{u"--pdf"_s, totem.cartella.path()}, 1, u"È una cartella"},
                {{u"--stampante"_s, u"stampante-che-non-esiste"_s}, 1, u"stampante"},
                {{u"--pdf"_s, pdf, u"--record"_s, u"0"_s}, 2, u"--record"},
                {{}, 2, u"uscita"}};
    for (const auto &caso : casi) {
        const auto esito = totem.biglietto(caso.argomenti);
        EXPECT_EQ(esito.codice, caso.codice) << esito.errore.toStdString();
        EXPECT_TRUE(esito.errore.contains(QString::fromUtf16(caso.parola))) << esito.errore.toStdString();
    }
    // Apart from its component it does all but print.
    const QString solo = totem.file(u"solo"_s);
    ASSERT_TRUE(QFile::copy(QStringLiteral(ZUVORA_BIGLIETTO), solo));
    EXPECT_TRUE(totem.biglietto({u"--stampante"_s, u"P"_s}, solo).errore.contains(u"manca il componente"_s));
    EXPECT_EQ(totem.biglietto({u"--pdf"_s, totem.file(u"solo.pdf"_s)}, solo).codice, 0);
    { // a disk that fills up
        const prova::LimiteFile limite(4096);
        EXPECT_EQ(totem.biglietto({u"--pdf"_s, pdf}).codice, 1);
    }
    QFile::remove(totem.file(u"Ticket.lbl"_s));
    EXPECT_EQ(totem.biglietto({u"--pdf"_s, pdf}).codice, 1);
    EXPECT_FALSE(QFile::exists(pdf));
}

TEST(Biglietto, CinquecentoColonne) {
    const CartellaTotem totem;
    for (int i = 6; i < 500; ++i)
        totem.esegui(u"ALTER TABLE DatiDaStampareIMP ADD COLUMN C%1 TEXT DEFAULT 'c%1'"_s.arg(i).toUtf8().constData());
    const Valori valori = leggiRecord(totem.cartella.path(), 1).valori;
    EXPECT_EQ(valori.tutte().size(), 500);
    EXPECT_EQ(valori.componi(u"{Numero} {c499}"_s), u"152 c499"_s);
}

TEST(Biglietto, RigaDiComando) {
    const auto buona = leggiArgomenti({u"/totem"_s, u"--valore"_s, u"A=b=c"_s, u"--stampante"_s, u"P"_s});
    ASSERT_TRUE(buona.argomenti);
    EXPECT_EQ(buona.argomenti->valori.front().second, u"b=c"_s);
    for (const QStringList &errata : {QStringList{u"/t"_s, u"--pdf"_s},
                                      {u"/t"_s, u"/u"_s, u"--pdf"_s, u"f"_s},
                                      {u"/t"_s, u"--pdf"_s, u"f"_s, u"--png"_s, u"g"_s},
                                      {u"/t"_s, u"--xyz"_s, u"1"_s},
                                      {u"/t"_s, u"--valore"_s, u"=x"_s, u"--pdf"_s, u"f"_s},
                                      {u"--pdf"_s, u"f"_s}})
        EXPECT_FALSE(leggiArgomenti(errata).errore.isEmpty()) << errata.join(u' ').toStdString();
}

} // namespace
} // namespace zuvora
