// The start of the program, orderly and not.
#include "pannello/forms/Avvio.h"
#include "kit/Fratello.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QUrl Sito(QStringLiteral("https://www.zuvora.example/"));

struct Avvio : testing::Test {
    InstallazioneProva prova;
    // Runs the program; the main panel, if it comes, is closed through the exit form.
    int esegui() {
        QTimer chiusura;
        QObject::connect(&chiusura, &QTimer::timeout, &chiusura, [&] {
            const auto finestre = QApplication::topLevelWidgets();
            for (QWidget *w : finestre)
                if (w->objectName() == u"SplasModule"_s && w->isVisible() &&
                    QApplication::activeModalWidget() == nullptr) {
                    chiusura.stop();
                    guida.premi("FormUscita", "cbt(0)");
                    venuto = true;
                    w->close();
                    QApplication::quit();
                }
        });
        chiusura.start(10);
        return eseguiProgramma(prova.ambiente, {}, Sito);
    }
    Guida guida;
    bool venuto = false; // the main panel came up
};

TEST_F(Avvio, ArrivaAlPannelloEFiniscePerUscita) {
    EXPECT_EQ(esegui(), 0);
    EXPECT_TRUE(venuto);
    EXPECT_EQ(prova.valori.PercorsoApplicazione, prova.cartella());
}

TEST_F(Avvio, SecondaIstanzaNonToccaNulla) {
    prova.piattaforma.giaInEsecuzione = true;
    prova.valori.PercorsoApplicazione.clear();
    esegui();
    const auto box = prova.dialoghi.prendiBox();
    ASSERT_EQ(box.size(), 1U);
    EXPECT_EQ(box[0].icona, Dialoghi::Icona::Critica);
    EXPECT_EQ(box[0].titolo, u"ATTENZIONE"_s);
    EXPECT_EQ(box[0].testo, u"Zuvora-Modulo Impostazione risulta già in esecuzione sulla macchina !"_s);
    EXPECT_TRUE(prova.valori.PercorsoApplicazione.isEmpty());
    EXPECT_FALSE(venuto);
}

TEST_F(Avvio, VersionePrecedenteSiAggiornaEIlProgrammaFinisce) {
    prova.esegui(u"UPDATE Versione SET Numero='Versione 3.1.8', Data='del 2012';"
                 "ALTER TABLE ConfigurazioneTotem DROP COLUMN TestoVisibile;"
                 "ALTER TABLE ConfigurazioneTotem DROP COLUMN DataVisibile"_s);
    guida.premi("AAAggiorna", "command1(0)");
    EXPECT_EQ(esegui(), 0);
    EXPECT_FALSE(venuto);
    EXPECT_EQ(prova.righe(u"SELECT * FROM Versione"_s), QStringList{u"Versione 3.1.11|del 03 Ottobre 2013"_s});
    EXPECT_EQ(prova.valore(u"SELECT count(*) FROM pragma_table_info('ConfigurazioneTotem') "
                           "WHERE name IN ('TestoVisibile','DataVisibile')"_s),
              2);
    EXPECT_EQ(Fratello(prova.file(u"Zuvora-3.1.8.mdb"_s)).righe(u"SELECT * FROM Versione"_s),
              QStringList{u"Versione 3.1.8|del 2012"_s});
    EXPECT_EQ(esegui(), 0); // the next start raises no upgrade
    EXPECT_TRUE(venuto);
}

TEST_F(Avvio, SenzaCopiaLAggiornamentoSiFaSoloSeConfermato) {
    prova.esegui(u"UPDATE Versione SET Numero='Versione 3.1.9'"_s);
    QDir(prova.cartella()).mkpath(u"Zuvora-3.1.9.mdb/occupata"_s);
    QString righe;
    guida.premi("AAAggiorna", "command1(0)");
    guida.messaggio(&righe, 0);
    guida.quando("AAAggiorna", [](QWidget &form) { form.close(); });
    esegui();
    EXPECT_TRUE(righe.contains(u"Aggiornare senza copia ?"_s)) << righe.toStdString();
    EXPECT_EQ(prova.valore(u"SELECT Numero FROM Versione"_s).toString(), u"Versione 3.1.9"_s);
}

TEST_F(Avvio, AggiornamentoConColonnaGiaPresenteAlzaLaVersione) {
    prova.esegui(
        u"UPDATE Versione SET Numero='Versione 3.1.0'; ALTER TABLE ConfigurazioneTotem DROP COLUMN DataVisibile"_s);
    guida.premi("AAAggiorna", "command1(0)");
    esegui();
    EXPECT_EQ(prova.valore(u"SELECT Numero FROM Versione"_s).toString(), u"Versione 3.1.11"_s);
    EXPECT_EQ(
        prova.valore(u"SELECT count(*) FROM pragma_table_info('ConfigurazioneTotem') WHERE name='DataVisibile'"_s), 0);
}

TEST_F(Avvio, AggiornamentoRifiutatoLasciaTuttoComEra) {
    prova.esegui(u"UPDATE Versione SET Numero='Versione 3.1.10'"_s);
    const QByteArray prima = prova.contenuto();
    guida.quando("AAAggiorna", [](QWidget &form) {
        EXPECT_EQ(trova<QLineEdit>(form, "text1(0)").text(), u"3.1.10"_s);
        form.close();
    });
    EXPECT_EQ(esegui(), 0);
    EXPECT_FALSE(venuto);
    EXPECT_EQ(prova.contenuto(), prima);
}

// Each damage to the settings database stops the start with one sentence, and the file stays as the damage left it.
TEST_F(Avvio, UnArchivioGuastoDaUnaFraseENessunaModifica) {
    const QByteArray sano = prova.contenuto();
    const auto senza = [](const char *sql) {
        return [sql](const QString &f) { Fratello(f).esegui(QString::fromUtf8(sql)); };
    };
    const auto fatto = [](const QByteArray &byte) {
        return [byte](const QString &f) {
            QFile file(f);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(byte) == byte.size());
        };
    };
    const struct {
        std::function<void(const QString &)> danno;
        const char *parola; // in the message
    } casi[] = {{[](const QString &f) { QFile::remove(f); }, "Zuvora.mdb"},
                {fatto({}), "Zuvora.mdb"},
                {fatto("questo non è un archivio, ma un testo qualunque"), "Zuvora.mdb"},
                {fatto(sano.left(sano.size() / 3)), "Zuvora.mdb"},
                {senza("DROP TABLE Versione"), "Versione"},
                {senza("ALTER TABLE Configurazione DROP COLUMN Nominativo"), "Nominativo"},
                {senza("DELETE FROM Configurazione"), "Configurazione"}};
    for (const auto &caso : casi) {
        fatto(sano)(prova.archivio());
        caso.danno(prova.archivio());
        const QByteArray prima = prova.contenuto();
        const QStringList filePrima = QDir(prova.cartella()).entryList(QDir::Files);
        EXPECT_EQ(esegui(), 1);
        EXPECT_FALSE(venuto);
        const QString testo = prova.dialoghi.unicoMessaggio();
        EXPECT_TRUE(testo.contains(QString::fromUtf8(caso.parola))) << testo.toStdString();
        EXPECT_TRUE(testo.contains(u"Il programma viene chiuso"_s));
        EXPECT_EQ(prova.contenuto(), prima);
        EXPECT_EQ(QDir(prova.cartella()).entryList(QDir::Files), filePrima);
    }
}

} // namespace
} // namespace zuvora
