#include "library/forms/ImpostaCornice.h"
#include "kit/InstallazioneProva.h"
#include "library/Premi.h"
#include "shell/host/Grid.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaCornice : public testing::Test {
protected:
    QString decorazione(const QString &relativo) const { return i.file(u"ZuvoraDecorazioni/"_s + relativo); }
    InstallazioneProva i;
};

QString testo(const std::optional<SceltaDecorazione> &scelta) {
    return scelta ? scelta->percorso + (scelta->secondoPiano ? u" (dietro)"_s : QString()) : u"(nessuna)"_s;
}

TEST_F(ProvaCornice, LaPrimaRigaEGiaScelta) {
    i.esegui(u"UPDATE Decorazioni SET File='0.gif' WHERE ID=1"_s);
    QFile::copy(decorazione(u"Cornici/stondata.gif"_s), decorazione(u"Cornici/0.gif"_s));
    Guida guida;
    guida.quando("ImpostaCornice", [](QWidget &w) {
        EXPECT_EQ(trova<QLabel>(w, "Label1").text(), u"Decorazione 25"_s);
        clicca(w, "Btn(0)");
    });
    const auto scelta = apriImpostaCornice(i.ambiente, 25, nullptr);
    EXPECT_EQ(testo(scelta), decorazione(u"Cornici/0.gif"_s));
}

TEST_F(ProvaCornice, UnaRigaDiUnAltraCategoriaInSecondoPiano) {
    const QStringList banner = i.righe(u"SELECT File FROM Decorazioni WHERE Tipo=2 ORDER BY File"_s);
    ImpostaCornice form(i.ambiente, 3, nullptr);
    clicca(form, "RB1(1)");
    form.show();
    QTest::keyClick(&trova<Grid>(form, "grid"), Qt::Key_Down);
    clicca(form, "SecondoPiano");
    clicca(form, "Btn(0)");
    EXPECT_EQ(testo(form.applicata()), decorazione(u"Banner/"_s + banner.at(1)) + u" (dietro)"_s);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(ProvaCornice, SenzaSceltaNonCambiaNulla) {
    Guida guida;
    guida.premi("ImpostaCornice", "Btn(1)");
    EXPECT_FALSE(apriImpostaCornice(i.ambiente, 1, nullptr));
}

TEST_F(ProvaCornice, DoppioClicEInvioApplicano) {
    for (const bool mouse : {true, false}) {
        ImpostaCornice form(i.ambiente, 1, nullptr);
        form.show();
        auto &grid = trova<Grid>(form, "grid");
        const QPoint terza = grid.visualRect(grid.model()->index(2, 0)).center();
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, terza);
        EXPECT_TRUE(form.isVisible());
        if (mouse)
            QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, terza);
        else
            QTest::keyClick(&grid, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_FALSE(form.isVisible());
        EXPECT_TRUE(testo(form.applicata()).contains(grid.testo(2, 0))) << mouse;
    }
}

TEST_F(ProvaCornice, UnaCategoriaVuotaApplicaIlVuoto) {
    i.esegui(u"DELETE FROM Decorazioni"_s);
    ImpostaCornice form(i.ambiente, 1, nullptr);
    clicca(form, "Btn(0)");
    EXPECT_EQ(testo(form.applicata()), QString());
}

TEST_F(ProvaCornice, IlFileMancanteOIllegibileNonSiApplica) {
    const struct {
        const char *file;
        const char *motivo;
    } casi[] = {{" manca.gif", "File non trovato."},
                {" testo.gif", "Il file non è un'immagine leggibile."},
                {" cartella.gif", "Non è un file."}};
    QFile testo(decorazione(u"Cornici/ testo.gif"_s));
    ASSERT_TRUE(testo.open(QIODevice::WriteOnly) && testo.write("niente") > 0);
    testo.close();
    QDir().mkpath(decorazione(u"Cornici/ cartella.gif"_s));
    for (const auto &caso : casi) {
        i.esegui(u"UPDATE Decorazioni SET File='%1' WHERE ID=1"_s.arg(QString::fromUtf8(caso.file)));
        ImpostaCornice form(i.ambiente, 1, nullptr);
        const QString motivo = QString::fromUtf8(caso.motivo);
        EXPECT_EQ(anteprimaFinita(form).testo(), motivo + u'\n' + QString::fromUtf8(caso.file));
        EXPECT_EQ(premi(form, "Btn(0)"), u"Impossibile caricare l'immagine scelta !\n"_s + motivo);
        EXPECT_FALSE(form.applicata());
    }
}

TEST_F(ProvaCornice, Aspetto) {
    ImpostaCornice form(i.ambiente, 7, nullptr);
    auto &grid = trova<Grid>(form, "grid");
    form.show();
    EXPECT_EQ(didascalieTagliate(form), QStringList());
    EXPECT_EQ(campiSenzaNome(form), QStringList());
    fotografa(form);
    for (int riga = 0; riga < grid.Rows() && !grid.testo(riga, 0).startsWith(u"cornice_bianca"_s); ++riga)
        grid.seleziona(riga + 1);
    fotografa(form, u"ImpostaCornice-bianca"_s);
    i.esegui(u"UPDATE Decorazioni SET File=' manca con un nome lungo davvero lungo.gif' WHERE Tipo=1 AND ID=1"_s);
    clicca(form, "RB1(0)");
    fotografa(form, u"ImpostaCornice-manca"_s);
}

} // namespace
} // namespace zuvora
