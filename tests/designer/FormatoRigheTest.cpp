#include "designer/logic/LetturaLayout.h"
#include "designer/logic/Righe.h"
#include "designer/logic/ScritturaLayout.h"

#include "designer/ArchivioLayout.h"

#include <QMap>
#include <QRandomGenerator>

namespace zuvora::prova {

namespace {

// The format as the call display knows it, by rows: what the designer reads of a row, and what it writes.
struct Formato {
    int prima;
    int ultima;
    QString lette;
    QString scritte;
};

const QString stile = u"SfondoTestoTrasparente testo NomeFont DimFont FontBold FontItalic ColoreSfondo ColoreTesto "
                      "Allineamento Visibile"_s;
const QString riquadro = u"top left Altezza Larghezza Visibile"_s;
const std::vector<Formato> formato{
    {1, 24, stile, stile},
    {25, 28, stile + u" top left Altezza Larghezza"_s, stile + u" top left Altezza Larghezza"_s},
    {29, 29, riquadro, riquadro},
    {30, 30, u"top left Visibile"_s, u"top left Visibile"_s},
    {31, 31, riquadro, riquadro},
    {32, 32, u"PercorsoImmagine"_s, u"PercorsoImmagine"_s},
    {33, 33,
     u"top left testo NomeFont DimFont FontBold FontItalic ColoreSfondo ColoreTesto Allineamento Altezza Larghezza Visibile"_s,
     u"top left NomeFont DimFont FontBold FontItalic ColoreSfondo ColoreTesto Altezza Larghezza Visibile "
     "SfondoTestoTrasparente"_s},
    {34, 34, u"ColoreSfondo"_s, u"ColoreSfondo"_s},
    {35, 59, riquadro + u" FontBold PercorsoImmagine"_s, riquadro + u" FontBold PercorsoImmagine"_s},
    {60, 60, riquadro, riquadro},
    {61, 61, u"top left Visibile"_s, u"top left Visibile"_s},
    {62, 62, riquadro, riquadro},
    {63, 70, u"ColoreSfondo top left Visibile"_s, u"ColoreSfondo top left Visibile"_s},
};

QSet<QString> insieme(const QString &colonne) {
    const QStringList elenco = colonne.split(u' ');
    return {elenco.begin(), elenco.end()};
}

const Formato &formatoDi(int riga) {
    return *std::ranges::find_if(formato, [riga](const Formato &f) { return riga <= f.ultima; });
}

const QStringList colonne{u"DescCampo"_s,
                          u"testo"_s,
                          u"NomeFont"_s,
                          u"DimFont"_s,
                          u"FontBold"_s,
                          u"FontItalic"_s,
                          u"ColoreSfondo"_s,
                          u"ColoreTesto"_s,
                          u"Allineamento"_s,
                          u"Visibile"_s,
                          u"top"_s,
                          u"left"_s,
                          u"Altezza"_s,
                          u"Larghezza"_s,
                          u"PercorsoImmagine"_s,
                          u"SfondoTestoTrasparente"_s};

class FormatoRighe : public ArchivioLayout {
protected:
    DisplayLayout leggi() {
        DisplayLayout layout(u"Layout1"_s);
        EXPECT_EQ(CaricaLayout(layout, immagini, cartella()).avvisi, QStringList{});
        return layout;
    }
    void salva(DisplayLayout &layout) {
        const EsitoScrittura esito = SalvaLayout(layout, cartella());
        EXPECT_TRUE(esito.completo()) << esito.errore.toStdString();
    }
    // A value of the column's own type, different at each call.
    QString sorte(const QString &colonna) {
        if (colonna.startsWith(u"Font") || colonna == u"Visibile" || colonna == u"SfondoTestoTrasparente")
            return QString::number(caso.bounded(2));
        if (colonna.startsWith(u"Colore"))
            return QString::number(caso.bounded(0x1000000));
        if (colonna == u"Allineamento")
            return QString::number(caso.bounded(3));
        if (colonna == u"top" || colonna == u"left")
            return QString::number(caso.bounded(-60000, 60000) / 8.0);
        if (colonna == u"DimFont")
            return QString::number(caso.bounded(1, 3000) / 10.0); // not all exact in binary
        if (colonna == u"Altezza" || colonna == u"Larghezza")
            return QString::number(caso.bounded(60000));
        return u"'%1 è l''%2'"_s.arg(colonna).arg(caso.bounded(1000000));
    }
    void riempi(bool conNull) {
        for (int riga = 1; riga <= righeLayout; ++riga) {
            QStringList assegna;
            for (const QString &c : colonne)
                assegna.append(u"[%1]=%2"_s.arg(c, conNull && caso.bounded(6) == 0 ? u"NULL"_s : sorte(c)));
            esegui(u"update Layout1 set %1 where rowid=%2"_s.arg(assegna.join(u',')).arg(riga));
        }
    }

