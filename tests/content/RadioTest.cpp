#include "content/Premi.h"
#include "content/forms/PaginaRadio.h"
#include "kit/InstallazioneProva.h"
#include "store/Ostacoli.h"

#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct ProvaRadio : testing::Test {
    ProvaRadio() {
        i.esegui(u"DELETE FROM radio; INSERT INTO radio (NomeRadio, PercorsoURL) VALUES ('Zeta', 'http://z/'), "
                 "('Alfa', 'http://a/')"_s);
        finestra.resize(600, 420);
        pagina.apri();
        finestra.show();
    }
    QStringList righe() { return i.righe(u"SELECT NomeRadio, PercorsoURL FROM radio ORDER BY NomeRadio"_s); }
    // Opens the entry form with a button of the page and types into it; what the form then says goes into `detto`.
    void inserisci(const char *bottone, const QString &nome, const QString &url, QString *detto = nullptr) {
        guida.quando("GestioneRadio", [this, nome, url, detto](QWidget &form) {
            riempi(form, "text1(0)", nome);
            riempi(form, "text1(1)", url);
            if (detto != nullptr)
                guida.messaggio(detto);
            clic(form, "CBT(1)");
            if (form.isVisible())
                clic(form, "ctButton2(0)");
        });
        clic(pagina, bottone);
        EXPECT_TRUE(guida.finita());
    }
    // On focus all is selected: what is typed takes its place.
    static void riempi(QWidget &form, const char *nome, const QString &testo) {
        auto &campo = trova<QLineEdit>(form, nome);
        if (!campo.hasFocus())
            QTest::mouseClick(&campo, Qt::LeftButton);
        if (testo.isEmpty())
            QTest::keyClick(&campo, Qt::Key_Delete);
        else
            QTest::keyClicks(&campo, testo);
    }
    InstallazioneProva i;
    QWidget finestra;
    Apertura apertura{i.ambiente, &finestra, 3, true, {}};
    PaginaRadio pagina{apertura};
    Grid &grid = trova<Grid>(pagina, "GridRadio");
    Guida guida;
};

TEST_F(ProvaRadio, NewAndChanged) {
    inserisci("btnRadio(3)", u"Onda"_s, u"http://o/"_s);
    EXPECT_EQ(righe(), (QStringList{u"Alfa|http://a/"_s, u"Onda|http://o/"_s, u"Zeta|http://z/"_s}));
    EXPECT_EQ(grid.testo(grid.Row(), 0), u"Onda"_s);
    inserisci("btnRadio(1)", u"ONDA"_s, u"http://p/"_s);
    EXPECT_EQ(righe(), (QStringList{u"Alfa|http://a/"_s, u"ONDA|http://p/"_s, u"Zeta|http://z/"_s}));
}

TEST_F(ProvaRadio, Refused) {
    const struct {
        QString nome;
        QString url;
        QString detto;
    } casi[] = {
        {u""_s, u"http://x/"_s, u"Inserire i dati Utente prima di salvare !"_s},
        {u"Nuova"_s, u""_s, u"Inserire il percorso prima di salvare !"_s},
        {u"aLFa"_s, u"http://x/"_s, u"Voce già presente in archivio !"_s},
    };
    for (const auto &caso : casi) {
        QString detto;
        inserisci("btnRadio(3)", caso.nome, caso.url, &detto);
        EXPECT_EQ(detto, caso.detto);
    }
    EXPECT_EQ(righe().size(), 2);
}

TEST_F(ProvaRadio, DeletedAfterAQuestion) {
    EXPECT_EQ(premi(pagina, "btnRadio(2)", 0), u"Cancello voce selezionata ?"_s);
    EXPECT_EQ(righe().size(), 2);
    QString fine;
    guida.messaggio(nullptr, 1).messaggio(&fine);
    clic(pagina, "btnRadio(2)");
    EXPECT_EQ(fine, u"Voce cancellata !"_s);
    EXPECT_EQ(righe(), QStringList{u"Zeta|http://z/"_s});
    EXPECT_EQ(grid.Rows(), 1);
}

TEST_F(ProvaRadio, AnEmptyListDoesNothing) {
    i.esegui(u"DELETE FROM radio"_s);
    pagina.apri();
    for (const char *bottone : {"btnRadio(1)", "btnRadio(2)", "btnRadio(4)"})
        clic(pagina, bottone);
    EXPECT_EQ(grid.Rows(), 0);
}

TEST_F(ProvaRadio, TheTrialPlaysTheSelectedStation) {
    i.piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI);
    grid.seleziona(1);
    guida.quando("AnteprimaRadio", [](QWidget &form) {
        EXPECT_EQ(trova<QLabel>(form, "nome").text(), u"Zeta"_s);
        form.close();
    });
    clic(pagina, "btnRadio(4)");
    EXPECT_TRUE(guida.finita());
}

TEST_F(ProvaRadio, ALockedDatabaseKeepsWhatWasTyped) {
    guida.quando("GestioneRadio", [this](QWidget &form) {
        riempi(form, "text1(0)", u"Onda"_s);
        riempi(form, "text1(1)", u"http://o/"_s);
        {
            const prova::AltroProcesso altro(i.archivio(), "BEGIN IMMEDIATE");
            clic(form, "CBT(1)");
        }
        EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
        EXPECT_EQ(trova<QLineEdit>(form, "text1(0)").text(), u"Onda"_s);
        QTest::keyClick(&trova<QLineEdit>(form, "text1(1)"), Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    });
    clic(pagina, "btnRadio(3)");
    EXPECT_EQ(righe().size(), 3);
}

TEST_F(ProvaRadio, WhatWasNotStoredIsNotInTheList) {
    guida.quando("GestioneRadio", [this](QWidget &form) {
        riempi(form, "text1(0)", u"Onda"_s);
        riempi(form, "text1(1)", u"http://o/"_s);
        const prova::AltroProcesso altro(i.archivio(), "BEGIN IMMEDIATE");
        clic(form, "CBT(1)");
        EXPECT_FALSE(i.dialoghi.unicoMessaggio().isEmpty());
        clic(form, "ctButton2(0)");
    });
    clic(pagina, "btnRadio(3)");
    guida.quando("GestioneRadio", [](QWidget &form) {
        EXPECT_EQ(trova<QLineEdit>(form, "text1(0)").text(), u"Alfa"_s);
        form.close();
    });
    clic(pagina, "btnRadio(1)");
    EXPECT_TRUE(guida.finita());
}

TEST_F(ProvaRadio, Aspetto) {
    EXPECT_EQ(didascalieTagliate(finestra), QStringList());
    fotografa(finestra, u"RadioBox"_s);
    guida.quando("GestioneRadio", [](QWidget &form) {
        EXPECT_EQ(didascalieTagliate(form), QStringList());
        EXPECT_EQ(campiSenzaNome(form), QStringList());
        fotografa(form);
        form.close();
    });
    clic(pagina, "btnRadio(1)");
}

} // namespace
} // namespace zuvora
