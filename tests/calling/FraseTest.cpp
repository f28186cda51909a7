#include "calling/logic/Frase.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

inline void PrintTo(const QString &s, std::ostream *os) {
    *os << '"' << s.toStdString() << '"';
}

namespace zuvora {
namespace {

using Numero = std::optional<int>;

TEST(ProvaFrase, IlRecordByteByByte) {
    const struct {
        FraseTTS frase;
        QByteArray byte;
    } casi[] = {
        {{u"Numero @varnum@ è, \"no\""_s.remove(u'"'), 1, 1, 0}, "\"Numero @varnum@ \xe8, no\",1,1,0\r\n"},
        {{u""_s, 0, 0, 1}, "\"\",0,0,1\r\n"},
        {{u"prima\nseconda €"_s, 0, 1, 1}, "\"prima\r\nseconda \x80\",0,1,1\r\n"},
        {{u"%1 %2 100%"_s, {}, {}, {}}, "\"%1 %2 100%\",0,0,0\r\n"},
    };
    for (const auto &[frase, byte] : casi) {
        EXPECT_EQ(componiFrase(frase), byte);
        EXPECT_EQ(interpretaFrase(byte).frase, frase.frase);
        EXPECT_EQ(motivoNonSalvabile(frase.frase), u""_s);
    }
}

TEST(ProvaFrase, SiLeggeQuelloCheCE) {
    const struct {
        QByteArray byte;
        QString frase;
        Numero usa, femminile, sistema;
    } casi[] = {
        {"", u""_s, {}, {}, {}},
        {"\"solo la frase", u"solo la frase"_s, {}, {}, {}},
        {"\"corto\",1\r\n", u"corto"_s, 1, {}, {}},
        {"\"a\nb\rc\",0,1,0", u"a\nb\nc"_s, 0, 1, 0},
        {"\"altri valori\",2,,-1\n", u"altri valori"_s, {}, {}, {}},
        {"senza virgolette,1, 0 ,1\n", u"senza virgolette"_s, 1, 0, 1},
        {"\r\n\"dopo una riga vuota\" , 1 , 1 , 0 \r\n", u"dopo una riga vuota"_s, 1, 1, 0},
        {"\"virgola, dentro\",1,0,0\r\n\"altro\",0,0,1\r\n", u"virgola, dentro"_s, 1, 0, 0},
        {"\"uno\"due\",1,0,0\r\n", u"uno"_s, 1, 0, 0},
        {"\"fine riga\",1\r\n0,1\r\n", u"fine riga"_s, 1, 0, 1},
    };
    for (const auto &caso : casi) {
        const FraseTTS letta = interpretaFrase(caso.byte);
        EXPECT_EQ(letta.frase, caso.frase);
        EXPECT_EQ(letta.usa, caso.usa) << caso.byte.toStdString();
        EXPECT_EQ(letta.femminile, caso.femminile) << caso.byte.toStdString();
        EXPECT_EQ(letta.sistema, caso.sistema) << caso.byte.toStdString();
    }
}

TEST(ProvaFrase, UnaFraseCheIlFileNonPuoTenere) {
    for (const QString &frase : {u"dice \"ciao\""_s, u"sole ☀"_s, u"emoji 😀"_s}) {
        EXPECT_EQ(componiFrase({frase, 1, 1, 1}), std::nullopt);
        EXPECT_FALSE(motivoNonSalvabile(frase).isEmpty());
    }
    EXPECT_TRUE(motivoNonSalvabile(u"sole ☀"_s).contains(u'☀'));
}

TEST(ProvaFrase, LaVariabileConGliSpazi) {
    EXPECT_EQ(testoVariabile(0, true), u" @varnum@ "_s);
    EXPECT_EQ(testoVariabile(1, false), u"@varpos@ "_s);
    EXPECT_EQ(testoVariabile(2, true), u" @varute@ "_s);
}

TEST(ProvaFrase, LaProvaEspandeLeVariabili) {
    const struct {
        QString frase;
        QString detta;
    } casi[] = {
        {u"nessuna variabile"_s, u"nessuna variabile"_s},
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
