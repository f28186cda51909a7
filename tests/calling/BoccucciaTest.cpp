#include "calling/forms/Boccuccia.h"
#include "kit/Stanza.h"
#include "store/Ostacoli.h"

namespace zuvora {
namespace {

struct ProvaBoccuccia : Stanza {
    ProvaBoccuccia() { registra("\"Numero @varnum@ alla @varpos@ \xe8\",1,1,0\r\n"); }
    QString file() const { return i.file(u"FraseTTS.txt"_s); }
    void registra(const QByteArray &byte) const { scrivi(file(), byte); }
    QByteArray letto() const { return leggi(file()); }
    void apri() {
        form = apriForm<Boccuccia>(i.ambiente, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
    }
    bool acceso(const char *nome) { return trova<QAbstractButton>(*form, nome).isChecked(); }
    QPlainTextEdit &frase() { return trova<QPlainTextEdit>(*form, "Frase"); }
    QString salva() { return premi(*form, "ctButton2(1)"); }

    std::unique_ptr<Boccuccia> form;
};

TEST_F(ProvaBoccuccia, LeggeESalvaGliStessiByte) {
    const struct {
        QByteArray byte;
        QString accesi;
        QByteArray dopo;
    } casi[] = {
        {"\"Il @varnum@ \xe8\x80\",1,1,0\r\n", u"Check1 RB1(0) VociPS(0)"_s, {}},
        {"\"a\r\nb\",0,0,1\r\n", u"RB1(1) VociPS(1)"_s, {}},
        {"\"altro\",7,8,9", u""_s, "\"altro\",0,0,1\r\n"},
        {QByteArray("\"a\0b\",0,1,0\r\n", 13), u"RB1(0) VociPS(0)"_s, {}},
    };
    for (const auto &[byte, accesi, dopo] : casi) {
        registra(byte);
        apri();
        QStringList trovati;
        for (const char *nome : {"Check1", "RB1(0)", "RB1(1)", "VociPS(0)", "VociPS(1)"})
            if (acceso(nome))
                trovati << QString::fromLatin1(nome);
        EXPECT_EQ(trovati.join(u' '), accesi);
        clicca(*form, "ctButton2(1)");
        EXPECT_EQ(letto(), dopo.isEmpty() ? byte : dopo);
    }
}

TEST_F(ProvaBoccuccia, LaVariabileVaAlCursoreOAlPostoDellaSelezione) {
    registra("\"uno due\",0,1,0\r\n");
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
    for (const QString &testo : {u"dice \"ciao\""_s, u"sole ☀"_s, u"emoji 😀"_s}) {
        frase().setPlainText(testo);
        EXPECT_TRUE(salva().startsWith(u"Frase non salvata !\n"_s));
        EXPECT_EQ(frase().toPlainText(), testo);
        EXPECT_EQ(letto(), prima);
    }
    frase().setPlainText(u"nuova"_s);
    {
        const prova::LimiteFile pieno(8); // bytes
        std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_TRUE(salva().startsWith(u"Frase non salvata !\n"_s));
    }
    EXPECT_EQ(letto(), prima);
    QFile::remove(file());
    QDir().mkpath(file());
    EXPECT_TRUE(salva().startsWith(u"Frase non salvata !\n"_s));
    EXPECT_EQ(frase().toPlainText(), u"nuova"_s);
}

TEST_F(ProvaBoccuccia, UnFileStranoSiDiceEUnoMancanteNo) {
    QFile::remove(file());
    apri();
    EXPECT_EQ(frase().toPlainText(), u""_s);
    const auto avvisoAllaApertura = [this] {
        QString righe;
        guida.messaggio(&righe);
        apri();
        EXPECT_TRUE(aspetta([&] { return guida.finita(); }));
        return righe;
    };
    const QString inizio = u"La frase salvata non si può leggere !\n"_s;
    registra(QByteArray(10 * 1024 * 1024, 'x'));
    EXPECT_TRUE(avvisoAllaApertura().startsWith(inizio));
    QFile::remove(file());
    ASSERT_TRUE(prova::creaCoda(file()));
    EXPECT_TRUE(avvisoAllaApertura().startsWith(inizio));
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
    EXPECT_TRUE(aspetta([&] { return stato.Caption().startsWith(u"Lettura "_s); }));
    i.piattaforma.cartella = i.cartella();
    clicca(*form, "PushButton1");
    EXPECT_TRUE(stato.Caption().contains(u"manca il componente"_s)) << stato.Caption().toStdString();
}

// A program of the test's own in the place of the desktop's speech service.
TEST_F(ProvaBoccuccia, LaVoceDiSistemaParlaOppureDiceIlMotivo) {
    const QByteArray vecchio = qgetenv("PATH");
    const QString programma = i.file(u"spd-say"_s);
    qputenv("PATH", i.cartella().toUtf8());
    apri();
    clicca(*form, "RB1(1)");
    clicca(*form, "VociPS(1)"); // has no choice of sex here
    EXPECT_FALSE(trova<QAbstractButton>(*form, "RB1(0)").isEnabled());
    clicca(*form, "ctButton2(1)");
    EXPECT_TRUE(letto().endsWith("\",1,0,1\r\n"));
    auto &stato = trova<Label>(*form, "Stato");
    const std::pair<QByteArray, QString> casi[] = {{{}, u"non è installato"_s},
                                                   {"echo \"$@\" > " + i.file(u"detto"_s).toUtf8(), u"finita"_s},
                                                   {"echo Nessun servizio >&2; exit 1", u"Nessun servizio"_s},
                                                   {"[ \"$1\" = --cancel ] || exec /bin/sleep 60", u"in corso"_s}};
    for (const auto &[testo, atteso] : casi) {
        if (!testo.isEmpty())
            scrivi(programma, "#!/bin/sh\n" + testo);
        QFile::setPermissions(programma, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        clicca(*form, "PushButton1");
        EXPECT_TRUE(aspetta([&, a = atteso] { return stato.Caption().contains(a); })) << stato.Caption().toStdString();
    }
    EXPECT_TRUE(leggi(u"detto"_s).endsWith("-- Numero 152 alla Postazione 5 \xc3\xa8\n"));
    form.reset(); // at once
    qputenv("PATH", vecchio);
}

TEST_F(ProvaBoccuccia, LaGuidaSiApreESiChiude) {
    apri();
    auto &info = trova<QTextEdit>(*form, "RT2");
    const int chiusa = form->height();
    EXPECT_FALSE(info.isVisible());
    clicca(*form, "ctButton2(2)");
    EXPECT_EQ(trova<QAbstractButton>(*form, "ctButton2(2)").text(), u"Chiudi Info"_s);
    EXPECT_TRUE(info.isVisible());
    EXPECT_TRUE(info.toPlainText().contains(u"@varnum@"_s));
    EXPECT_EQ(didascalieTagliate(*form) + campiSenzaNome(*form), QStringList());
    fotografa(*form, u"BoccucciaAperta"_s);
    clicca(*form, "ctButton2(2)");
    EXPECT_EQ(form->height(), chiusa);
    EXPECT_FALSE(info.isVisible());
    QFile::remove(i.file(u"th19.rtf"_s));
    apri();
    EXPECT_TRUE(trova<QTextEdit>(*form, "RT2").toPlainText().startsWith(u"Le informazioni non si possono"_s));
}

} // namespace
} // namespace zuvora
