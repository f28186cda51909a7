#include "etichette/logic/FileEtichetta.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// One object of each kind with nothing left at its start value.
Etichetta piena() {
    Etichetta e;
    e.carta = {580, 900, true, QMargins(1, 2, 3, 4), 300};
    e.stampa = {3, true, 4};
    e.scostamenti[u"Zebra cassa"_s] = QPoint(-20, 15);
    for (const auto tipo :
         {TipoOggetto::Testo, TipoOggetto::Codice, TipoOggetto::Immagine, TipoOggetto::Linea, TipoOggetto::Cornice}) {
        Oggetto o;
        o.tipo = tipo;
        o.area = QRect(-5, 10, 120, 80);
        o.rotazione = 270;
        o.bloccato = true;
        o.condizione = {u"Messaggio"_s, true};
        e.oggetti << o;
    }
    e.oggetti[0].testo = u"È la {Lettera}\n«»"_s;
    e.oggetti[0].stile = {u"Arial"_s, 27.75, true, true, true, Lato::Fine, Lato::Centro, false, true, true};
    e.oggetti[1].testo = u"{Numero}"_s;
    e.oggetti[1].simbologia = Simbologia::DataMatrix;
    e.oggetti[1].leggibile = false;
    e.oggetti[2].immagine = QByteArray("\x89PNG\0\xff", 6);
    e.oggetti[2].riduzione = RiduzioneColori::Soglia;
    e.oggetti[2].soglia = 77;
    e.oggetti[3].spessore = 12;
    e.oggetti[4].raggio = 25;
    e.oggetti[4].pieno = true;
    return e;
}

TEST(FileBiglietto, AndataERitorno) {
    const Etichetta scritta = piena();
    const EtichettaLetta letta = etichettaDa(testoEtichetta(scritta));
    ASSERT_TRUE(letta.etichetta) << letta.motivo.toStdString();
    EXPECT_TRUE(*letta.etichetta == scritta);
    for (const ModelloPronto &modello : modelliPronti())
        EXPECT_TRUE(*etichettaDa(testoEtichetta(modello.etichetta)).etichetta == modello.etichetta)
            << modello.nome.toStdString();
}

TEST(FileBiglietto, IlBigliettoDiSerieEIlPrimoDeiPronti) {
    const EtichettaLetta letta = leggiEtichetta(QStringLiteral(BIGLIETTO_DI_SERIE));
    ASSERT_TRUE(letta.etichetta) << letta.motivo.toStdString();
    EXPECT_TRUE(*letta.etichetta == modelliPronti().first().etichetta);
}

TEST(FileBiglietto, QuelloCheNonSiConosceResta) {
    QJsonObject json = QJsonDocument::fromJson(testoEtichetta(piena())).object();
    json[u"autore"_s] = u"Rossi"_s;
    QJsonObject carta = json[u"carta"_s].toObject();
    carta[u"grammatura"_s] = 55;
    json[u"carta"_s] = carta;
    QJsonArray oggetti = json[u"oggetti"_s].toArray();
    QJsonObject primo = oggetti[0].toObject();
    primo[u"ombra"_s] = true;
    oggetti[0] = primo;
    json[u"oggetti"_s] = oggetti;
    const EtichettaLetta letta = etichettaDa(QJsonDocument(json).toJson());
    ASSERT_TRUE(letta.etichetta);
    EXPECT_EQ(QJsonDocument::fromJson(testoEtichetta(*letta.etichetta)).object(), json);
}

TEST(FileBiglietto, FileEstraneiSonoRifiutatiAParole) {
    const QByteArray buono = testoEtichetta(piena());
    const struct {
        QByteArray testo;
        const char16_t *parola;
    } casi[] = {{"", u"danneggiato"},
                {buono.left(buono.size() / 2), u"danneggiato"},
                {"[]", u"danneggiato"},
                {R"({"programma":"altro","versione":1})", u"non è un biglietto"},
                {R"({"programma":"zuvora-biglietto"})", u"di che versione"},
                {R"({"programma":"zuvora-biglietto","versione":2})", u"più recente"},
                {R"({"programma":"zuvora-biglietto","versione":1,"oggetti":[{"tipo":"ologramma"}]})", u"non conosce"}};
    for (const auto &caso : casi) {
        const EtichettaLetta letta = etichettaDa(caso.testo);
        EXPECT_FALSE(letta.etichetta);
        EXPECT_TRUE(letta.motivo.contains(QString::fromUtf16(caso.parola))) << letta.motivo.toStdString();
    }
}

TEST(FileBiglietto, NumeriImpossibiliSonoRicondottiNeiLimiti) {
    const EtichettaLetta letta = etichettaDa(R"({"programma":"zuvora-biglietto","versione":1,
        "carta":{"larghezza":-5,"dpi":1e300},
        "oggetti":[{"tipo":"testo","larghezza":-9,"altezza":1e30,"x":-1e30,"punti":0,"rotazione":45}]})");
    ASSERT_TRUE(letta.etichetta);
    const Oggetto &o = letta.etichetta->oggetti[0];
    EXPECT_EQ(o.area.size(), QSize(0, 100000));
    EXPECT_EQ(o.area.x(), -100000);
    EXPECT_EQ(o.stile.punti, 1);
    EXPECT_EQ(o.rotazione, 0);
    EXPECT_EQ(letta.etichetta->carta.larghezza, 100);
    EXPECT_EQ(letta.etichetta->carta.dpi, 1200);
}

TEST(FileBiglietto, CartelleEPipeNonSiLeggono) {
    const QTemporaryDir cartella;
    EXPECT_FALSE(leggiEtichetta(cartella.path()).motivo.isEmpty());
    const QString pipe = cartella.filePath(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(leggiEtichetta(pipe).motivo.isEmpty());
    EXPECT_FALSE(leggiEtichetta(cartella.filePath(u"manca.lbl"_s)).motivo.isEmpty());
    EXPECT_FALSE(scriviEtichetta(cartella.filePath(u"manca/Ticket.lbl"_s), piena()).isEmpty());
    const QString buono = cartella.filePath(u"Ticket.lbl"_s);
    EXPECT_EQ(scriviEtichetta(buono, piena()), QString());
    EXPECT_TRUE(*leggiEtichetta(buono).etichetta == piena());
    Etichetta smisurata;
    smisurata.oggetti.fill(nuovoOggetto(TipoOggetto::Immagine, {}), 5);
    for (Oggetto &o : smisurata.oggetti)
        o.immagine = QByteArray(immagineMassima, 'x');
    EXPECT_TRUE(scriviEtichetta(buono, smisurata).contains(u"troppo grande"_s)); // it could not be opened again
    EXPECT_TRUE(*leggiEtichetta(buono).etichetta == piena());
}

} // namespace
} // namespace zuvora
