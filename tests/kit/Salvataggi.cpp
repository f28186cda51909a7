#include "kit/Salvataggi.h"

#include "shell/host/ListBox.h"
#include "store/Ostacoli.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// What the user typed and chose.
QStringList digitato(QWidget &finestra) {
    QStringList tutto;
    for (const auto *campo : finestra.findChildren<QLineEdit *>())
        tutto << campo->text();
    for (const auto *campo : finestra.findChildren<QPlainTextEdit *>())
        tutto << campo->toPlainText();
    for (const auto *bottone : finestra.findChildren<QAbstractButton *>())
        tutto << QString::number(bottone->isChecked());
    for (const auto *lista : finestra.findChildren<ListBox *>())
        tutto << lista->voci();
    return tutto;
}

void permetti(const InstallazioneProva &i, bool scrittura) {
    auto permessi = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    permessi.setFlag(QFile::WriteOwner, scrittura);
    QFile::setPermissions(i.archivio(), permessi);
    QFile::setPermissions(i.cartella(), permessi | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
}

void ostacola(const Salvataggio &s, QLatin1StringView ostacolo) {
    SCOPED_TRACE(std::string(s.nome) + ": " + ostacolo.data());
    InstallazioneProva i;
    i.piattaforma.cartella.clear(); // no components
    i.esegui(u"UPDATE Configurazione SET Nominativo='SALA2'"_s);
    const QString tabella = QString::fromLatin1(s.tabella);
    const QString sparita = u"ALTER TABLE %1 RENAME TO %2"_s;
    const auto righe = [&] { return i.righe(u"SELECT * FROM "_s + tabella); };
    const auto finestra = s.apri(i);
    finestra->grab(); // captions are fitted when they are about to be seen
    EXPECT_EQ(didascalieTagliate(*finestra) + campiSenzaNome(*finestra), QStringList());
    const QStringList scritto = digitato(*finestra);
    const QStringList prima = righe();
    const auto salva = [&](int avvisi) {
        Guida guida;
        for (int n = 0; n < s.domande; ++n)
            guida.messaggio(nullptr, 1);
        for (int n = 0; n < avvisi; ++n)
            guida.messaggio(nullptr);
        s.salva(*finestra);
    };
    if (ostacolo == "bloccata"_L1) {
        const prova::AltroProcesso altro(i.archivio(), "BEGIN IMMEDIATE");
        salva(0);
    } else if (ostacolo == "sola lettura"_L1) {
        permetti(i, false);
        {
            const prova::UtenteQualunque utente;
            salva(0);
        }
        permetti(i, true);
    } else {
        i.esegui(sparita.arg(tabella, u"Sparita"_s));
        salva(0);
        i.esegui(sparita.arg(u"Sparita"_s, tabella));
    }
    const QString detto = i.dialoghi.unicoMessaggio();
    EXPECT_TRUE(detto.contains(u"Zuvora.mdb"_s)) << detto.toStdString();
    EXPECT_EQ(digitato(*finestra), scritto);
    EXPECT_EQ(righe(), prima);
    EXPECT_TRUE(finestra->isVisible());
    salva(s.avvisi);
    EXPECT_NE(righe(), prima);
}

} // namespace

std::function<void(QWidget &)> preme(const char *bottone) {
    return
        [bottone](QWidget &finestra) { QTest::mouseClick(&trova<QAbstractButton>(finestra, bottone), Qt::LeftButton); };
}

void provaSalvataggi(const std::vector<Salvataggio> &tutti) {
    for (const Salvataggio &s : tutti)
        for (const auto ostacolo : {"bloccata"_L1, "sola lettura"_L1, "tabella sparita"_L1})
            ostacola(s, ostacolo);
}

} // namespace zuvora
