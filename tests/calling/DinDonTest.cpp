#include "Composizione.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "pannello/forms/SplasModule.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaDinDon : public testing::Test {
protected:
    void SetUp() override {
        i.valori.PercorsoApplicazione = i.cartella();
        i.piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI);
        i.esegui(u"DELETE FROM DinDon; INSERT INTO DinDon VALUES(1, '\\\\PC-PROVA\\a.wav'), (2, NULL);"
                 "UPDATE Configurazione SET PlayDinDon=1, dindon='prima'"_s);
        pannello = std::make_unique<SplasModule>(i.ambiente, vociDelPannello(), QUrl(u"https://www.zuvora.example/"_s));
        pannello->show();
        clicca(*pannello, "PushButton1");
    }
    QStringList suoni() const { return i.righe(u"SELECT DinDon FROM DinDon ORDER BY ID"_s); }
    QString premi(const char *bottone, int risposta = 0) {
        QString righe;
        Guida guida;
        guida.messaggio(&righe, risposta);
        clicca(*pannello, bottone);
        return righe;
    }
    // The message of the trial of a sound that lies in the installation's folder.
    QString prova(const QString &nome) {
        i.esegui(u"UPDATE DinDon SET DinDon='%1' WHERE ID=1"_s.arg(i.file(nome)));
        clicca(*pannello, "PushButton1");
        return premi("btnDD(4)");
    }
    void scrivi(const QString &nome, const QByteArray &contenuto) {
        QFile file(i.file(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contenuto);
    }

    InstallazioneProva i;
    std::unique_ptr<SplasModule> pannello;
};

TEST_F(ProvaDinDon, UnSuonoNuovoPrendeLaFormaDiRete) {
    i.dialoghi.file = {u"/Suoni/din.wav"_s, u"D:\\Suoni\\din.wav"_s, std::nullopt};
    for (int volta = 0; volta < 3; ++volta)
        clicca(*pannello, "btnDD(3)");
    EXPECT_EQ(suoni().mid(2), QStringList({u"\\\\PC-PROVA\\Suoni\\din.wav"_s, u"\\\\PC-PROVA\\Suoni\\din.wav"_s}));
    EXPECT_EQ(i.dialoghi.richiesteFile.at(0).filtro, u"File Suono (*.wav) )|*.wav"_s);
    EXPECT_EQ(trova<QTableView>(*pannello, "gridDD").model()->rowCount(), 4);
}

TEST_F(ProvaDinDon, CancellaEPredefinito) {
    EXPECT_EQ(premi("btnDD(1)"), u"DinDon predefinito impostato !"_s);
    EXPECT_EQ(i.valore(u"SELECT dindon FROM Configurazione"_s), u"\\\\PC-PROVA\\a.wav"_s);
    EXPECT_EQ(premi("btnDD(2)", 0), u"Cancello voce selezionata ?"_s);
    EXPECT_EQ(suoni().size(), 2);
    QString domanda;
    QString esito;
    Guida guida;
    guida.messaggio(&domanda, 1).messaggio(&esito);
    clicca(*pannello, "btnDD(2)");
    EXPECT_EQ(esito, u"Voce cancellata !"_s);
    EXPECT_EQ(suoni().size(), 1);
    EXPECT_EQ(i.valore(u"SELECT dindon FROM Configurazione"_s), u"\\\\PC-PROVA\\a.wav"_s); // not tied
}

TEST_F(ProvaDinDon, LeCaselleScrivonoAlClic) {
    EXPECT_TRUE(trova<QCheckBox>(*pannello, "CheckBox1").isChecked());
    clicca(*pannello, "CheckBox1");
    EXPECT_EQ(i.valore(u"SELECT PlayDinDon FROM Configurazione"_s).toInt(), 0);
    for (const int atteso : {1, 2}) {
        clicca(*pannello, "cbAutoaccensioneFE");
        EXPECT_EQ(i.valore(u"SELECT TempoChiamata FROM Configurazione"_s).toInt(), atteso);
    }
    i.esegui(u"CREATE TRIGGER no BEFORE UPDATE ON Configurazione BEGIN SELECT RAISE(FAIL, 'no'); END"_s);
    clicca(*pannello, "CheckBox1");
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
    EXPECT_FALSE(trova<QCheckBox>(*pannello, "CheckBox1").isChecked());
}

TEST_F(ProvaDinDon, UnElencoVuotoNonFaNulla) {
    i.esegui(u"DELETE FROM DinDon"_s);
    clicca(*pannello, "PushButton1");
    for (const char *bottone : {"btnDD(1)", "btnDD(2)", "btnDD(4)"})
        clicca(*pannello, bottone);
    EXPECT_EQ(i.valore(u"SELECT dindon FROM Configurazione"_s), u"prima"_s);
}

TEST_F(ProvaDinDon, UnaTabellaMancanteSiDice) {
    i.esegui(u"DROP TABLE DinDon"_s);
    clicca(*pannello, "PushButton1");
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
}

TEST_F(ProvaDinDon, UnSuonoCheNonSiSenteDiceIlMotivo) {
    scrivi(u"vuoto.wav"_s, {});
    scrivi(u"testo.wav"_s, "non sono un suono");
    ASSERT_EQ(mkfifo(i.file(u"tubo.wav"_s).toUtf8().constData(), 0600), 0);
    for (const QString &nome : {u"manca.wav"_s, u"vuoto.wav"_s, u"testo.wav"_s, u"tubo.wav"_s, u"Suoni"_s}) {
        QElapsedTimer orologio;
        orologio.start();
        EXPECT_TRUE(prova(nome).startsWith(u"Il suono non si può provare !\n"_s)) << nome.toStdString();
        EXPECT_LT(orologio.elapsed(), 8000);
    }
    i.piattaforma.cartella = i.cartella();
    EXPECT_TRUE(prova(u"vuoto.wav"_s).contains(u"manca il componente"_s));
}

// An hour of sound: where the machine has an output for it, the panel takes no input and Esc ends the trial.
TEST_F(ProvaDinDon, UnOraDiSuonoFinisceConEsc) {
    const QByteArray testa = QByteArray::fromHex("52494646247ab80157415645666d7420100000000100010040"
                                                 "1f0000401f00000100080064617461007ab801");
    scrivi(u"ora.wav"_s, testa + QByteArray(3600 * 8000, char(128)));
    i.esegui(u"UPDATE DinDon SET DinDon='%1' WHERE ID=1"_s.arg(i.file(u"ora.wav"_s)));
    clicca(*pannello, "PushButton1");
    auto &casella = trova<QCheckBox>(*pannello, "CheckBox1");
    bool ferma = false;
    QTimer esc;
    QObject::connect(&esc, &QTimer::timeout, &esc, [&] {
        QTest::mouseClick(&casella, Qt::LeftButton, {}, QPoint(8, 8));
        ferma = casella.isChecked();
        QTest::keyClick(pannello.get(), Qt::Key_Escape);
    });
    QString righe;
    Guida guida;
    if (qEnvironmentVariableIsEmpty("PULSE_SERVER")) {
        guida.messaggio(&righe);
    } else {
        esc.start(1000);
    }
    clicca(*pannello, "btnDD(4)");
    EXPECT_TRUE(ferma || righe.contains(u"uscita audio"_s)) << righe.toStdString();
}

TEST_F(ProvaDinDon, Aspetto) {
    EXPECT_EQ(didascalieTagliate(*pannello), QStringList());
    EXPECT_EQ(campiSenzaNome(*pannello), QStringList());
    fotografa(*pannello, u"PaginaDinDon"_s);
}

} // namespace
} // namespace zuvora
