#include "calling/forms/UtentiServizi.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaServizi : public testing::Test {
protected:
    ProvaServizi() {
        i.esegui(u"UPDATE Servizi SET Servizio='Cassa', ServizioAttivo=1, Percorsofoto='x' WHERE ID=1;"
                 "UPDATE Servizi SET Servizio='Esami' WHERE ID=2;"
                 "UPDATE Servizi SET Servizio=NULL, ServizioAttivo=NULL WHERE ID=4"_s);
    }
    void apri() {
        form = std::make_unique<UtentiServizi>(i.ambiente, nullptr);
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
    }
    QTableView &grid() { return trova<QTableView>(*form, "grid"); }
    void scegli(int riga) { grid().setCurrentIndex(grid().model()->index(riga, 2)); }
    QPoint mezzo(int riga) { return grid().visualRect(grid().model()->index(riga, 2)).center(); }
    void doppioClic(int riga) {
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, mezzo(riga));
        QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, mezzo(riga));
    }
    QString riga(int id) const {
        return i.righe(u"SELECT Servizio, ServizioAttivo, Percorsofoto FROM Servizi WHERE ID=%1"_s.arg(id)).join(u'|');
    }
    QString attivi() { return trova<QLineEdit>(*form, "NrServizi").text(); }

    InstallazioneProva i;
    std::unique_ptr<UtentiServizi> form;
};

TEST_F(ProvaServizi, IlDoppioClicAccendeESpegne) {
    apri();
    EXPECT_EQ(attivi(), u"1"_s);
    doppioClic(1);
    EXPECT_EQ(attivi(), u"2"_s);
    EXPECT_EQ(grid().currentIndex().row(), 0); // the refresh goes back to the first
    EXPECT_EQ(i.valore(u"SELECT ServizioAttivo FROM Servizi WHERE ID=2"_s).toInt(), 1);
    doppioClic(2); // a free row
    EXPECT_EQ(attivi(), u"2"_s);
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, mezzo(1));
    EXPECT_EQ(attivi(), u"2"_s);
}

TEST_F(ProvaServizi, LaTastieraAccendeESpegne) {
    apri();
    grid().setFocus();
    for (const auto &[tasto, dopo] : {std::pair{Qt::Key_Space, u"0"_s}, {Qt::Key_Return, u"1"_s}}) {
        scegli(0);
        QTest::keyClick(&grid(), tasto);
        EXPECT_EQ(attivi(), dopo);
    }
}

TEST_F(ProvaServizi, UnNomeSiCambia) {
    apri();
    scegli(3);
    Guida guida;
    QString vuoto;
    guida.quando("GestioneUtenti", [this](QWidget &w) {
        auto &nome = trova<QLineEdit>(w, "text1(0)");
        EXPECT_EQ(nome.text(), u""_s); // Null
        EXPECT_TRUE(nome.hasFocus());
        EXPECT_GE(i.piattaforma.appuntiSvuotati, 1);
        EXPECT_EQ(didascalieTagliate(w), QStringList());
        EXPECT_EQ(campiSenzaNome(w), QStringList());
        fotografa(w);
        QTest::keyClick(&nome, Qt::Key_Return);
        QTest::keyClicks(&nome, u"L'\"altro\" 100%"_s);
        clicca(w, "SA");
        QTest::keyClick(&nome, Qt::Key_Return);
    });
    guida.messaggio(&vuoto);
    clicca(*form, "ctButton2(1)");
    EXPECT_EQ(vuoto, u"Inserire i dati prima di salvare !"_s);
    EXPECT_EQ(i.righe(u"SELECT Servizio, ServizioAttivo FROM Servizi WHERE ID=4"_s),
              i.righe(u"SELECT 'L''\"altro\" 100%', 1"_s));
    EXPECT_EQ(attivi(), u"2"_s);
}

// What another program does to the row while its name is being edited.
TEST_F(ProvaServizi, UnaRigaSparitaLasciaIlNomeScritto) {
    apri();
    scegli(1);
    Guida guida;
    guida.quando("GestioneUtenti", [this](QWidget &w) {
        i.esegui(u"DELETE FROM Servizi WHERE ID=2"_s);
        trova<QLineEdit>(w, "text1(0)").setText(u"Prelievi"_s);
        clicca(w, "CBT(1)");
        EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
        EXPECT_TRUE(w.isVisible());
        EXPECT_EQ(trova<QLineEdit>(w, "text1(0)").text(), u"Prelievi"_s);
        clicca(w, "ctButton2(0)");
    });
    clicca(*form, "ctButton2(1)");
    EXPECT_EQ(i.valore(u"SELECT count(*) FROM Servizi WHERE Servizio='Prelievi'"_s).toInt(), 0);
}

TEST_F(ProvaServizi, UnaRigaSiLibera) {
    apri();
    const QString prima = riga(1);
    for (const int risposta : {0, 1}) {
        QString domanda;
        Guida guida;
        guida.messaggio(&domanda, risposta);
        clicca(*form, "ctButton2(2)");
        EXPECT_EQ(domanda, u"Cancello voce selezionata ?"_s);
        if (risposta == 0) {
            EXPECT_EQ(riga(1), prima);
        }
    }
    EXPECT_EQ(i.righe(u"SELECT ID, Servizio, ServizioAttivo, Percorsofoto FROM Servizi WHERE ID=1"_s),
              i.righe(u"SELECT 1, 'Nessun Servizio', 0, ''"_s));
    EXPECT_EQ(attivi(), u"0"_s);
}

TEST_F(ProvaServizi, DopoUnaScritturaFallitaSiContinua) {
    apri();
    i.esegui(u"CREATE TRIGGER no BEFORE UPDATE ON Servizi BEGIN SELECT RAISE(FAIL, 'no'); END"_s);
    doppioClic(1);
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
    EXPECT_EQ(attivi(), u"1"_s);
    i.esegui(u"DROP TRIGGER no"_s);
    doppioClic(1);
    EXPECT_EQ(attivi(), u"2"_s);
}

TEST_F(ProvaServizi, UnaTabellaVuotaNonFaNulla) {
    i.esegui(u"DELETE FROM Servizi"_s);
    apri();
    EXPECT_EQ(attivi(), u"0"_s);
    clicca(*form, "ctButton2(1)");
    clicca(*form, "ctButton2(2)");
    QTest::keyClick(&grid(), Qt::Key_Space);
    EXPECT_EQ(attivi(), u"0"_s);
}

TEST_F(ProvaServizi, UnNomeLungoSiVedeESiTiene) {
    const QString lungo(10000, u'x');
    i.esegui(u"UPDATE Servizi SET Servizio='%1' WHERE ID=1"_s.arg(lungo));
    apri();
    Guida guida;
    guida.quando("GestioneUtenti", [&](QWidget &w) {
        EXPECT_EQ(trova<QLineEdit>(w, "text1(0)").text(), lungo);
        clicca(w, "CBT(1)");
    });
    clicca(*form, "ctButton2(1)");
    EXPECT_EQ(i.valore(u"SELECT length(Servizio) FROM Servizi WHERE ID=1"_s).toInt(), 10000);
}

TEST_F(ProvaServizi, Aspetto) {
    apri();
    EXPECT_EQ(didascalieTagliate(*form), QStringList());
    EXPECT_EQ(campiSenzaNome(*form), QStringList());
    fotografa(*form);
}

} // namespace
} // namespace zuvora
