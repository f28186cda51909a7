// The pages of the main panel: chime, types of the workstations.
#include "Composizione.h"
#include "calling/logic/Postazioni.h"
#include "calling/logic/Suoni.h"
#include "kit/Stanza.h"
#include "pannello/forms/SplasModule.h"
#include "store/Ostacoli.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QTableView>

namespace zuvora {
namespace {

struct ProvaPagineChiamata : Stanza {
    ProvaPagineChiamata() {
        i.esegui(u"DELETE FROM DinDon; INSERT INTO DinDon VALUES(1, '\\\\PC-PROVA\\a.wav'), (2, NULL);"
                 "UPDATE Configurazione SET PlayDinDon=1, dindon='prima';"
                 "UPDATE PostazioneUtente SET Posto1SS='ST', Posto2SS=NULL, Posto3SS='altro', Posto10SS='SG'"_s);
        pannello.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&pannello));
        clicca(pannello, "PushButton1");
    }
    QStringList suoni() const { return i.righe(u"SELECT DinDon FROM DinDon ORDER BY ID"_s); }
    // Makes a file of the installation's folder the first of the list.
    void elenca(const QString &nome) {
        i.esegui(u"UPDATE DinDon SET DinDon='%1' WHERE ID=1"_s.arg(i.file(nome)));
        clicca(pannello, "PushButton1");
    }
    SplasModule pannello{i.ambiente, vociDelPannello(), QUrl(u"https://www.zuvora.example/"_s)};
};

TEST_F(ProvaPagineChiamata, UnSuonoNuovoPrendeLaFormaDiRete) {
    i.dialoghi.file = {u"/Suoni/din.wav"_s, u"D:\\Suoni\\din.wav"_s, std::nullopt};
    for (int volta = 0; volta < 3; ++volta)
        clicca(pannello, "btnDD(3)");
    EXPECT_EQ(suoni().mid(2), QStringList(2, u"\\\\PC-PROVA\\Suoni\\din.wav"_s));
    EXPECT_EQ(i.dialoghi.richiesteFile.at(0).filtro, u"File Suono (*.wav) )|*.wav"_s);
    EXPECT_EQ(trova<QTableView>(pannello, "gridDD").model()->rowCount(), 4);
    for (const auto &[scelto, salvato] : {std::pair{u"\\\\PC2\\Suoni\\din.wav"_s, u"\\\\PC1PC2\\Suoni\\din.wav"_s},
                                          {u"suoni\\din.wav"_s, u"\\\\PC1oni\\din.wav"_s},
                                          {u"d"_s, u"\\\\PC1"_s}})
        EXPECT_EQ(percorsoSuono(scelto, u"PC1"), salvato);
}

TEST_F(ProvaPagineChiamata, CancellaPredefinitoEUso) {
    QString detto;
    guida.messaggio(&detto);
    QTest::keyClick(pannello.focusWidget(), Qt::Key_Return); // from the list
    EXPECT_EQ(detto, u"DinDon predefinito impostato !"_s);
    EXPECT_EQ(pannello.focusWidget()->objectName(), u"gridDD"_s);
    EXPECT_EQ(riga(u"dindon"_s), u"\\\\PC-PROVA\\a.wav"_s);
    EXPECT_EQ(cancella(pannello, "btnDD(2)"), u"Voce cancellata !"_s);
    EXPECT_EQ(suoni().size(), 1);
    EXPECT_EQ(riga(u"dindon"_s), u"\\\\PC-PROVA\\a.wav"_s); // not tied
    EXPECT_TRUE(trova<QCheckBox>(pannello, "CheckBox1").isChecked());
    clicca(pannello, "CheckBox1");
    EXPECT_EQ(riga(u"PlayDinDon"_s).toInt(), 0);
}

TEST_F(ProvaPagineChiamata, UnElencoVuotoOMancanteNonFaNulla) {
    for (const QString &sql : {u"DELETE FROM DinDon"_s, u"DROP TABLE DinDon"_s}) {
        i.esegui(sql);
        clicca(pannello, "PushButton1");
        EXPECT_EQ(i.dialoghi.prendiBox().size(), sql.startsWith(u"DROP"_s) ? 1U : 0U);
        for (const char *bottone : {"btnDD(1)", "btnDD(2)", "btnDD(4)"})
            clicca(pannello, bottone);
        EXPECT_EQ(riga(u"dindon"_s), u"prima"_s);
    }
}

