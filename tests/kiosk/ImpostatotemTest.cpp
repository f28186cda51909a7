#include "kiosk/forms/Impostatotem.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaImpostatotem : public testing::Test {
protected:
    void SetUp() override {
        i.esegui(u"UPDATE Servizi SET Servizio='Esami', ServizioAttivo=1 WHERE ID=3;"
                 "UPDATE Servizi SET Servizio='Cassa', ServizioAttivo=1 WHERE ID=1"_s);
    }
    QString riga(const QString &colonne) {
        return i.righe(u"SELECT %1 FROM ConfigurazioneTotem"_s.arg(colonne)).value(0);
    }
    void clic(const char *nome) { QTest::mouseClick(&trova<QWidget>(form(), nome), Qt::LeftButton); }
    Edit &casella(const char *nome) { return trova<Edit>(form(), nome); }
    void scrivi(const char *nome, const char *testo) {
        casella(nome).setFocus();
        QTest::keyClick(&casella(nome), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&casella(nome), QString::fromUtf8(testo));
    }
    Impostatotem &form() {
        if (!m_form) {
            m_form = std::make_unique<Impostatotem>(i.ambiente, anteprima, nullptr);
            m_form->show();
        }
        return *m_form;
    }
    void riapri() { m_form.reset(); }

    InstallazioneProva i;
    Guida guida;
    Misura anteprima;

private:
    std::unique_ptr<Impostatotem> m_form;
};

TEST_F(ProvaImpostatotem, SavesWhatTheBoxesHoldAndShowsItAgain) {
    scrivi("TitTot", "L'ora d'oro");
    scrivi("FE2", "24");
    QTest::mouseClick(&trova<QWidget>(form(), "RT(2)"), Qt::LeftButton, {}, {8, 9});
    QTest::mouseClick(&trova<QWidget>(form(), "Check2Data"), Qt::LeftButton, {}, {8, 9});
    EXPECT_EQ(riga(u"RisoluzioneTotem"_s), u"1"_s) << "nothing is stored before the save";
    QTest::keyClick(&casella("FE2"), Qt::Key_Return);
    EXPECT_EQ(riga(u"RisoluzioneTotem, TitoloTotem, FontSize, FontItalicData"_s), u"2|L'ora d'oro|24|1"_s);
    EXPECT_TRUE(conSpunta(trova<Button>(form(), "SiSalva")));
    riapri();
    EXPECT_EQ(didascalieTagliate(form()) + campiSenzaNome(form()), QStringList());
    EXPECT_TRUE(trova<RadioButton>(form(), "RT(2)").isChecked());
    EXPECT_EQ(trova<Label>(form(), "Label2").Caption(), u"2"_s);
    EXPECT_EQ(casella("TitTot").text(), u"L'ora d'oro"_s);
    EXPECT_EQ(casella("NrServizi").text(), u"2"_s);
    EXPECT_EQ(trova<ListBox>(form(), "Combo1").List(1), u"Esami"_s);
}

TEST_F(ProvaImpostatotem, ClosingLosesWhatWasNotSaved) {
    const QByteArray prima = i.contenuto();
    scrivi("TitTot", "altro");
    clic("elimina");
    clic("EliminaSfondo");
    EXPECT_EQ(casella("PRT").text(), QString());
    QTest::keyClick(&form(), Qt::Key_Escape);
    EXPECT_FALSE(form().isVisible());
    EXPECT_EQ(i.contenuto(), prima);
}

TEST_F(ProvaImpostatotem, TheFontDialogFillsItsGroupAndItsCancelNothing) {
    i.dialoghi.font = {FontScelto{u"Verdana"_s, 8.25, true, true}, std::nullopt};
    clic("PBData");
    EXPECT_EQ(casella("FontData").text(), u"Verdana"_s);
    EXPECT_EQ(casella("MisuraData").text(), u"8,25"_s);
    EXPECT_TRUE(trova<CheckBox>(form(), "Check1Data").isChecked());
    EXPECT_EQ(casella("FontTitolo").text(), u"Arial"_s);
    clic("PBData");
    ASSERT_TRUE(i.dialoghi.primoFont);
    EXPECT_EQ(i.dialoghi.primoFont->nome, u"Verdana"_s);
    EXPECT_EQ(i.dialoghi.primoFont->misura, 8.25);
    EXPECT_EQ(casella("FontData").text(), u"Verdana"_s);
    EXPECT_TRUE(trova<CheckBox>(form(), "Check2Data").isChecked());
}

