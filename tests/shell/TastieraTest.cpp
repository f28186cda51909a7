// Keys, focus and activation as every form of the program has them.
#include "shell/host/Tastiera.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "shell/host/Form.h"
#include "shell/host/MsgForm.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class FormTasti : public Form {
public:
    explicit FormTasti(const Ambiente &a, const char *nome = "FormTasti") : Form(a, nome, "", {6000, 6000}, nullptr) {
        Salva.setRuolo(Ruolo::Principale);
        Campo.setFiltro(soloCifre);
        alClic(Chiudi, [this] { premuti << u"Chiudi"_s; });
        alClic(Salva, [this] { premuti << u"Salva"_s; });
        alClic(SalvaGruppo, [this] { premuti << u"SalvaGruppo"_s; });
        alClic(Accanto, [this] { premuti << u"Accanto"_s; });
    }
    QString prendi() { return std::exchange(premuti, {}).join(u'+'); }
    QString fuoco() const { return focusWidget() == nullptr ? u"-"_s : focusWidget()->objectName(); }
    int attivazioni = 0;
    std::function<void()> allAttivazione;
    QStringList premuti;

    // Declared out of reading order on purpose.
    Button Chiudi{this, "Chiudi", "C&hiudi", {4000, 5000, 1000, 330}};
    Button Salva{this, "Salva", "&Salva", {2800, 5010, 1000, 330}};
    GroupBox Gruppo{this, "Gruppo", "", {120, 2000, 5000, 1200}};
    Button SalvaGruppo{&Gruppo, "SalvaGruppo", "Salva gruppo", {3000, 240, 1200, 330}};
    Edit NelGruppo{&Gruppo, "NelGruppo", {120, 240, 1200, 285}};
    Schiera<RadioButton> RB1{this, "RB1", {{0, "a", {120, 3400, 900, 255}}, {1, "b", {1200, 3400, 900, 255}}}};
    Schiera<RadioButton> RB2{this, "RB2", {{3, "c", {120, 3800, 900, 255}}, {5, "d", {1200, 3800, 900, 255}}}};
    GruppoRadio Primo{RB1};
    GruppoRadio Secondo{RB2};
    Edit SolaLettura{this, "SolaLettura", {120, 120, 1200, 285}};
    Edit Campo{this, "Campo", {120, 600, 1200, 285}};
    Button Accanto{this, "Accanto", "Accanto", {1500, 580, 1200, 330}};

protected:
    void attivata() override {
        ++attivazioni;
        if (allAttivazione)
            allAttivazione();
    }
};

struct Tasti : testing::Test {
    InstallazioneProva prova;
    Guida guida;
    FormTasti form{prova.ambiente};
    void mostra() {
        form.SolaLettura.setSolaLettura(u"Si cambia altrove"_s);
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    void premi(int tasto, Qt::KeyboardModifiers modi = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(tasto), modi);
    }
};