TEST_F(ProvaPagineChiamata, UnSuonoCheNonSiSenteDiceIlMotivo) {
    ASSERT_TRUE(prova::creaCoda(i.file(u"tubo.wav"_s)));
    scrivi(u"vuoto.wav"_s, {});
    scrivi(u"testo.wav"_s, "non sono un suono");
    for (const QString &nome : {u"manca.wav"_s, u"vuoto.wav"_s, u"testo.wav"_s, u"tubo.wav"_s, u"Suoni"_s}) {
        QElapsedTimer orologio;
        orologio.start();
        elenca(nome);
        EXPECT_TRUE(premi(pannello, "btnDD(4)").startsWith(u"Il suono non si può provare !\n"_s)) << nome.toStdString();
        EXPECT_LT(orologio.elapsed(), 8000);
    }
    i.piattaforma.cartella = i.cartella();
    EXPECT_TRUE(premi(pannello, "btnDD(4)").contains(u"manca il componente"_s));
}

// An hour of sound: where the machine has an output for it, the panel takes no input and Esc ends the trial.
TEST_F(ProvaPagineChiamata, UnOraDiSuonoFinisceConEsc) {
    const QByteArray testa = QByteArray::fromHex("52494646247ab80157415645666d7420100000000100010040"
                                                 "1f0000401f00000100080064617461007ab801");
    scrivi(u"ora.wav"_s, testa + QByteArray(3600 * 8000, char(128)));
    elenca(u"ora.wav"_s);
    auto &casella = trova<QCheckBox>(pannello, "CheckBox1");
    bool ferma = false;
    QTimer esc;
    QObject::connect(&esc, &QTimer::timeout, &esc, [&] {
        QTest::mouseClick(&casella, Qt::LeftButton, {}, QPoint(8, 8));
        ferma = casella.isChecked();
        QTest::keyClick(&pannello, Qt::Key_Escape);
    });
    QString righe;
    if (qEnvironmentVariableIsEmpty("PULSE_SERVER"))
        guida.messaggio(&righe);
    else
        esc.start(1000);
    clicca(pannello, "btnDD(4)");
    EXPECT_TRUE(ferma || righe.contains(u"uscita audio"_s)) << righe.toStdString();
}

TEST_F(ProvaPagineChiamata, OgniPostazioneHaIlSuoTipo) {
    clicca(pannello, "PB1(10)");
    const auto accesi = [this] {
        QStringList tutti;
        for (int n = 0; n < 2 * numeroPostazioni; ++n)
            if (trova<QAbstractButton>(pannello, u"PosSS(%1)"_s.arg(n).toLatin1().constData()).isChecked())
                tutti << QString::number(n);
        return tutti.join(u' ');
    };
    EXPECT_EQ(accesi(), u"1 6 8 10 12 14 16 18"_s);
    clicca(pannello, "PosSS(3)");
    EXPECT_EQ(i.righe(u"SELECT Posto2SS, Posto3SS FROM PostazioneUtente"_s), QStringList{u"ST|altro"_s});
    auto &bottone = trova<QAbstractButton>(pannello, "PosSS(3)");
    bottone.setFocus();
    QTest::keyClick(&bottone, Qt::Key_Left);
    EXPECT_EQ(i.valore(u"SELECT Posto2SS FROM PostazioneUtente"_s), u"SG"_s);
    i.esegui(u"UPDATE PostazioneUtente SET Posto10SS='ST'"_s);
    clicca(pannello, "PB1(10)");
    EXPECT_EQ(accesi(), u"1 2 6 8 10 12 14 16 19"_s);
    for (int n = 0; n < 2 * numeroPostazioni; ++n) {
        ImpostaPostazione(i.cartella(), n);
        EXPECT_EQ(leggiPostazioni(i.cartella())[std::size_t(n / 2)], n);
    }
}

} // namespace
} // namespace zuvora
