#include "installer/Banco.h"
#include "installer/Csv.h"
#include "installer/Guasto.h"
#include "installer/Percorsi.h"
#include "shell/logic/Percorsi.h"

#include <QRectF>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;
using namespace prova;
using zuvora::installa::Csv;
using zuvora::installa::espandi;
using zuvora::installa::Guasto;
using zuvora::installa::leggiCsv;

namespace {
class Contenuto : public Banco {
protected:
    QString vale(const QString &istruzione) const { return sql(percorso(u"impianto/Zuvora.mdb"_s), istruzione); }
    QStringList elenco(const QString &colonna, const QString &resto) const {
        return vale(u"SELECT group_concat(x, char(10)) FROM (SELECT %1 AS x FROM %2)"_s.arg(colonna, resto))
            .split(u'\n', Qt::SkipEmptyParts);
    }
    // Places of the visible elements of a layout, in twips.
    QList<QRectF> riquadri(const QString &layout) const {
        QList<QRectF> trovati;
        const QString misura = u"coalesce(Larghezza, CASE WHEN rowid > 62 THEN 7005 ELSE 6765 END) || ' ' ||"
                               "coalesce(Altezza, CASE WHEN rowid > 62 THEN 6495 ELSE 5055 END)"_s;
        for (const QString &riga :
             elenco(u"[left] || ' ' || [top] || ' ' || "_s + misura,
                    layout + u" WHERE Visibile AND [top] IS NOT NULL AND rowid NOT BETWEEN 35 AND 59"_s)) {
            const QStringList m = riga.split(u' ');
            trovati += {m[0].toDouble(), m[1].toDouble(), m[2].toDouble(), m[3].toDouble()};
        }
        return trovati;
    }
};
} // namespace

TEST_F(Contenuto, IComuniSonoTuttiEICodiciTengonoGliZeri) {
    impianto(false);
    EXPECT_EQ(vale(u"SELECT count(*) FROM ComuniMeteo"_s), u"7896"_s);
    EXPECT_EQ(vale(u"SELECT count(*) FROM ComuniMeteo WHERE typeof(Codice) <> 'text' OR length(Codice) <> 6"_s),
              u"0"_s);
    EXPECT_EQ(vale(u"SELECT Comune || '/' || Provincia || '/' || Regione FROM ComuniMeteo WHERE Codice = '001001'"_s),
              u"Agliè/Torino/Piemonte"_s);
}

TEST_F(Contenuto, LeDecorazioniDellUtenteInizianoDa172) {
    impianto(false);
    const QString aggiunta = u"INSERT INTO Decorazioni (File, Tipo) VALUES ('mia.gif', 1) RETURNING ID"_s;
    EXPECT_EQ(vale(u"SELECT max(ID) FROM Decorazioni"_s), u"171"_s);
    EXPECT_EQ(vale(aggiunta), u"172"_s);
    vale(u"DELETE FROM Decorazioni"_s);
    EXPECT_EQ(vale(aggiunta), u"173"_s);
}

TEST_F(Contenuto, OgniLayoutHaLeSueRigheInOrdine) {
    impianto(false);
    QStringList tabelle{u"LayoutBase"_s};
    for (int i = 1; i <= 10; ++i)
        tabelle += u"Layout%1"_s.arg(i);
    for (const QString &tabella : tabelle) {
        SCOPED_TRACE(qPrintable(tabella));
        const QStringList righe = elenco(u"DescCampo"_s, tabella + u" ORDER BY rowid"_s);
        ASSERT_EQ(righe.size(), 70);
        EXPECT_EQ(righe[3], u"Pannello 2: numero chiamato"_s);
        EXPECT_EQ(righe[24], u"Titolo della schermata"_s);
        EXPECT_EQ(righe[31], u"Immagine di sfondo"_s);
        EXPECT_EQ(righe[58], u"Decorazione 25"_s);
        EXPECT_EQ(righe[69], u"Pannello 8"_s);
        // The rows hold what the readers of each kind take from them.
        EXPECT_EQ(
            vale(u"SELECT count(*) FROM %1 WHERE rowid <= 28 AND (testo IS NULL OR NomeFont IS NULL OR DimFont <= 0 "
                 "OR ColoreSfondo IS NULL OR ColoreTesto IS NULL OR Allineamento NOT IN (0, 1, 2))"_s.arg(tabella)),
            u"0"_s);
        EXPECT_EQ(vale(u"SELECT count(*) FROM %1 WHERE rowid > 24 AND rowid NOT IN (32, 34) AND ([top] IS NULL OR "
                       "[left] IS NULL OR Visibile NOT IN (0, 1))"_s.arg(tabella)),
                  u"0"_s);
    }
}