TEST_F(Tasti, InvioPremeIlBottoneGiusto) {
    mostra();
    bottoneDi(form.Gruppo, form.SalvaGruppo);
    const struct {
        QWidget &fuoco;
        const char *preme;
    } casi[] = {{form.Campo, "Salva"},   {form.SolaLettura, "Salva"},       {form.NelGruppo, "SalvaGruppo"},
                {form.Chiudi, "Chiudi"}, {form.SalvaGruppo, "SalvaGruppo"}, {form.RB1(0), "Salva"}};
    for (const auto &caso : casi)
        for (const int tasto : {int(Qt::Key_Return), int(Qt::Key_Enter)}) {
            caso.fuoco.setFocus();
            premi(tasto, tasto == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
            EXPECT_EQ(form.prendi().toStdString(), caso.preme) << caso.fuoco.objectName().toStdString();
        }
    bottoneDi(form.Campo, form.Accanto);
    form.Campo.setFocus();
    premi(Qt::Key_Return);
    EXPECT_EQ(form.prendi(), u"Accanto"_s);
    form.Accanto.setEnabled(false);
    premi(Qt::Key_Return);
    EXPECT_EQ(form.prendi(), QString()) << "what can't be pressed with the mouse is not pressed by Enter";
    premi(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(form.prendi(), QString());
}

TEST_F(Tasti, DiDueAzioniPrincipaliValeQuellaAccanto) {
    form.Accanto.setRuolo(Ruolo::Principale);
    mostra();
    form.Campo.setFocus();
    premi(Qt::Key_Return);
    EXPECT_EQ(form.prendi(), u"Accanto"_s);
}

TEST_F(Tasti, InvioTenutoPremutoPremeUnaVolta) {
    mostra();
    form.Salva.setFocus();
    premi(Qt::Key_Return);
    QKeyEvent ripetuto(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QApplication::sendEvent(&form.Salva, &ripetuto);
    EXPECT_EQ(form.prendi(), u"Salva"_s);
}

TEST_F(Tasti, TabNellOrdineDiLettura) {
    form.Primo.setScelto(1);
    mostra();
    EXPECT_EQ(form.fuoco(), u"Campo"_s) << "the first field that can be edited";
    QStringList giro;
    do {
        giro << form.fuoco();
        premi(Qt::Key_Tab);
    } while (form.fuoco() != u"Campo" && giro.size() < 20);
    EXPECT_EQ(giro.join(u' ').toStdString(),
              "Campo Accanto NelGruppo SalvaGruppo RB1(1) RB2(3) Salva Chiudi SolaLettura");
    premi(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(form.fuoco(), u"SolaLettura"_s);
}

TEST_F(Tasti, SchiereNelloStessoContenitoreNonSiToccano) {
    mostra();
    QSignalSpy cambi(&form.Primo, &GruppoRadio::cambiato);
    EXPECT_EQ(form.Primo.scelto(), -1);
    QTest::mouseClick(&form.RB1(0), Qt::LeftButton, {}, QPoint(5, 8));
    QTest::mouseClick(&form.RB2(5), Qt::LeftButton, {}, QPoint(5, 8));
    EXPECT_EQ(form.Primo.scelto(), 0);
    EXPECT_EQ(form.Secondo.scelto(), 5);
    form.RB1(0).setFocus();
    premi(Qt::Key_Right);
    EXPECT_EQ(form.Primo.scelto(), 1);
    EXPECT_EQ(form.Secondo.scelto(), 5);
    EXPECT_EQ(cambi.size(), 2);
    form.Primo.setScelto(-1);
    EXPECT_FALSE(form.RB1(0).isChecked() || form.RB1(1).isChecked()) << "none again";
    form.Primo.setScelto(1);
    EXPECT_EQ(form.Primo.scelto(), 1);
    EXPECT_EQ(cambi.size(), 2) << "what the program sets is no choice of the user";
}

TEST_F(Tasti, AttivataDopoLAperturaEAOgniRitorno) {
    mostra();
    EXPECT_EQ(form.attivazioni, 1);
    guida.premi("MsgForm", "PB1(0)");
    form.avvisa(u"Uno"_s);
    EXPECT_EQ(form.attivazioni, 1) << "not inside the handler that opened the message";
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.attivazioni == 2; }));
    // The window manager's own activations count for nothing.
    QWidget altra;
    altra.show();
    altra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&altra));
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QCoreApplication::processEvents();
    EXPECT_EQ(form.attivazioni, 2);
}

TEST_F(Tasti, DueFormDiFilaUnaSolaAttivazioneDopoLUltima) {
    mostra();
    int durante = -1;
    guida.premi("MsgForm", "PB1(0)").quando("MsgForm", [&](QWidget &w) {
        durante = form.attivazioni;
        clicca(w, "PB1(0)");
    });
    form.avvisa(u"Uno"_s);
    form.avvisa(u"Due"_s);
    EXPECT_EQ(durante, 1) << "not while another form stands over this one";
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.attivazioni > 1; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(form.attivazioni, 2);
}

// Would hang for ever, were activation told before the loop of the modal form runs.
TEST_F(Tasti, UnaFormCheSiScaricaAllAttivazioneSiChiude) {
    form.allAttivazione = [&] {
        form.avvisa(u"Percorso TOTEM non raggiungibile !"_s); // its return raises nothing anew
        form.scarica();
    };
    guida.premi("MsgForm", "PB1(0)");
    form.mostraModale();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.attivazioni, 1);
}

TEST_F(Tasti, UnaDomandaStaSullaRispostaSicura) {
    mostra();
    guida.quando("MsgForm", [&](QWidget &w) { QTest::keyClick(w.focusWidget(), Qt::Key_Return); });
    EXPECT_FALSE(form.conferma(u"Cancello voce selezionata ?"_s));
    guida.quando("MsgForm", [&](QWidget &w) { QTest::keyClick(&w, Qt::Key_Escape); });
    EXPECT_FALSE(form.conferma(u"Cancello voce selezionata ?"_s));
    guida.quando("MsgForm", [&](QWidget &w) {
        trova<QWidget>(w, "PB1(1)").setFocus();
        QTest::keyClick(w.focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    });
    EXPECT_TRUE(form.conferma(u"Cancello voce selezionata ?"_s));
}

} // namespace
} // namespace zuvora