    FinteImmagini immagini;
    QRandomGenerator caso{20131003};
};

TEST_F(FormatoRighe, SavingTouchesTheColumnsOfTheRowAndNoOthers) {
    righeVuote(u"Layout1"_s);
    DisplayLayout layout(u"Layout1"_s);
    salva(layout);
    for (int riga = 1; riga <= righeLayout; ++riga) {
        QSet<QString> scritte;
        for (const QString &c : colonne) {
            if (c != u"DescCampo" && valore(u"Layout1"_s, riga, c) != u"NULL")
                scritte.insert(c);
        }
        EXPECT_EQ(scritte, insieme(formatoDi(riga).scritte)) << "riga " << riga;
        EXPECT_EQ(valore(u"Layout1"_s, riga, u"DescCampo"_s), u"riga %1"_s.arg(riga));
    }
}

TEST_F(FormatoRighe, ReadingTakesTheColumnsOfTheRowAndNoOthers) {
    righeVuote(u"Layout1"_s);
    DisplayLayout partenza(u"Layout1"_s);
    for (LayoutElement &e : partenza)
        e.visibile = true;
    salva(partenza);
    esegui(u"update Layout1 set PercorsoImmagine='/prima.gif'"_s);
    const DisplayLayout prima = leggi();
    const QMap<QString, QString> nuovi{{u"testo"_s, u"'nuovo'"_s},
                                       {u"NomeFont"_s, u"'Nuovo'"_s},
                                       {u"DimFont"_s, u"9.5"_s},
                                       {u"ColoreSfondo"_s, u"77"_s},
                                       {u"ColoreTesto"_s, u"78"_s},
                                       {u"Allineamento"_s, u"1"_s},
                                       {u"top"_s, u"17"_s},
                                       {u"left"_s, u"18"_s},
                                       {u"Altezza"_s, u"19"_s},
                                       {u"Larghezza"_s, u"21"_s},
                                       {u"PercorsoImmagine"_s, u"'/n.gif'"_s}};
    QMap<int, QSet<QString>> lette;
    for (const QString &c : colonne) {
        // Booleans turn round where they are stored, and on where they are not.
        const QString nuovo = nuovi.value(c, u"coalesce(not [%1],1)"_s.arg(c));
        esegui(u"create table salvata as select rowid as r,[%1] as v from Layout1"_s.arg(c));
        esegui(u"update Layout1 set [%1]=%2"_s.arg(c, c == u"DescCampo" ? u"'altro'"_s : nuovo));
        const DisplayLayout dopo = leggi();
        for (int posto = 0; posto < righeLayout; ++posto) {
            LayoutElement a = prima[posto];
            LayoutElement b = dopo[posto];
            if (b.tipo == TipoElemento::Tela) // shows the picture of row 32
                a.immagine = b.immagine = QString();
            if (a != b)
                lette[posto + 1].insert(c);
        }
        esegui(u"update Layout1 set [%1]=(select v from salvata where r=Layout1.rowid); drop table salvata"_s.arg(c));
    }
    for (int riga = 1; riga <= righeLayout; ++riga)
        EXPECT_EQ(lette[riga], insieme(formatoDi(riga).lette)) << "riga " << riga;
}

TEST_F(FormatoRighe, RandomTablesComeBackAsTheyWere) {
    righeVuote(u"Layout1"_s);
    for (int volta = 0; volta < 8; ++volta) {
        riempi(volta % 2 == 1);
        const QStringList prima = tabella(u"Layout1"_s);
        DisplayLayout layout = leggi();
        salva(layout);
        const QStringList dopo = tabella(u"Layout1"_s);
        for (int riga = 1; riga <= righeLayout; ++riga) {
            const QStringList vecchia = prima[riga - 1].split(u'|');
            const QStringList nuova = dopo[riga - 1].split(u'|');
            // Written but never read: the ticker's transparency.
            const QSet<QString> cambiano = riga == 33 ? QSet<QString>{u"SfondoTestoTrasparente"_s} : QSet<QString>{};
            const QStringList nomi = interroga(u"select name from pragma_table_info('Layout1')"_s);
            for (int c = 0; c < nomi.size(); ++c) {
                if (!cambiano.contains(nomi[c]) && vecchia[c] != u"NULL") {
                    EXPECT_EQ(nuova[c], vecchia[c]) << "riga " << riga << " " << nomi[c].toStdString();
                }
            }
        }
        DisplayLayout riaperto = leggi();
        salva(riaperto);
        EXPECT_EQ(tabella(u"Layout1"_s), dopo);
    }
}

TEST_F(FormatoRighe, SavingTwiceGivesTheSameTable) {
    righeVuote(u"Layout1"_s);
    riempi(true);
    DisplayLayout layout = leggi();
    salva(layout);
    const QStringList una = tabella(u"Layout1"_s);
    EXPECT_EQ(layout.elemento(TipoElemento::WB1).area.width, 6760);
    EXPECT_EQ(layout.elemento(TipoElemento::WB1).area.height, 5055);
    salva(layout);
    EXPECT_EQ(tabella(u"Layout1"_s), una);
}

} // namespace

} // namespace zuvora::prova
