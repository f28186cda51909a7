#include "../store/Ostacoli.h"
#include "shell/logic/FileAtomico.h"
#include "shell/logic/TestoAnsi.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zuvora {
namespace {

using namespace Qt::Literals::StringLiterals;
using prova::creaCoda;
using prova::LimiteFile;
using prova::UtenteQualunque;

TEST(TestoAnsi, OgniByteTornaSeStesso) {
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(i);
    EXPECT_EQ(inAnsi(daAnsi(tutti)), tutti);
    EXPECT_EQ(daAnsi("\x80 \x92 \xE0 \x9F"), u"€ ’ à Ÿ"_s);
}

TEST(TestoAnsi, DiceIlPrimoCarattereCheManca) {
    for (const auto &[testo, manca] : std::initializer_list<std::pair<QString, QString>>{
             {u"perché no? €"_s, QString()}, {u"ab→c☃"_s, u"→"_s}, {u"x😀"_s, u"😀"_s}, {u"\u0080"_s, u"\u0080"_s}}) {
        EXPECT_EQ(fuoriAnsi(testo), manca) << testo.toStdString();
        EXPECT_EQ(inAnsi(testo).has_value(), manca.isEmpty());
    }
}

TEST(TestoAnsi, LeRigheSiLeggonoComunqueFiniscano) {
    const std::initializer_list<std::pair<QByteArray, QStringList>> casi = {
        {"", {}},
        {"\r\n", {u""_s}},
        {"a\r\nb\r\n", {u"a"_s, u"b"_s}},
        {"a\nb", {u"a"_s, u"b"_s}},
        {"a\r\n\r\nb\r\n", {u"a"_s, QString(), u"b"_s}},
        {"a\rb\r", {u"a\rb\r"_s}}};
    for (const auto &[byte, righe] : casi)
        EXPECT_EQ(righeAnsi(byte), righe) << byte.toStdString();
}

struct FileTest : testing::Test {
    QTemporaryDir cartella;
    QString file = cartella.filePath(u"lista.zvi"_s);
    QByteArray contenuto() const { return leggiFile(file).contenuto; }
};

TEST_F(FileTest, LeRigheSiScrivonoIntereOPerNiente) {
    const QByteArray byte = "C:\\Foto\\citt\xE0.jpg\r\n\r\n\x81\x8D\r\n";
    EXPECT_EQ(scriviRighe(file, righeAnsi(byte)), QString());
    EXPECT_EQ(contenuto(), byte);
    EXPECT_EQ(scriviRighe(file, {u"a"_s, u"☃"_s}),
              u"La riga 2 contiene il carattere «☃», che il file non può contenere."_s);
    EXPECT_FALSE(scriviRighe(file, {u"a\nb"_s}).isEmpty());
    EXPECT_EQ(contenuto(), byte);
}

TEST_F(FileTest, UnaScritturaImpeditaLasciaIlFileComEra) {
    ASSERT_EQ(scriviFile(file, "prima"), QString());
    {
        const LimiteFile limite(1000);
        EXPECT_EQ(scriviFile(file, QByteArray(200'000, 'x')), u"Il file è troppo grande per questo disco."_s);
    }
    QFile::setPermissions(cartella.path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    {
        const UtenteQualunque utente;
        EXPECT_EQ(scriviFile(file, "dopo"), u"Mancano i permessi sul file o sulla cartella."_s);
    }
    QFile::setPermissions(cartella.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(contenuto(), "prima");
    EXPECT_EQ(QDir(cartella.path()).entryList(QDir::Files).size(), 1); // nothing half-written stays
}

TEST_F(FileTest, LegamePermessiENomeLungoRestano) {
    for (const QString &nome : {u"lista.zvi"_s, QString(255, u'x')}) {
        file = cartella.filePath(nome);
        ASSERT_EQ(scriviFile(file, "prima"), QString());
        const auto permessi = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QFile::setPermissions(file, permessi);
        const QString legame = cartella.filePath(u"legame%1"_s.arg(nome.size()));
        ASSERT_TRUE(QFile::link(file, legame));
        EXPECT_EQ(scriviFile(legame, "dopo"), QString());
        EXPECT_TRUE(QFileInfo(legame).isSymLink());
        EXPECT_EQ(contenuto(), "dopo");
        EXPECT_EQ(QFile::permissions(file), permessi);
    }
}

TEST_F(FileTest, SoloFileVeriSiAprono) {
    const QString coda = cartella.filePath(u"coda"_s);
    ASSERT_TRUE(creaCoda(coda));
    const struct {
        QString percorso, motivo;
        bool esiste;
    } casi[] = {{coda, u"Non è un file di dati."_s, true},
                {u"/dev/zero"_s, u"Non è un file di dati."_s, true},
                {cartella.path(), u"È una cartella, non un file."_s, false},
                {cartella.filePath(u"assente/x"_s), u"Il file o la cartella non esiste."_s, false},
                {QString(), u"Il percorso non è valido."_s, false},
                {QString(5000, u'a'), u"Il percorso non è valido."_s, false},
                {u"/"_s + QString(300, u'a'), u"Il nome è troppo lungo."_s, false}};
    for (const auto &caso : casi) {
        EXPECT_EQ(leggiFile(caso.percorso).motivo, caso.motivo) << caso.percorso.toStdString();
        EXPECT_EQ(FileEsiste(caso.percorso), caso.esiste) << caso.percorso.toStdString();
        EXPECT_FALSE(scriviFile(caso.percorso, "x").isEmpty());
    }
    ASSERT_EQ(scriviFile(file, "0123456789"), QString());
    EXPECT_TRUE(FileEsiste(file));
    EXPECT_EQ(leggiFile(file, 10).motivo, QString());
    EXPECT_EQ(leggiFile(file, 9).motivo, u"Il file è troppo grande (10 byte, al massimo 9 byte)."_s);
}

} // namespace
} // namespace zuvora
