#include "library/logic/Decorazioni.h"
#include "shell/logic/CopiaFile.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

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

} // namespace
} // namespace zuvora
