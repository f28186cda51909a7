#include "etichette/logic/Valori.h"
#include "etichette/logic/Driver.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

Valori esempio() {
    return Valori({variabileDaContenuto(u"Numero"_s, u"7"_s, TipoEtichetta::Numero),
                   variabileDaContenuto(u"Attesa"_s, u"12.5"_s, TipoEtichetta::Numero),
                   variabileDaContenuto(u"Data"_s, u"41550.4375"_s, TipoEtichetta::Data),
                   variabileDaContenuto(u"Prioritario"_s, u"True"_s, TipoEtichetta::Logico),
                   variabileDaContenuto(u"Servizio"_s, u"Cassa {1}"_s, TipoEtichetta::Testo),
                   variabileDaContenuto(u"Vuota"_s, QString(), TipoEtichetta::Testo)});
}

TEST(Valori, TestiConVariabili) {
    const Valori valori = esempio();
    const struct {
        QString testo;
        QString atteso;
    } casi[] = {{u"{Numero}"_s, u"7"_s},
                {u"{numero:000}"_s, u"007"_s},
                {u"{Attesa}"_s, u"12,5"_s},
                {u"{Attesa:0,00}"_s, u"12,50"_s},
                {u"{Attesa:0}"_s, u"13"_s},
                {u"{Data:dd/MM/yyyy}"_s, u"03/10/2013"_s},
                {u"{Data}"_s, u"03/10/2013 10:30"_s},
                {u"{Data:dddd d MMMM}"_s, u"giovedì 3 ottobre"_s},
                {u"{Prioritario}"_s, u"Sì"_s},
                {u"{Prioritario:URGENTE|}"_s, u"URGENTE"_s},
                {u"{Servizio}"_s, u"Cassa {1}"_s}, // contents are not read again
                {u"{{Numero}} {Numero}"_s, u"{Numero} 7"_s},
                {u"{ Numero }{Vuota}!"_s, u"7!"_s},
                {u"{aperta"_s, u"{aperta"_s},
                {u"{Numero:xyz}"_s, u"7"_s},
                {u"a}b"_s, u"a}b"_s}};
    QStringList mancanti;
    for (const auto &caso : casi)
        EXPECT_EQ(valori.componi(caso.testo, &mancanti), caso.atteso) << caso.testo.toStdString();
    EXPECT_TRUE(mancanti.isEmpty());
    EXPECT_EQ(valori.componi(u"-{Sparita}-{Sparita}"_s, &mancanti), u"--"_s);
    EXPECT_EQ(mancanti, QStringList{u"Sparita"_s});
    EXPECT_EQ(valori.componi(u"-{Sparita}-"_s), u"-{Sparita}-"_s);
}

TEST(Valori, ContenutiCheNonSonoDelLoroTipoRestanoTesto) {
    for (const auto tipo : {TipoEtichetta::Numero, TipoEtichetta::Data}) {
        const Variabile v = variabileDaContenuto(u"v"_s, u"abc"_s, tipo);
        EXPECT_EQ(v.testo, u"abc"_s);
        EXPECT_FALSE(v.numero || v.data);
    }
    EXPECT_FALSE(variabileDaContenuto(u"v"_s, u"1e300"_s, TipoEtichetta::Data).data);
    EXPECT_FALSE(variabileDaContenuto(u"v"_s, u"nan"_s, TipoEtichetta::Numero).numero);
}

TEST(Driver, OgnunoChiamaTaglioEScurezzaAModoSuo) {
    const auto scelta = [](const char *nome, const QByteArrayList &valori) {
        QByteArray testo = QByteArray("*OpenUI *") + nome + "/x: PickOne\r\n";
        for (const QByteArray &valore : valori)
            testo += QByteArray("*") + nome + ' ' + valore + "/x: \"\"\r\n";
        return testo + "*CloseUI: *" + nome + "\r\n";
    };
    using Attese = QList<std::pair<QByteArray, QByteArray>>;
    const struct {
        QByteArray ppd;
        Stampa stampa;
        Attese attese;
    } casi[] = {
        {"", {1, true, 3}, {}},
        {scelta("PageSize", {"A4"}) + "*CustomPageSize True: \"\"\n", {}, {{"media", "Custom.80x100.5mm"}}},
        {scelta("DocCutType", {"0NoCutDoc", "2FullCutDoc"}) + scelta("PageCutType", {"0NoCutPage", "1PartialCutPage"}),
         {1, true, 0},
         {{"PageCutType", "1PartialCutPage"}}},
        {scelta("TmxPaperCut", {"NoCut", "CutPerJob"}), {1, true, 0}, {{"TmxPaperCut", "CutPerJob"}}},
        {scelta("TmxPaperCut", {"NoCut", "CutPerJob"}), {1, false, 0}, {}},
        {scelta("Darkness", {"-1", "1", "30", "16"}), {1, false, 3}, {{"Darkness", "16"}}},
        {scelta("PrintDensity", {"-2", "-1", "0", "1", "2"}), {1, false, 1}, {{"PrintDensity", "-2"}}},
        {scelta("Darkness", {"Light"}), {1, true, 5}, {}}};
    for (const auto &caso : casi)
        EXPECT_EQ(opzioniDriver(caso.ppd, caso.stampa, QSize(800, 1005)), caso.attese) << caso.ppd.constData();
}

} // namespace
} // namespace zuvora
