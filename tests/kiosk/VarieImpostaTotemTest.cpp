#include "kiosk/forms/VarieImpostaTotem.h"
#include "kiosk/forms/Impostazione.h"
#include "kit/FintoSistema.h"
#include "kit/Fratello.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString nonRaggiungibile = u"Percorso TOTEM non impostato o TOTEM non raggiungibile !"_s;

// Notes the calls in their order.
class FinteEtichette : public Etichette {
public:
    FinteEtichette(QStringList &chiamate, const std::function<void()> &durante)
        : m_chiamate(chiamate), m_durante(durante) {}
    void LlDefineVariableStart() override { m_chiamate << u"Start"_s; }
    int LlDefineVariableExt(const QString &nome, const QString &contenuto, TipoEtichetta tipo) override {
        m_chiamate << u"%1=%2 %3"_s.arg(nome, contenuto).arg(static_cast<int>(tipo), 0, 16);
        return 0;
    }
    int LlDefineLayout(QWidget *finestra, const QString &titolo, int tipo, const QString &file) override {
        m_chiamate << u"%1: %2 %3 %4"_s.arg(finestra->objectName(), titolo).arg(tipo).arg(file);
        m_durante();
        return 0;
    }

private:
    QStringList &m_chiamate;
    const std::function<void()> &m_durante; // what happens while the designer is open
};

class ProvaVarie : public testing::Test {
protected:
    QString totem() const { return i.file(u"Totem/TotemZuvora.mdb"_s); }
    void percorso(const QString &cartella) {
        i.esegui(u"UPDATE ConfigurazioneTotem SET PercorsoReteTotem='%1'"_s.arg(cartella));
    }
    // The numbers as the kiosk's database has them.
    QString numero(const QString &colonna, const QString &tabella = u"Numerazione"_s) const {
        return Fratello(totem()).righe(u"SELECT %1 FROM %2"_s.arg(colonna, tabella)).value(0);
    }
    void aspettaProva(QWidget &form) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return trova<Label>(form, "Label2").Caption().isEmpty(); }));
    }
    InstallazioneProva i;
    Guida guida;
};

TEST_F(ProvaVarie, AKioskThatIsNotThereClosesTheFormWithItsBox) {
    for (const QString &cartella : {u""_s, i.file(u"manca"_s), i.file(u"Suoni"_s), u"\\\\ALTRO\\Totem"_s}) {
        percorso(cartella);
        VarieImpostaTotem(i.ambiente, nullptr).mostraModale();
        const auto box = i.dialoghi.prendiBox();
        ASSERT_EQ(box.size(), 1U) << cartella.toStdString();
        EXPECT_EQ(box.front().testo, nonRaggiungibile);
        EXPECT_EQ(box.front().titolo, u"Zuvora-Messaggio"_s);
        EXPECT_EQ(box.front().icona, Dialoghi::Icona::Informazione);
    }
    i.esegui(u"UPDATE ConfigurazioneTotem SET PercorsoReteTotem=NULL"_s);
    VarieImpostaTotem(i.ambiente, nullptr).mostraModale();
    EXPECT_EQ(i.dialoghi.unicoMessaggio(), nonRaggiungibile);
}

