#include "kiosk/logic/VariabiliTicket.h"
#include "kiosk/DueArchivi.h"

inline void PrintTo(const zuvora::VariabileTicket &v, std::ostream *os) {
    *os << v.nome.toStdString() << '=' << v.contenuto.toStdString() << ' ' << static_cast<int>(v.tipo);
}

namespace zuvora::prova {
namespace {

TEST(VariabileTicket, TakesItsTypeFromTheValue) {
    struct Caso {
        QString tipo;
        Valore valore;
        QString contenuto;
        TipoEtichetta atteso;
    };
    const std::vector<Caso> casi = {
        {u"INTEGER"_s, qlonglong{152}, u"152"_s, TipoEtichetta::Numero},
        {u"REAL"_s, 12.5, u"12.5"_s, TipoEtichetta::Numero},
        {u"BOOLEAN"_s, true, u"True"_s, TipoEtichetta::Logico},
        {u"BOOLEAN"_s, false, u"False"_s, TipoEtichetta::Logico},
        {u"TEXT"_s, u"152"_s, u"152"_s, TipoEtichetta::Testo},
        {u""_s, u"libero"_s, u"libero"_s, TipoEtichetta::Testo},
        {u"CURRENCY"_s, 9.9, u"9.9"_s, TipoEtichetta::Testo},
        {u"DECIMAL(9,2)"_s, 9.9, u"9.9"_s, TipoEtichetta::Testo},
        {u"BYTE"_s, qlonglong{5}, u"5"_s, TipoEtichetta::Testo},
        {u"DATE"_s, u"2013-10-03"_s, u"41550"_s, TipoEtichetta::Data},
        {u"DATETIME"_s, u"2013-10-03 12:00:00"_s, u"41550.5"_s, TipoEtichetta::Data},
        {u"DATETIME"_s, u"2013-10-03 08:10:00"_s, u"41550.34"_s, TipoEtichetta::Data}, // single precision
        {u"DATETIME"_s, u"18:00:00"_s, u"0.75"_s, TipoEtichetta::Data},
        {u"TIME"_s, u"06:00"_s, u"0.25"_s, TipoEtichetta::Data},
        {u"DATE"_s, u"1899-12-29"_s, u"-1"_s, TipoEtichetta::Data},
        {u"DATE"_s, u"ieri"_s, u"ieri"_s, TipoEtichetta::Testo},
        {u"DATE"_s, Valore(), u""_s, TipoEtichetta::Testo},
        {u"INTEGER"_s, Valore(), u""_s, TipoEtichetta::Testo},
    };
    for (const Caso &caso : casi)
        EXPECT_EQ(variabileDa(u"X"_s, caso.tipo, caso.valore), (VariabileTicket{u"X"_s, caso.contenuto, caso.atteso}))
            << caso.tipo.toStdString();
}

class Ticket : public DueArchivi {};

TEST_F(Ticket, OffersEachColumnOfTheTableInOrder) {
    esegui(totem(), u"ALTER TABLE DatiDaStampareIMP ADD COLUMN Nuova TEXT;"
                    "INSERT INTO DatiDaStampareIMP(Numero,[Data],Prioritario,MinutiDiAttesa,Nuova) "
                    "VALUES(152,'2013-10-03',1,12.5,'città'),(153,NULL,0,1,'altra')"_s);
    const auto variabili = variabiliTicket(totem());
    ASSERT_EQ(variabili.size(), 11);
    EXPECT_EQ(variabili[0], (VariabileTicket{u"Numero"_s, u"152"_s, TipoEtichetta::Numero}));
    EXPECT_EQ(variabili[1], (VariabileTicket{u"Lettera"_s, u""_s, TipoEtichetta::Testo}));
    EXPECT_EQ(variabili[3], (VariabileTicket{u"Data"_s, u"41550"_s, TipoEtichetta::Data}));
    EXPECT_EQ(variabili[7], (VariabileTicket{u"Prioritario"_s, u"True"_s, TipoEtichetta::Logico}));
    EXPECT_EQ(variabili[10], (VariabileTicket{u"Nuova"_s, u"città"_s, TipoEtichetta::Testo}));
}

TEST_F(Ticket, WithoutARecordAllAreEmptyTexts) {
    const auto variabili = variabiliTicket(totem());
    ASSERT_EQ(variabili.size(), 10);
    for (const VariabileTicket &v : variabili)
        EXPECT_EQ(v, (VariabileTicket{v.nome, u""_s, TipoEtichetta::Testo}));
}

} // namespace
} // namespace zuvora::prova
