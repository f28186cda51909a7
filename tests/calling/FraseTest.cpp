#include "calling/logic/Frase.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(ProvaFrase, IlRecordByteByByteEQuelloCheSiLegge) {
    const struct {
        QByteArray byte;
        QString frase;
        std::optional<int> usa, femminile, sistema;
        QByteArray scritto; // by a save, when the record is not the file's own
    } casi[] = {
        {"\"Il @varnum@ \xe8, no\",1,1,0\r\n", u"Il @varnum@ è, no"_s, 1, 1, 0, {}},
        {"\"\",0,0,1\r\n", u""_s, 0, 0, 1, {}},
        {"\"prima\r\nseconda \x80 %1 100%\",0,1,1\r\n", u"prima\nseconda € %1 100%"_s, 0, 1, 1, {}},
        {"", u""_s, {}, {}, {}, "\"\",0,0,0\r\n"},
        {"\"solo la frase", u"solo la frase"_s, {}, {}, {}, "\"solo la frase\",0,0,0\r\n"},
        {"\"a\nb\rc\",0,1,0", u"a\nb\nc"_s, 0, 1, 0, "\"a\r\nb\r\nc\",0,1,0\r\n"},
        {"\"altri\",2,,-1\n", u"altri"_s, {}, {}, {}, "\"altri\",0,0,0\r\n"},
        {"senza,1, 0 ,1\n", u"senza"_s, 1, 0, 1, "\"senza\",1,0,1\r\n"},
        {"\r\n\"dopo\" , 1 , 1 , 0 \r\n", u"dopo"_s, 1, 1, 0, "\"dopo\",1,1,0\r\n"},
        {"\"uno\"due\",1,0,0\r\n\"altro\",0,0,1", u"uno"_s, 1, 0, 0, "\"uno\",1,0,0\r\n"},
        {"\"fine riga\",1\r\n0,1\r\n", u"fine riga"_s, 1, 0, 1, "\"fine riga\",1,0,1\r\n"},
    };
    for (const auto &caso : casi) {
        const FraseTTS letta = interpretaFrase(caso.byte);
        EXPECT_EQ(letta.frase, caso.frase);
        EXPECT_EQ(letta.usa, caso.usa) << caso.byte.toStdString();
        EXPECT_EQ(letta.femminile, caso.femminile) << caso.byte.toStdString();
        EXPECT_EQ(letta.sistema, caso.sistema) << caso.byte.toStdString();
        EXPECT_EQ(componiFrase(letta), caso.scritto.isEmpty() ? caso.byte : caso.scritto);
        EXPECT_EQ(motivoNonSalvabile(letta.frase), u""_s);
    }
}

TEST(ProvaFrase, LaProvaEspandeLeVariabili) {
    const std::pair<QString, QString> casi[] = {
        {u"Il @varnum@ alla @varpos@ per @varute@ "_s, u"Il 152 alla Postazione 5 per Servizio "_s},
        {u"@VarNum@, @VARPOS@."_s, u"152, Postazione 5."_s},
        {u"x@varnum@ @varnum@y è@varnum@ _@varnum@"_s, u"x@varnum@ @varnum@y è@varnum@ _@varnum@"_s},
        {u"x@varnum@ @varnum@"_s, u"x@varnum@ 152"_s},
        {u"@varnum@ "_s.repeated(11), u"152 "_s.repeated(10) + u"@varnum@ "_s},
        {u" @varpos@"_s.repeated(10), u" Postazione 5"_s.repeated(10)},
    };
    for (const auto &[frase, detta] : casi)
        EXPECT_EQ(EspandiFrase(frase), detta);
    int pause = 0;
    EspandiFrase(u"@varnum@ @varnum@ @varute@"_s, [&] { ++pause; });
    EXPECT_EQ(pause, 3);
}

} // namespace
} // namespace zuvora