TEST_F(ProvaVarie, AKioskThatGoesAwayIsNoticedOnTheReturn) {
    percorso(u"\\\\localhost"_s + i.file(u"Totem"_s).replace(u'/', u'\\') + u'\\');
    VarieImpostaTotem form(i.ambiente, nullptr);
    guida.quando("VarieImpostaTotem",
                 [](QWidget &w) { QTest::mouseClick(&trova<QWidget>(w, "PB1(3)"), Qt::LeftButton); });
    guida.quando("Impostazione", [&](QWidget &w) {
        EXPECT_TRUE(QFile::rename(totem(), totem() + u"x"_s));
        QTest::mouseClick(&trova<QWidget>(w, "Na1(3)"), Qt::LeftButton);
        EXPECT_TRUE(i.dialoghi.unicoMessaggio().contains(u"TotemZuvora.mdb"_s));
        EXPECT_EQ(trova<Edit>(w, "Modifnr(3)").text(), u"0"_s);
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    form.mostraModale();
    EXPECT_EQ(i.dialoghi.unicoMessaggio(), nonRaggiungibile);
}

TEST_F(ProvaVarie, AKioskThatGoesAwayBeforeTheClickClosesTheForm) {
    for (const char *bottone : {"PB1(2)", "PB1(3)"}) {
        VarieImpostaTotem form(i.ambiente, nullptr);
        guida.quando("VarieImpostaTotem", [&](QWidget &w) {
            aspettaProva(w);
            EXPECT_TRUE(QFile::rename(totem(), totem() + u"x"_s));
            QTest::mouseClick(&trova<QWidget>(w, bottone), Qt::LeftButton);
        });
        form.mostraModale();
        EXPECT_EQ(i.dialoghi.unicoMessaggio(), nonRaggiungibile) << bottone;
        ASSERT_TRUE(QFile::rename(totem() + u"x"_s, totem()));
    }
}

TEST_F(ProvaVarie, AClickDuringTheTestWaitsForItsEnd) {
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->albero[totem()] = Specie::File;
    sistema->muta = totem();
    i.ambiente.percorsi = Percorsi(sistema);
    VarieImpostaTotem form(i.ambiente, nullptr);
    guida.quando("VarieImpostaTotem", [&](QWidget &w) {
        QTest::mouseClick(&trova<QWidget>(w, "PB1(3)"), Qt::LeftButton);
        sistema->risveglia();
    });
    guida.premi("Impostazione", "PB1(0)");
    guida.quando("VarieImpostaTotem", [](QWidget &w) { QTest::keyClick(&w, Qt::Key_Escape); });
    form.mostraModale();
}

TEST_F(ProvaVarie, TheTicketDesignerGetsItsCallsInOrder) {
    QStringList chiamate;
    std::function<void()> durante = [] {};
    VarieImpostaTotem form(i.ambiente, nullptr, [&]() -> EsitoComponenteEtichette {
        return {std::make_unique<FinteEtichette>(chiamate, durante), {}};
    });
    form.show();
    for (int volta = 0; volta < 2; ++volta) {
        aspettaProva(form);
        chiamate.clear();
        QTest::mouseClick(&trova<QWidget>(form, "PB1(2)"), Qt::LeftButton);
        ASSERT_EQ(chiamate.size(), 12) << chiamate.join(u'\n').toStdString();
        EXPECT_EQ(chiamate.first(), u"Start"_s);
        EXPECT_EQ(chiamate.at(1), u"Numero=152 8000000"_s);
        EXPECT_EQ(chiamate.at(4), u"Data=41550 4000002"_s);
        EXPECT_EQ(chiamate.last(), u"VarieImpostaTotem: Impostazione Modulo 1 "_s + i.file(u"Totem/Ticket.lbl"_s));
    }
    aspettaProva(form);
    durante = [this] { EXPECT_TRUE(QFile::rename(totem(), totem() + u"x"_s)); };
    QTest::mouseClick(&trova<QWidget>(form, "PB1(2)"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); })) << "gone on the return from the designer";
    EXPECT_EQ(i.dialoghi.unicoMessaggio(), nonRaggiungibile);
}

TEST_F(ProvaVarie, WithoutTheDesignerASentenceSaysSo) {
    VarieImpostaTotem form(i.ambiente, nullptr);
    form.show();
    aspettaProva(form);
    QTest::mouseClick(&trova<QWidget>(form, "PB1(2)"), Qt::LeftButton);
    EXPECT_TRUE(i.dialoghi.unicoMessaggio().contains(u"libzuvora-etichette.so"_s));
    EXPECT_TRUE(form.isVisible());
}