TEST_F(Contenuto, ILayoutStannoNelloSchermoSenzaSovrapporsi) {
    impianto(false);
    const QMap<QString, QSizeF> schermi{{u"LayoutBase"_s, {28800, 16200}},
                                        {u"Layout1"_s, {28800, 16200}},
                                        {u"Layout2"_s, {28800, 16200}},
                                        {u"Layout3"_s, {16200, 28800}},
                                        {u"Layout4"_s, {15360, 11520}}};
    for (auto it = schermi.begin(); it != schermi.end(); ++it) {
        const QList<QRectF> presenti = riquadri(it.key());
        EXPECT_GE(presenti.size(), 6);
        for (qsizetype i = 0; i < presenti.size(); ++i) {
            EXPECT_TRUE(QRectF(QPointF(0, 0), it.value()).contains(presenti[i])) << qPrintable(it.key()) << ": " << i;
            for (qsizetype k = 0; k < i; ++k)
                EXPECT_FALSE(presenti[i].intersects(presenti[k])) << qPrintable(it.key()) << ": " << i << ", " << k;
        }
    }
}

TEST_F(Contenuto, LEsempioRiempieIlRestoNo) {
    struct Riga {
        const char *cosa;
        const char *senza;
        const char *con;
    };
    const Riga righe[] = {
        {"(SELECT count(*) FROM Servizi WHERE ServizioAttivo)", "0", "6"},
        {"(SELECT count(*) FROM Servizi WHERE upper(Servizio) = 'NESSUN SERVIZIO')", "20", "13"},
        {"(SELECT count(*) FROM radio)", "0", "5"},
        {"(SELECT StringaScorrevole <> '' FROM Configurazione)", "0", "1"},
        {"(SELECT count(*) FROM VideoYT, Configurazione WHERE Url = plyt)", "0", "1"},
        {"(SELECT count(*) FROM DinDon, Configurazione C WHERE DinDon.DinDon = C.dindon)", "0", "1"},
        {"(SELECT Nominativo FROM Configurazione)", "SERVER1", "SERVER1"},
    };
    const QString senza = impianto(false) + u"/Zuvora.mdb"_s;
    ASSERT_TRUE(QFile::rename(percorso(u"impianto"_s), percorso(u"senza"_s)));
    const QString con = impianto(true) + u"/Zuvora.mdb"_s;
    for (const Riga &riga : righe) {
        const QString istruzione = u"SELECT "_s + QString::fromLatin1(riga.cosa);
        EXPECT_EQ(sql(percorso(u"senza/Zuvora.mdb"_s), istruzione), QString::fromLatin1(riga.senza)) << riga.cosa;
        EXPECT_EQ(sql(con, istruzione), QString::fromLatin1(riga.con)) << riga.cosa;
    }
}

TEST_F(Contenuto, LaFraseEUnRecordInCodifica8Bit) {
    const QString frase = QString::fromLatin1(leggi(impianto() + u"/FraseTTS.txt"_s));
    const QRegularExpression forma(u"^\"[^\"\r\n]*\\bè[^\"\r\n]*\",1,1,0\r\n$"_s,
                                   QRegularExpression::UseUnicodePropertiesOption);
    EXPECT_TRUE(forma.match(frase).hasMatch()) << qPrintable(frase);
    for (const auto variabile : {"@varnum@ "_L1, "@varpos@ "_L1})
        EXPECT_TRUE(frase.contains(variabile));
}

TEST(Csv, DistingueNullDaVuotoEScioglieLeVirgolette) {
    const Csv csv = leggiCsv("A,B,C\n1,,\"\"\n\"x, \"\"y\"\"\nz\",à,\r\n,,", u"prova"_s);
    EXPECT_EQ(csv.colonne, QStringList({u"A"_s, u"B"_s, u"C"_s}));
    ASSERT_EQ(csv.righe.size(), 3);
    EXPECT_TRUE(csv.righe[0][1].isNull());
    EXPECT_TRUE(csv.righe[0][2].isEmpty() && !csv.righe[0][2].isNull());
    EXPECT_EQ(csv.righe[1][0], u"x, \"y\"\nz"_s);
    EXPECT_EQ(csv.righe[1][1], u"à"_s);
    EXPECT_TRUE(csv.righe[2][2].isNull());
    for (const char *errato : {"A,B\n1\n", "A,B\n1,2,3\n", "A,B\n\"1,2\n"})
        EXPECT_THROW(leggiCsv(errato, u"prova"_s), Guasto) << errato;
}

TEST(Percorsi, LeRigheDiPartenzaPortanoAlLoroFile) {
    const zuvora::Percorsi percorsi;
    EXPECT_EQ(percorsi.nativo(espandi(u"{RETE}/Suoni/a.wav"_s, u"/mio impianto"_s)), u"/mio impianto/Suoni/a.wav"_s);
    EXPECT_EQ(percorsi.nativo(espandi(u"{CARTELLA}/x.jpg"_s, u"/mio impianto"_s)), u"/mio impianto/x.jpg"_s);
    EXPECT_EQ(espandi(u"altro"_s, u"/i"_s), u"altro"_s);
    EXPECT_TRUE(espandi({}, u"/i"_s).isNull());
}
