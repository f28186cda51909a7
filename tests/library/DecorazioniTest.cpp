#include "library/logic/Decorazioni.h"
#include "library/logic/Sfondi.h"
#include "shell/logic/CopiaFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(Sfondi, PercorsoDiRete) {
    const struct {
        QString scelto;
        QString atteso;
    } casi[] = {
        {u"C:\\Immagini\\a.jpg"_s, u"\\\\SERVER1\\Immagini\\a.jpg"_s},
        {u"d:/Foto Estate/è.bmp"_s, u"\\\\SERVER1\\Foto Estate\\è.bmp"_s},
        {u"C:\\a.jpg"_s, u"\\\\SERVER1\\a.jpg"_s},
        {u"/home/x/Immagini/a.jpg"_s, u"\\\\SERVER1\\home\\x\\Immagini\\a.jpg"_s},
        {u"/a.jpg"_s, u"\\\\SERVER1\\a.jpg"_s},
        {u"\\\\ALTRO\\Immagini\\a.jpg"_s, u"\\\\ALTRO\\Immagini\\a.jpg"_s},
        {u"//altro/Immagini/a.jpg"_s, u"\\\\altro\\Immagini\\a.jpg"_s},
        {QString(), QString()},
    };
    for (const auto &caso : casi)
        EXPECT_EQ(percorsoDiRete(caso.scelto, u"SERVER1"_s), caso.atteso) << caso.scelto.toStdString();
}

TEST(Decorazioni, SoloLeRigheDellUtenteSiTolgono) {
    EXPECT_TRUE(ePreimpostata(qlonglong{1}));
    EXPECT_TRUE(ePreimpostata(qlonglong{171}));
    EXPECT_FALSE(ePreimpostata(qlonglong{172}));
    EXPECT_TRUE(ePreimpostata({}));
}

TEST(Decorazioni, IndiceDallaDidascalia) {
    EXPECT_EQ(indiceDecorazione(u"Decorazione 1"_s), 1);
    EXPECT_EQ(indiceDecorazione(u"Decorazione 25"_s), 25);
    for (const QString &altra : {u"Decorazione 0"_s, u"Decorazione 26"_s, u"Decorazione "_s, u"decorazione 3"_s})
        EXPECT_EQ(indiceDecorazione(altra), 0) << altra.toStdString();
}

TEST(Decorazioni, IlNomeResta) {
    const struct {
        const char *percorso;
        const char *nome;
    } casi[] = {{"/x/foto.jpg", "foto.jpg"},
                {"/x/foto.estate.GIF", "foto.estate.GIF"},
                {"/x/foto.jpeg", "foto.jpeg"},
                {"/x/senza", "senza"},
                {"/x/a.b", "a.b"},
                {"/x/L'età dell'oro.bmp", "L'età dell'oro.bmp"},
                {"/x/due punti .jpg", "due punti .jpg"},
                {"", ""}};
    for (const auto &caso : casi)
        EXPECT_EQ(FileScelto(QString::fromUtf8(caso.percorso)), QString::fromUtf8(caso.nome));
}

class CopiaFile : public testing::Test {
protected:
    CopiaFile() { QDir(radice.path()).mkpath(u"da"_s); }
    QString scrivi(const QString &nome, const QByteArray &contenuto) {
        QFile file(radice.filePath(nome));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contenuto) == contenuto.size());
        return file.fileName();
    }
    QByteArray leggi(const QString &nome) {
        QFile file(radice.filePath(nome));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList inMeta() { return QDir(meta()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); }
    QString meta() { return radice.filePath(u"in/Cornici/"_s); }
    QTemporaryDir radice;
};

TEST_F(CopiaFile, CreaLaCartellaESostituisce) {
    const QString origine = scrivi(u"da/L'età.jpg"_s, "primo");
    EXPECT_EQ(incontroCopia(origine, meta()), Incontro::Nessuno);
    EXPECT_EQ(copiaFile(origine, meta()), QString());
    EXPECT_EQ(leggi(u"in/Cornici/L'età.jpg"_s), "primo");
    EXPECT_EQ(incontroCopia(origine, meta()), Incontro::LoStesso);
    EXPECT_EQ(incontroCopia(meta() + u"L'età.jpg"_s, meta()), Incontro::LoStesso) << "onto itself";
    scrivi(u"da/L'età.jpg"_s, "altro");
    EXPECT_EQ(incontroCopia(origine, meta()), Incontro::Diverso);
    EXPECT_EQ(copiaFile(origine, meta()), QString());
    EXPECT_EQ(leggi(u"in/Cornici/L'età.jpg"_s), "altro");
    EXPECT_EQ(inMeta().size(), 1);
}

TEST_F(CopiaFile, SenzaSorgenteOSenzaCartella) {
    EXPECT_FALSE(copiaFile(radice.filePath(u"da/manca.jpg"_s), meta()).isEmpty());
    EXPECT_FALSE(copiaFile(radice.filePath(u"da"_s), meta()).isEmpty()) << "a folder is no file";
    const QString origine = scrivi(u"da/a.jpg"_s, "x");
    scrivi(u"in"_s, "a file where the folder should be");
    EXPECT_FALSE(copiaFile(origine, meta()).isEmpty());
    QDir(radice.path()).mkpath(u"altra/a.jpg"_s);
    EXPECT_EQ(incontroCopia(origine, radice.filePath(u"altra"_s)), Incontro::Impedito);
    EXPECT_FALSE(copiaFile(origine, radice.filePath(u"altra"_s)).isEmpty());
}

TEST_F(CopiaFile, InterrottaLasciaCioCheCera) {
    const QString origine = scrivi(u"da/a.jpg"_s, QByteArray(3 << 20, 'n'));
    QDir().mkpath(meta());
    scrivi(u"in/Cornici/a.jpg"_s, "vecchio");
    rlimit prima{};
    getrlimit(RLIMIT_FSIZE, &prima);
    const auto segnale = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit stretto{1 << 20, prima.rlim_max}; // as a disk that gets full
    setrlimit(RLIMIT_FSIZE, &stretto);
    const QString guasto = copiaFile(origine, meta());
    setrlimit(RLIMIT_FSIZE, &prima);
    std::signal(SIGXFSZ, segnale);
    EXPECT_FALSE(guasto.isEmpty());
    EXPECT_EQ(leggi(u"in/Cornici/a.jpg"_s), "vecchio");
    EXPECT_EQ(inMeta(), QStringList{u"a.jpg"_s}) << "nothing half-written stays";
}

} // namespace
} // namespace zuvora