class ProvaImpostazione : public ProvaVarie {
protected:
    void SetUp() override {
        i.esegui(u"UPDATE Servizi SET Servizio='Esami' WHERE ID=3"_s);
        form = std::make_unique<Impostazione>(i.ambiente, i.file(u"Totem"_s), nullptr);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    Edit &casella(const char *nome) { return trova<Edit>(*form, nome); }
    void scrivi(const char *nome, const char *testo) {
        casella(nome).setFocus();
        QTest::keyClick(&casella(nome), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&casella(nome), QString::fromUtf8(testo));
    }
    std::unique_ptr<Impostazione> form;
};

TEST_F(ProvaImpostazione, EnterWritesTheOneNumber) {
    EXPECT_EQ(trova<Label>(*form, "Label2(3)").Caption(), u"Esami"_s);
    EXPECT_EQ(casella("Modifnr(3)").accessibleName(), u"Numero attuale, Esami"_s);
    scrivi("Modifnr(3)", "4x2");
    QTest::keyClick(&casella("Modifnr(3)"), Qt::Key_Enter, Qt::KeypadModifier);
    const auto box = i.dialoghi.prendiBox();
    ASSERT_EQ(box.size(), 1U);
    EXPECT_EQ(box.front().titolo + u": "_s + box.front().testo, u"Conferma: Numero Modificato !"_s);
    EXPECT_EQ(numero(u"P3"_s), u"42"_s);
    EXPECT_EQ(numero(u"P2"_s), u"0"_s);
    casella("Modifnr(3)").setText({});
    QTest::mouseClick(&trova<QWidget>(*form, "Na1(3)"), Qt::LeftButton);
    EXPECT_EQ(i.dialoghi.unicoMessaggio(), u"Numero Modificato !"_s);
    EXPECT_EQ(casella("Modifnr(3)").text(), u"0"_s);
    EXPECT_EQ(numero(u"P3"_s), u"0"_s);
}

TEST_F(ProvaImpostazione, TheColumnIsWrittenWholeWithZeroForWhatIsNoNumber) {
    scrivi("NumIniz(5)", "abc");
    scrivi("NumIniz(6)", "-3");
    QTest::keyClick(&casella("NumIniz(6)"), Qt::Key_Return);
    const auto box = i.dialoghi.prendiBox();
    ASSERT_EQ(box.size(), 1U);
    EXPECT_EQ(box.front().testo, u"Numerazione impostata !"_s);
    EXPECT_EQ(box.front().titolo, u"Conferma"_s);
    EXPECT_EQ(casella("NumIniz(5)").text(), u"0"_s);
    EXPECT_EQ(numero(u"P5||'|'||P6||'|'||P20"_s, u"NumerazioneIniziale"_s), u"0|-3|1"_s);
}

TEST_F(ProvaImpostazione, TakingTheFocusEmptiesTheClipboardAndSelectsAll) {
    const int prima = i.piattaforma.appuntiSvuotati;
    QTest::keyClick(&casella("Modifnr(1)"), Qt::Key_Tab); // to its button
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);    // to the first number
    EXPECT_EQ(form->focusWidget(), &casella("NumIniz(1)"));
    EXPECT_EQ(i.piattaforma.appuntiSvuotati, prima);
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab); // to the next line, not to the column's button
    EXPECT_EQ(form->focusWidget(), &casella("Modifnr(2)"));
    EXPECT_EQ(i.piattaforma.appuntiSvuotati, prima + 1);
    EXPECT_EQ(casella("Modifnr(2)").selectedText(), u"0"_s);
    QTest::mouseClick(&casella("Modifnr(3)"), Qt::LeftButton);
    EXPECT_EQ(i.piattaforma.appuntiSvuotati, prima + 2);
    EXPECT_EQ(casella("Modifnr(3)").selectedText(), u"0"_s);
}

TEST_F(ProvaImpostazione, AWriteThatFailsIsToldAndKeepsWhatWasTyped) {
    scrivi("Modifnr(4)", "123456789012345678901234567890");
    QTest::mouseClick(&trova<QWidget>(*form, "Na1(4)"), Qt::LeftButton);
    EXPECT_TRUE(i.dialoghi.unicoMessaggio().contains(u"P4"_s));
    EXPECT_EQ(casella("Modifnr(4)").text(), u"123456789012345678901234567890"_s);
    EXPECT_EQ(numero(u"P4"_s), u"0"_s);

    std::optional<Fratello> kiosk(totem());
    kiosk->esegui(u"BEGIN EXCLUSIVE"_s);
    scrivi("Modifnr(5)", "17");
    QTest::mouseClick(&trova<QWidget>(*form, "Na1(5)"), Qt::LeftButton);
    const QString detto = i.dialoghi.unicoMessaggio();
    EXPECT_TRUE(detto.contains(u"altro programma"_s)) << detto.toStdString();
    EXPECT_EQ(casella("Modifnr(5)").text(), u"17"_s);
    kiosk.reset();
    QTest::mouseClick(&trova<QWidget>(*form, "Na1(5)"), Qt::LeftButton);
    EXPECT_EQ(i.dialoghi.unicoMessaggio(), u"Numero Modificato !"_s);
    EXPECT_EQ(numero(u"P5"_s), u"17"_s);
}

TEST_F(ProvaImpostazione, AKioskThatFallsSilentIsToldInTime) {
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->albero[totem()] = Specie::File;
    i.ambiente.percorsi = Percorsi(sistema);
    form = std::make_unique<Impostazione>(i.ambiente, i.file(u"Totem"_s), nullptr);
    form->show();
    sistema->muta = totem();
    scrivi("Modifnr(1)", "9");
    bool rifiutata = false;
    QTimer::singleShot(0, form.get(), [&] { rifiutata = !form->close(); }); // by its frame, while it asks
    QTest::mouseClick(&trova<QWidget>(*form, "Na1(1)"), Qt::LeftButton);
    EXPECT_TRUE(rifiutata);
    EXPECT_TRUE(i.dialoghi.unicoMessaggio().contains(u"non risponde"_s));
    EXPECT_EQ(casella("Modifnr(1)").text(), u"9"_s);
    sistema->risveglia();
    // What was asked may still be done, and must be over before its file goes.
    EXPECT_TRUE(QTest::qWaitFor([this] { return numero(u"P1"_s) == u"9"_s; }));
}

} // namespace
} // namespace zuvora
