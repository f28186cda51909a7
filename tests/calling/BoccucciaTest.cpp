#include "calling/forms/Boccuccia.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaBoccuccia : public testing::Test {
protected:
    void SetUp() override {
        i.valori.PercorsoApplicazione = i.cartella();
        i.piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI);
        scrivi("\"Numero @varnum@ alla @varpos@ \xe8\",1,1,0\r\n");
    }
    QString file() const { return i.file(u"FraseTTS.txt"_s); }
    void scrivi(const QByteArray &byte) {
        QFile f(file());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(byte);
    }
    QByteArray letto() const {
        QFile f(file());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void apri() {
        form = std::make_unique<Boccuccia>(i.ambiente, nullptr);
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
    }
    bool acceso(const char *nome) { return trova<QAbstractButton>(*form, nome).isChecked(); }
    QPlainTextEdit &frase() { return trova<QPlainTextEdit>(*form, "Frase"); }
    QString salva() {
        QString righe;
        Guida guida;
        guida.messaggio(&righe);
        clicca(*form, "ctButton2(1)");
        return righe;
    }

    InstallazioneProva i;
    std::unique_ptr<Boccuccia> form;
};

TEST_F(ProvaBoccuccia, LeggeESalvaGliStessiByte) {
    const struct {
        QByteArray byte;
        const char *accesi;
        QByteArray dopo;
    } casi[] = {
        {"\"Il @varnum@ \xe8\x80\",1,1,0\r\n", "Check1 RB1(0) VociPS(0)", {}},
        {"\"a\r\nb\xa0"
         "c\",0,0,1\r\n",
         "RB1(1) VociPS(1)",
         {}},
        {"\"altro\",7,8,9", "", "\"altro\",0,0,1\r\n"},
        {QByteArray("\"a\0b\",0,1,0\r\n", 13), "RB1(0) VociPS(0)", {}},
    };
    for (const auto &[byte, accesi, dopo] : casi) {
        scrivi(byte);
        apri();
        QStringList trovati;
        for (const char *nome : {"Check1", "RB1(0)", "RB1(1)", "VociPS(0)", "VociPS(1)"})
            if (acceso(nome))
                trovati << QString::fromLatin1(nome);
        EXPECT_EQ(trovati.join(u' '), QString::fromLatin1(accesi));
        clicca(*form, "ctButton2(1)");
        EXPECT_EQ(letto(), dopo.isEmpty() ? byte : dopo);
    }
}

TEST_F(ProvaBoccuccia, LaVariabileVaAlCursoreOAlPostoDellaSelezione) {
    scrivi("\"uno due\",0,1,0\r\n");
    apri();
    frase().moveCursor(QTextCursor::End);
    clicca(*form, "PB1(1)");
    EXPECT_EQ(frase().toPlainText(), u"uno due@varpos@ "_s);
    frase().moveCursor(QTextCursor::Start);
    frase().moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    clicca(*form, "PB1(0)");
    EXPECT_EQ(frase().toPlainText(), u" @varnum@  due@varpos@ "_s);
    EXPECT_TRUE(frase().hasFocus());
    QTest::keyClick(&frase(), Qt::Key_Return);
    EXPECT_EQ(frase().blockCount(), 2); // Enter makes a line
    QTest::keyClick(&frase(), Qt::Key_Tab);
    EXPECT_FALSE(frase().hasFocus());
}

TEST_F(ProvaBoccuccia, UnaFraseNonSalvabileResta) {
    apri();
    const QByteArray prima = letto();
    for (const QString &testo : {u"dice \"ciao\""_s, u"sole ☀"_s}) {
        frase().setPlainText(testo);
        EXPECT_TRUE(salva().startsWith(u"Frase non salvata !\n"_s));
        EXPECT_EQ(frase().toPlainText(), testo);
        EXPECT_EQ(letto(), prima);
    }
    QFile::remove(file());
    QDir().mkpath(file());
    frase().setPlainText(u"nuova"_s);
    EXPECT_TRUE(salva().startsWith(u"Frase non salvata !\n"_s));
}

TEST_F(ProvaBoccuccia, UnFileStranoSiDiceEUnoMancanteNo) {
    QFile::remove(file());
    apri();
    EXPECT_EQ(frase().toPlainText(), u""_s);
    const auto avvisoAllaApertura = [this] {
        QString righe;
        Guida guida;
        guida.messaggio(&righe);
        apri();
        EXPECT_TRUE(QTest::qWaitFor([&] { return guida.finita(); }));
        return righe;
    };
    const QString inizio = u"La frase salvata non si può leggere !\n"_s;
    scrivi(QByteArray(10 * 1024 * 1024, 'x'));
    EXPECT_TRUE(avvisoAllaApertura().startsWith(inizio));
    QFile::remove(file());
    ASSERT_EQ(mkfifo(file().toUtf8().constData(), 0600), 0);
    EXPECT_TRUE(avvisoAllaApertura().startsWith(inizio));
}

