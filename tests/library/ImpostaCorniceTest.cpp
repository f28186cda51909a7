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

TEST_F(ProvaCornice, UnClicSceglieInvioApplica) {
    ImpostaCornice form(i.ambiente, 1, nullptr);
    form.show();
    auto &grid = trova<Grid>(form, "grid");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(2, 0)).center());
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(&grid, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(testo(form.applicata()).contains(grid.testo(2, 0)));
}

TEST_F(ProvaCornice, UnaCategoriaVuotaApplicaIlVuoto) {
    i.esegui(u"DELETE FROM Decorazioni"_s);
    ImpostaCornice form(i.ambiente, 1, nullptr);
    clicca(form, "Btn(0)");
    EXPECT_EQ(testo(form.applicata()), QString());
}

TEST_F(ProvaCornice, IlFileMancanteOIllegibileNonSiApplica) {
    QDir().mkpath(decorazione(u"Cornici/ cartella.gif"_s));
    for (const auto &[file, motivo] :
         {std::pair(u" manca.gif"_s, u"File non trovato."_s), {u" cartella.gif"_s, u"Non è un file."_s}}) {
        i.esegui(u"UPDATE Decorazioni SET File='%1' WHERE ID=1"_s.arg(file));
        ImpostaCornice form(i.ambiente, 1, nullptr);
        EXPECT_EQ(anteprimaFinita(form).testo(), motivo + u'\n' + file);
        EXPECT_EQ(premi(form, "Btn(0)"), u"Impossibile caricare l'immagine scelta !\n"_s + motivo);
        EXPECT_FALSE(form.applicata());
    }
}

} // namespace
} // namespace zuvora
