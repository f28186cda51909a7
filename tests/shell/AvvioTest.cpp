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
#include <optional>

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
        EXPECT_TRUE(didascalieTagliate(form).isEmpty());
        EXPECT_TRUE(campiSenzaNome(form).isEmpty()) << campiSenzaNome(form).join(u' ').toStdString();
        fotografa(form);
        form.close();
    });
    EXPECT_EQ(esegui(), 0);
    EXPECT_FALSE(venuto);
    EXPECT_EQ(prova.contenuto(), prima);
}

TEST_F(Avvio, VersioneNonInElencoPassa) {
    prova.esegui(u"UPDATE Versione SET Numero='Versione 3.1.7'"_s);
    EXPECT_EQ(esegui(), 0);
    EXPECT_TRUE(venuto);
}

// Each damage to the settings database stops the start with one sentence, and the file stays as the damage left it.
struct Danno {
    const char *nome;
    const char *sql;       // run on the database, or
    const char *contenuto; // what the file holds instead; nullptr for none of the two: the file is removed
    const char *parola;    // in the message
};
class AvvioGuasto : public Avvio, public testing::WithParamInterface<Danno> {};

TEST_P(AvvioGuasto, UnaFraseENessunaModifica) {
    const Danno &danno = GetParam();
    if (danno.sql != nullptr) {
        prova.esegui(QString::fromUtf8(danno.sql));
    } else {
        QFile::remove(prova.archivio());
        if (danno.contenuto != nullptr) {
            QFile f(prova.archivio());
            ASSERT_TRUE(f.open(QIODevice::WriteOnly));
            f.write(danno.contenuto);
        }
    }
    const QByteArray prima = prova.contenuto();
    const QStringList filePrima = QDir(prova.cartella()).entryList(QDir::Files);
    EXPECT_EQ(esegui(), 1);
    EXPECT_FALSE(venuto);
    const QString testo = prova.dialoghi.unicoMessaggio();
    EXPECT_TRUE(testo.contains(QString::fromUtf8(danno.parola))) << testo.toStdString();
    EXPECT_TRUE(testo.contains(u"Il programma viene chiuso"_s));
    EXPECT_EQ(prova.contenuto(), prima);
    EXPECT_EQ(QDir(prova.cartella()).entryList(QDir::Files), filePrima);
}

INSTANTIATE_TEST_SUITE_P(
    Archivio, AvvioGuasto,
    testing::Values(Danno{"manca", nullptr, nullptr, "Zuvora.mdb"}, Danno{"vuoto", nullptr, "", "Zuvora.mdb"},
                    Danno{"nonArchivio", nullptr, "questo non è un archivio, ma un testo qualunque", "Zuvora.mdb"},
                    Danno{"senzaTabella", "DROP TABLE Versione", nullptr, "Versione"},
                    Danno{"senzaColonna", "ALTER TABLE Configurazione DROP COLUMN Nominativo", nullptr, "Nominativo"},
                    Danno{"senzaRiga", "DELETE FROM Configurazione", nullptr, "Configurazione"}),
    [](const auto &caso) { return std::string(caso.param.nome); });

TEST_F(Avvio, ArchivioTroncato) {
    QFile f(prova.archivio());
    ASSERT_TRUE(f.resize(f.size() / 3));
    const QByteArray prima = prova.contenuto();
    const int esito = esegui();
    if (esito != 0) {
        EXPECT_FALSE(prova.dialoghi.unicoMessaggio().isEmpty());
    }
    EXPECT_EQ(prova.contenuto(), prima);
}

TEST_F(Avvio, ArchivioBloccatoDaUnAltroProgramma) {
    std::optional<Fratello> altro(prova.archivio());
    ASSERT_EQ(altro->esegui(u"BEGIN EXCLUSIVE"_s), SQLITE_OK);
    EXPECT_EQ(esegui(), 1);
    EXPECT_TRUE(prova.dialoghi.unicoMessaggio().contains(u"Zuvora.mdb"_s));
    altro.reset();
}

} // namespace
} // namespace zuvora