TEST_F(ProvaBoccuccia, LaVoceDiSistemaSpegneLaScelta) {
    apri();
    auto &femminile = trova<QAbstractButton>(*form, "RB1(0)");
    clicca(*form, "RB1(1)");
    clicca(*form, "VociPS(1)");
    EXPECT_FALSE(femminile.isEnabled());
    clicca(*form, "ctButton2(1)");
    EXPECT_TRUE(letto().endsWith("\",1,0,1\r\n"));
    clicca(*form, "VociPS(0)");
    EXPECT_TRUE(femminile.isEnabled());
    EXPECT_TRUE(acceso("RB1(1)"));
}

// The trial changes neither sentence nor file; what it says stands in FE1.
TEST_F(ProvaBoccuccia, LaProvaEspandeEDiceComeVa) {
    apri();
    const QByteArray prima = letto();
    clicca(*form, "PushButton1");
    EXPECT_EQ(trova<QPlainTextEdit>(*form, "FE1").toPlainText(), u"Numero 152 alla Postazione 5 è"_s);
    EXPECT_EQ(frase().toPlainText(), u"Numero @varnum@ alla @varpos@ è"_s);
    EXPECT_EQ(letto(), prima);
    auto &stato = trova<Label>(*form, "Stato");
    EXPECT_TRUE(QTest::qWaitFor([&] { return stato.Caption().startsWith(u"Lettura "_s); }, 10000));
    i.piattaforma.cartella = i.cartella();
    clicca(*form, "PushButton1");
    EXPECT_TRUE(stato.Caption().contains(u"manca il componente"_s)) << stato.Caption().toStdString();
}

// A program of the test's own in the place of the desktop's speech service.
TEST_F(ProvaBoccuccia, LaVoceDiSistemaParlaOppureDiceIlMotivo) {
    const QByteArray vecchio = qgetenv("PATH");
    const QString programma = i.file(u"spd-say"_s);
    const auto installa = [&](const QByteArray &testo) {
        QFile f(programma);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("#!/bin/sh\n" + testo);
        f.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    apri();
    clicca(*form, "VociPS(1)");
    auto &stato = trova<Label>(*form, "Stato");
    const auto attendi = [&](QStringView testo) {
        return QTest::qWaitFor([&] { return stato.Caption().contains(testo); }, 10000);
    };
    qputenv("PATH", i.cartella().toUtf8());
    clicca(*form, "PushButton1");
    EXPECT_TRUE(attendi(u"non è installato")) << stato.Caption().toStdString();
    installa("echo \"$@\" > " + i.file(u"detto"_s).toUtf8());
    clicca(*form, "PushButton1");
    EXPECT_TRUE(attendi(u"finita")) << stato.Caption().toStdString();
    QFile detto(i.file(u"detto"_s));
    ASSERT_TRUE(detto.open(QIODevice::ReadOnly));
    EXPECT_TRUE(detto.readAll().endsWith("-- Numero 152 alla Postazione 5 \xc3\xa8\n"));
    installa("echo Nessun servizio >&2; exit 1");
    clicca(*form, "PushButton1");
    EXPECT_TRUE(attendi(u"Nessun servizio")) << stato.Caption().toStdString();
    installa("[ \"$1\" = --cancel ] || exec /bin/sleep 60");
    clicca(*form, "PushButton1");
    EXPECT_TRUE(attendi(u"in corso")) << stato.Caption().toStdString();
    form.reset(); // at once
    qputenv("PATH", vecchio);
}

TEST_F(ProvaBoccuccia, LaGuidaSiApreESiChiude) {
    apri();
    auto &guida = trova<QTextEdit>(*form, "RT2");
    const int chiusa = form->height();
    EXPECT_FALSE(guida.isVisible());
    clicca(*form, "ctButton2(2)");
    EXPECT_EQ(trova<QAbstractButton>(*form, "ctButton2(2)").text(), u"Chiudi Info"_s);
    EXPECT_TRUE(guida.isVisible());
    EXPECT_TRUE(guida.toPlainText().contains(u"@varnum@"_s));
    EXPECT_EQ(didascalieTagliate(*form), QStringList());
    fotografa(*form, u"BoccucciaAperta"_s);
    clicca(*form, "ctButton2(2)");
    EXPECT_EQ(form->height(), chiusa);
    EXPECT_FALSE(guida.isVisible());
    QFile::remove(i.file(u"th19.rtf"_s));
    apri();
    EXPECT_TRUE(trova<QTextEdit>(*form, "RT2").toPlainText().startsWith(u"Le informazioni non si possono"_s));
}

TEST_F(ProvaBoccuccia, Aspetto) {
    apri();
    EXPECT_EQ(didascalieTagliate(*form), QStringList());
    EXPECT_EQ(campiSenzaNome(*form), QStringList());
    fotografa(*form);
}

} // namespace
} // namespace zuvora
