// Old installations brought in. access/ holds two databases of the old format: an installation of version 3.1.9 with
// rows of its own, accents, typographic quotes, Nulls, amounts and dates.
#include "installer/importa/Importa.h"
#include "installer/Banco.h"
#include "installer/importa/Testata.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;
using namespace zuvora::installa;
using namespace prova;

namespace {
const QString vecchio = QStringLiteral(ARCHIVI_ACCESS "/Zuvora.mdb");
const QString vecchioTotem = QStringLiteral(ARCHIVI_ACCESS "/TotemZuvora.mdb");

class Importa : public Banco {
protected:
    QStringList righe;
    Esito importa(const QString &archivio, const QString &totem, const QString &vecchia = {}) {
        righe.clear();
        return importaInstallazione(
            {archivio, totem, vecchia, opzioni(percorso(u"nuova"_s), false), QStringLiteral(ZUVORA_INSTALLA)},
            [this](const QString &riga) { righe << riga; });
    }
    QString zuvora(const QString &istruzione) const { return sql(percorso(u"nuova/Zuvora.mdb"_s), istruzione); }
};

TEST_F(Importa, OgniRigaArrivaComEra) {
    const QByteArray prima = leggi(vecchio);
    ASSERT_TRUE(importa(vecchio, vecchioTotem).riuscito) << righe.join(u'\n').toStdString();
    const struct {
        const char16_t *domanda;
        const char16_t *risposta;
    } casi[] = {
        {u"SELECT count(*) FROM ComuniMeteo", u"7896"},
        {u"SELECT group_concat(n) FROM (SELECT count(*) n FROM LayoutBase UNION ALL SELECT count(*) FROM Layout10)",
         u"70,70"},
        {u"SELECT File FROM Decorazioni WHERE ID = 172", u"mia cornice è.gif"},
        {u"SELECT count(*) FROM Decorazioni WHERE ID IN (173, 174)", u"0"}, // removed rows stay removed
        {u"SELECT ID FROM Decorazioni WHERE File = 'logo.jpg'", u"175"},
        {u"SELECT substr(StringaScorrevole, 1, 56) FROM Configurazione",
         u"L'ambulatorio apre alle 8 - “prelievi” 25 € - perché sì."},
        {u"SELECT length(StringaScorrevole) FROM Configurazione", u"455"},
        {u"SELECT playlistVideo IS NULL FROM Configurazione", u"1"},
        {u"SELECT PlayDinDon = true FROM Configurazione", u"1"},
        {u"SELECT typeof(DimFont) || DimFont FROM Layout1 WHERE rowid = 2", u"real27.75"},
        {u"SELECT count(*) FROM Servizi WHERE ServizioAttivo = true", u"5"},
        {u"SELECT Numero FROM Versione", u"Versione 3.1.9"},
        {u"SELECT count(*) FROM pragma_table_info('ConfigurazioneTotem') WHERE name LIKE '%Visibile'", u"0"}};
    for (const auto &caso : casi)
        EXPECT_EQ(zuvora(QString::fromUtf16(caso.domanda)), QString::fromUtf16(caso.risposta))
            << QString::fromUtf16(caso.domanda).toStdString();
    const QString totem = percorso(u"nuova/Totem/TotemZuvora.mdb"_s);
    EXPECT_EQ(
        sql(totem,
            u"SELECT Importo || '|' || typeof(Importo) || '|' || Emesso || '|' || MinutiDiAttesa FROM DatiDaStampareIMP"_s),
        u"12.5000|text|2012-03-12 08:15:00|12.5"_s);
    EXPECT_EQ(leggi(vecchio), prima);
}

TEST_F(Importa, IPercorsiDelVecchioProgrammaDiventanoNuovi) {
    const QString vecchia = percorso(u"vecchia"_s);
    scrivi(u"vecchia/estate.zvi"_s, "C:\\Zuvora\\ZUVORADECORAZIONI\\Elementi\\logo.jpg\r\nD:\\Foto\\mare.jpg\r\n");
    scrivi(u"vecchia/vuota.zvv"_s, "");
    scrivi(u"vecchia/FraseTTS.txt"_s, "\"a\",\"b\"\r\n");
    scrivi(u"vecchia/zuvoradecorazioni/Elementi/logo.jpg"_s, "logo");
    ASSERT_TRUE(importa(vecchio, vecchioTotem, vecchia).riuscito) << righe.join(u'\n').toStdString();
    const QString nuova = percorso(u"nuova"_s);
    EXPECT_EQ(zuvora(u"SELECT PercorsoReteTotem FROM ConfigurazioneTotem"_s), nuova + u"/Totem"_s);
    EXPECT_EQ(zuvora(u"SELECT playlistFoto FROM Configurazione"_s), nuova + u"/estate.zvi"_s);
    EXPECT_EQ(leggi(nuova + u"/estate.zvi"_s),
              (nuova + u"/ZuvoraDecorazioni/Elementi/logo.jpg\r\nD:\\Foto\\mare.jpg\r\n"_s).toLatin1());
    EXPECT_EQ(leggi(nuova + u"/ZuvoraDecorazioni/Elementi/logo.jpg"_s), QByteArray("logo"));
    EXPECT_EQ(leggi(nuova + u"/FraseTTS.txt"_s), QByteArray("\"a\",\"b\"\r\n"));
    const QString racconto = righe.join(u'\n');
    EXPECT_TRUE(racconto.contains(u"D:\\Musica"_s)); // leads nowhere here
    EXPECT_TRUE(racconto.contains(u"vuota.zvv non è stata portata"_s));
    EXPECT_TRUE(racconto.contains(u"colonna Importo"_s));
}

// Whole, but for one page of rows that holds nothing.
QByteArray senzaPagina(QByteArray file, qsizetype pagina) {
    constexpr qsizetype lunga = 4096;
    EXPECT_EQ(file[pagina * lunga], 1) << "no page of rows";
    return file.replace(pagina * lunga, lunga, QByteArray(lunga, '\0'));
}

TEST_F(Importa, CioCheNonVaERifiutatoENonLasciaNulla) {
    QFile intero(vecchio);
    ASSERT_TRUE(intero.open(QIODevice::ReadOnly));
    const QByteArray byte = intero.readAll();
    const auto con = [&](qsizetype posto, char valore) {
        QByteArray altro = byte;
        altro[posto] = valore;
        return altro;
    };
    const struct {
        QByteArray contenuto;
        const char16_t *parola;
    } casi[] = {{{}, u"troppo corto"},
                {QByteArray(100000, 'x'), u"non è un database Access"},
                {byte.left(byte.size() / 2 + 100), u"incompleto"},
                {con(0x14, 2), u"più recente"},
                {con(0x42, char(byte[0x42] ^ 0x55)), u"password"},
                {con(0x3e, char(byte[0x3e] ^ 0x55)), u"codificato"},
                {byte.left(8 * 4096), u"danneggiato"},
                {senzaPagina(byte, 150), u"danneggiato"}};
    for (const auto &caso : casi) {
        scrivi(u"vecchio.mdb"_s, caso.contenuto);
        const Esito esito = importa(percorso(u"vecchio.mdb"_s), {});
        EXPECT_FALSE(esito.riuscito);
        EXPECT_TRUE(esito.messaggio.contains(QString::fromUtf16(caso.parola))) << esito.messaggio.toStdString();
        EXPECT_FALSE(QFileInfo::exists(percorso(u"nuova"_s)));
    }
    EXPECT_TRUE(importa(vecchioTotem, {}).messaggio.contains(u"non è un database di Zuvora"_s));
    EXPECT_FALSE(importa(percorso(u"manca.mdb"_s), {}).riuscito);
    EXPECT_FALSE(importa(vecchio, vecchioTotem, percorso(u"manca"_s)).riuscito);
    EXPECT_FALSE(QFileInfo::exists(percorso(u"nuova"_s)));
}

// The library that reads may crash on a damaged page: that is a sentence, never our end.
TEST_F(Importa, PagineGuasteSonoUnaFrase) {
    const QByteArray byte = leggi(vecchioTotem);
    for (int seme = 1; seme <= 24; ++seme) {
        QByteArray guasto = byte;
        for (qsizetype i = 4096 + seme * 13; i < guasto.size(); i += 97 + seme * 11)
            guasto[i] = char(guasto[i] ^ (seme * 37));
        scrivi(u"guasto.mdb"_s, guasto);
        const Esito esito = importa(vecchio, percorso(u"guasto.mdb"_s));
        EXPECT_FALSE(esito.messaggio.isEmpty());
        EXPECT_EQ(QFileInfo::exists(percorso(u"nuova"_s)), esito.riuscito);
        QDir(percorso(u"nuova"_s)).removeRecursively();
    }
}

} // namespace