TEST_F(ProvaImpostatotem, PaletteAndBoxAreTwoViewsOfOneColour) {
    i.dialoghi.colori = {0x0000FF};
    clic("CP1");
    EXPECT_EQ(casella("FE3").text(), u"255"_s);
    scrivi("FE3", "65280");
    EXPECT_EQ(trova<ColorPicker>(form(), "CP1").Colore(), 65280);
    scrivi("FE3", "rosso");
    EXPECT_EQ(trova<ColorPicker>(form(), "CP1").Colore(), 0);
}

TEST_F(ProvaImpostatotem, ThePathComesFromItsFormOnlyWhenConfirmed) {
    const QString altro =
        u"\\\\ALTRO-SERVER\\archivi_dell_ospedale\\"_s + u"sala_d'attesa_al_piano_terra\\"_s.repeated(3);
    i.dialoghi.cartelle = {altro, altro};
    // In one step: the form asks the disk before its dialog comes.
    const auto scegliE = [this](const char *bottone) {
        guida.quando("ImpoRete", [bottone](QWidget &w) {
            clicca(w, "cbt(1)");
            EXPECT_EQ(didascalieTagliate(w), QStringList());
            EXPECT_EQ(w.focusWidget(), &trova<QWidget>(w, "cbt(2)")) << "Enter confirms what was chosen";
            clicca(w, bottone);
        });
    };
    scegliE("cbt(0)");
    clic("PercorsoTotem");
    EXPECT_EQ(casella("PRT").text(), i.file(u"Totem"_s));
    scegliE("cbt(2)");
    clic("PercorsoTotem");
    EXPECT_EQ(casella("PRT").text(), altro);
    EXPECT_EQ(riga(u"PercorsoReteTotem"_s), i.file(u"Totem"_s));

    i.esegui(u"UPDATE ConfigurazioneTotem SET PercorsoReteTotem=NULL"_s);
    QString righe;
    guida.premi("ImpoRete", "cbt(2)").messaggio(&righe).premi("ImpoRete", "cbt(0)");
    clic("PercorsoTotem");
    EXPECT_EQ(righe, u"Selezionare un Percorso per gli archivi !"_s);
    EXPECT_EQ(casella("PRT").text(), altro);
}

TEST_F(ProvaImpostatotem, ThePreviewGetsTheScreenOfTheForm) {
    const auto misura = [this](QSize *vista) {
        guida.quando("LayoutTotem", [vista](QWidget &w) {
            *vista = w.size();
            QTest::keyClick(&w, Qt::Key_Escape);
        });
        clic("Crea");
    };
    QSize vista;
    QTest::mouseClick(&trova<QWidget>(form(), "RT(3)"), Qt::LeftButton, {}, {8, 9});
    misura(&vista);
    EXPECT_EQ(vista, QSize(800, 600)) << "before the first preview with an arrangement";
    QTest::mouseClick(&trova<QWidget>(form(), "RT(0)"), Qt::LeftButton, {}, {8, 9});
    misura(&vista);
    EXPECT_EQ(vista, QSize(1280, 1024));
    EXPECT_EQ(trova<ListBox>(form(), "Combo1").ListIndex(), 1) << "the last service";
    riapri();
    QTest::mouseClick(&trova<QWidget>(form(), "RT(3)"), Qt::LeftButton, {}, {8, 9});
    misura(&vista);
    EXPECT_EQ(vista, QSize(1280, 1024)) << "as the last preview of the program";
}

TEST_F(ProvaImpostatotem, WhatStoppedTheLoadIsTold) {
    i.esegui(u"ALTER TABLE ConfigurazioneTotem DROP COLUMN FontData"_s);
    form();
    std::vector<FintiDialoghi::Box> box;
    ASSERT_TRUE(QTest::qWaitFor([&] { return !(box = i.dialoghi.prendiBox()).empty(); }));
    EXPECT_TRUE(box.front().testo.contains(u"FontData"_s)) << box.front().testo.toStdString();
}

} // namespace
} // namespace zuvora
