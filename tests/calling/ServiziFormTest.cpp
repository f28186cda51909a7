#include "calling/forms/UtentiServizi.h"
#include "kit/Stanza.h"
#include "store/Ostacoli.h"

namespace zuvora {
namespace {

struct ConServizi : Stanza {
    ConServizi() {
        i.esegui(u"UPDATE Servizi SET Servizio='Cassa', ServizioAttivo=1, Percorsofoto='x' WHERE ID=1;"
                 "UPDATE Servizi SET Servizio='Esami' WHERE ID=2;"
                 "UPDATE Servizi SET Servizio='nessun SERVIZIO' WHERE ID=3;"
                 "UPDATE Servizi SET Servizio=NULL, ServizioAttivo=NULL WHERE ID=4"_s);
    }
};
struct ProvaServizi : ConServizi {
    ProvaServizi() { form.show(); }
    void scegli(int riga) { grid.setCurrentIndex(grid.model()->index(riga, 2)); }
    void doppioClic(int riga) {
        const QPoint mezzo = grid.visualRect(grid.model()->index(riga, 2)).center();
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, mezzo);
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, mezzo);
    }
    QString servizio(int id) const {
        return i.righe(u"SELECT Servizio, ServizioAttivo, Percorsofoto FROM Servizi WHERE ID=%1"_s.arg(id)).join(u' ');
    }
    QString attivi() { return trova<QLineEdit>(form, "NrServizi").text(); }

    UtentiServizi form{i.ambiente, nullptr};
    QTableView &grid = trova<QTableView>(form, "grid");
};

TEST_F(ProvaServizi, UnServizioSiAccendeESpegne) {
    EXPECT_EQ(attivi(), u"1"_s);
    doppioClic(1);
    EXPECT_EQ(attivi(), u"2"_s);
    EXPECT_EQ(grid.currentIndex().row(), 0); // the refresh goes back to the first
    doppioClic(2);                           // a free row
    EXPECT_EQ(servizio(3), u"nessun SERVIZIO|0|"_s);
    grid.setFocus();
    const struct {
        int riga;
        Qt::Key tasto;
        QString dopo;
    } tasti[] = {{0, Qt::Key_Space, u"1"_s}, {0, Qt::Key_Return, u"2"_s}, {3, Qt::Key_Space, u"3"_s}};
    for (const auto &[riga, tasto, dopo] : tasti) {
        scegli(riga);
        QTest::keyClick(&grid, tasto);
        EXPECT_EQ(attivi(), dopo);
    }
    i.esegui(u"DELETE FROM Servizi"_s);
    UtentiServizi vuota(i.ambiente, nullptr);
    vuota.show();
    for (const char *bottone : {"ctButton2(1)", "ctButton2(2)"})
        clicca(vuota, bottone);
    QTest::keyClick(&trova<QTableView>(vuota, "grid"), Qt::Key_Space);
    EXPECT_EQ(trova<QLineEdit>(vuota, "NrServizi").text(), u"0"_s);
}

TEST_F(ProvaServizi, UnNomeSiCambia) {
    const QString lungo(10000, u'x');
    i.esegui(u"UPDATE Servizi SET Servizio='%1' WHERE ID=1"_s.arg(lungo));
    scegli(3);
    QString vuoto;
    guida.quando("GestioneUtenti", [this](QWidget &w) {
        auto &nome = trova<QLineEdit>(w, "text1(0)");
        EXPECT_EQ(nome.text(), u""_s); // Null
        EXPECT_TRUE(nome.hasFocus());
        EXPECT_GE(i.piattaforma.appuntiSvuotati, 1);
        QTest::keyClick(&nome, Qt::Key_Return);
        QTest::keyClicks(&nome, u"L'\"altro\" 100%"_s);
        clicca(w, "SA");
        QTest::keyClick(&nome, Qt::Key_Return);
    });
    guida.messaggio(&vuoto);
    clicca(form, "ctButton2(1)");
    EXPECT_EQ(vuoto, u"Inserire i dati prima di salvare !"_s);
    EXPECT_EQ(servizio(4), u"L'\"altro\" 100%|1|"_s);
    EXPECT_EQ(attivi(), u"2"_s);
    guida.quando("GestioneUtenti", [&](QWidget &w) {
        EXPECT_EQ(trova<QLineEdit>(w, "text1(0)").text(), lungo);
        clicca(w, "CBT(1)");
    });
    clicca(form, "ctButton2(1)");
    EXPECT_EQ(servizio(1), lungo + u"|1|x"_s);
}

// What another program does to the row while its name is being edited; and to the list when it is read again.
TEST_F(ProvaServizi, UnaRigaSparitaLasciaIlNomeScritto) {
    scegli(1);
    guida.quando("GestioneUtenti", [this](QWidget &w) {
        i.esegui(u"DELETE FROM Servizi WHERE ID=2"_s);
        auto &nome = trova<QLineEdit>(w, "text1(0)");
        nome.setText(u"Prelievi"_s);
        clicca(w, "CBT(1)");
        EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
        EXPECT_TRUE(w.isVisible());
        EXPECT_EQ(nome.text(), u"Prelievi"_s);
        clicca(w, "ctButton2(0)");
    });
    clicca(form, "ctButton2(1)");
    EXPECT_EQ(servizio(1), u"Cassa|1|x"_s);
    std::optional<prova::AltroProcesso> altro;
    guida.quando("GestioneUtenti", [&](QWidget &w) {
        i.esegui(u"DELETE FROM Servizi WHERE ID=3"_s); // the row that was opened is the one written
        trova<QLineEdit>(w, "text1(0)").setText(u"Prelievi"_s);
        clicca(w, "CBT(1)");
        altro.emplace(i.archivio(), "BEGIN EXCLUSIVE");
    });
    scegli(3);
    clicca(form, "ctButton2(1)");
    EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
    altro.reset();
    EXPECT_EQ(servizio(4), u"Prelievi|0|"_s);
    guida.quando("GestioneUtenti", [](QWidget &w) { w.close(); });
    clicca(form, "ctButton2(1)"); // reads the list first
    EXPECT_EQ(attivi(), u"1"_s);
}

TEST_F(ProvaServizi, UnaRigaSiLibera) {
    for (const auto &[risposta, dopo] : {std::pair{0, u"Cassa|1|x"_s}, {1, u"Nessun Servizio|0|"_s}}) {
        QString domanda;
        guida.messaggio(&domanda, risposta);
        clicca(form, "ctButton2(2)");
        EXPECT_EQ(domanda, u"Cancello voce selezionata ?"_s);
        EXPECT_EQ(servizio(1), dopo);
    }
    EXPECT_EQ(attivi(), u"0"_s);
}

} // namespace
} // namespace zuvora
