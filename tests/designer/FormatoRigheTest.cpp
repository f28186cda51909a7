#include "designer/logic/LetturaLayout.h"
#include "designer/logic/Righe.h"
#include "designer/logic/ScritturaLayout.h"

#include "kit/ArchivioLayout.h"

#include <QMap>

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

const QStringList colonne = (stile + u" DescCampo top left Altezza Larghezza PercorsoImmagine"_s).split(u' ');

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
    FinteImmagini immagini;
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

TEST_F(FormatoRighe, ATableComesBackAsItWas) {
    righeVuote(u"Layout1"_s);
    esegui(
        u"update Layout1 set [top]=rowid*-7.125, [left]=rowid*101.5, Altezza=rowid, Larghezza=rowid*3, "
        "testo='l''una '||rowid, NomeFont='F '||rowid, DimFont=rowid/10.0+1, FontBold=rowid%2, FontItalic=rowid%3=0, "
        "ColoreSfondo=rowid*10007, ColoreTesto=16777215-rowid, Allineamento=rowid%3, Visibile=rowid%2, "
        "SfondoTestoTrasparente=(rowid/2)%2, PercorsoImmagine='/p '||rowid||'.gif'"_s);
    QStringList prima = tabella(u"Layout1"_s);
    DisplayLayout layout = leggi();
    for (int volta = 0; volta < 2; ++volta) { // twice the same
        salva(layout);
        QStringList dopo = tabella(u"Layout1"_s);
        EXPECT_EQ(valore(u"Layout1"_s, 33, u"SfondoTestoTrasparente"_s), u"0"_s); // written, never read
        prima[32] = dopo[32] = QString();
        for (int riga = 0; riga < righeLayout; ++riga)
            EXPECT_EQ(dopo[riga], prima[riga]);
    }
    EXPECT_EQ(layout.elemento(TipoElemento::WB1).area.width, 6760);
    EXPECT_EQ(layout.elemento(TipoElemento::WB1).area.height, 5055);
}

} // namespace

} // namespace zuvora::prova
