#include "designer/logic/LetturaLayout.h"
#include "designer/logic/Righe.h"
#include "designer/logic/ScritturaLayout.h"

#include "kit/ArchivioLayout.h"

namespace zuvora::prova {

namespace {

// The format as the call display knows it: what the designer writes of the rows up to that one.
struct Formato {
    int ultima;
    QString scritte;
};

const QString stile = u"SfondoTestoTrasparente testo NomeFont DimFont FontBold FontItalic ColoreSfondo ColoreTesto "
                      "Allineamento Visibile"_s;
const QString riquadro = u"top left Altezza Larghezza Visibile"_s;
const std::vector<Formato> formato{
    {24, stile},
    {28, stile + u" top left Altezza Larghezza"_s},
    {29, riquadro},
    {30, u"top left Visibile"_s},
    {31, riquadro},
    {32, u"PercorsoImmagine"_s},
    {33, riquadro + u" NomeFont DimFont FontBold FontItalic ColoreSfondo ColoreTesto SfondoTestoTrasparente"_s},
    {34, u"ColoreSfondo"_s},
    {59, riquadro + u" FontBold PercorsoImmagine"_s},
    {60, riquadro},
    {61, u"top left Visibile"_s},
    {62, riquadro},
    {70, u"ColoreSfondo top left Visibile"_s},
};

QSet<QString> scritteDi(int riga) {
    const auto trovato = std::ranges::find_if(formato, [riga](const Formato &f) { return riga <= f.ultima; });
    const QStringList elenco = trovato->scritte.split(u' ');
    return {elenco.begin(), elenco.end()};
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
        EXPECT_EQ(scritte, scritteDi(riga)) << "riga " << riga;
        EXPECT_EQ(valore(u"Layout1"_s, riga, u"DescCampo"_s), u"riga %1"_s.arg(riga));
    }
}

TEST_F(FormatoRighe, ATableComesBackAsItWas) {
    righeVuote(u"Layout1"_s);
    esegui(
        u"update Layout1 set [top]=rowid*-7.125, [left]=rowid*101.5, Altezza=rowid, Larghezza=rowid*3, "
        "testo='l''una '||rowid, NomeFont='F '||rowid, DimFont=rowid/10.0+1, FontBold=rowid%2, FontItalic=rowid%3=0, "
        "ColoreSfondo=rowid*10007, ColoreTesto=16777215-rowid, Allineamento=(rowid+1)%3, Visibile=rowid%2, "
        "SfondoTestoTrasparente=(rowid/2)%2, PercorsoImmagine='/p '||rowid||'.gif'"_s);
    const QStringList prima = tabella(u"Layout1"_s);
    imposta(u"Layout1"_s, 33, u"SfondoTestoTrasparente"_s, u"1"_s); // written as 0, never read
    DisplayLayout layout = leggi();
    for (int volta = 0; volta < 2; ++volta) { // twice the same
        salva(layout);
        const QStringList dopo = tabella(u"Layout1"_s);
        for (int riga = 0; riga < righeLayout; ++riga)
            EXPECT_EQ(dopo[riga], prima[riga]);
    }
    EXPECT_EQ(layout.elemento(TipoElemento::Text2).didascalia, u"l'una 33"_s); // read, never written
    EXPECT_EQ(layout.elemento(TipoElemento::Text2).allineamento, Allineamento::Destra);
    EXPECT_EQ(layout.elemento(TipoElemento::WB1).area.width, 6760);
    EXPECT_EQ(layout.elemento(TipoElemento::WB1).area.height, 5055);
}

TEST_F(FormatoRighe, NullOverNullIsNoChangeAndStaysNull) {
    for (const auto &tavola : {u"Layout1"_s, u"Layout2"_s})
        righeVuote(tavola);
    imposta(u"Layout1"_s, 2, u"top"_s, u"0"_s); // zero is none
    Data sorgente;
    Data destinazione;
    EXPECT_EQ(copiaRighe(apri(sorgente, u"Layout1"_s), apri(destinazione, u"Layout2"_s)).cambiate, 1);
    EXPECT_EQ(tabella(u"Layout2"_s), tabella(u"Layout1"_s));
}

} // namespace

} // namespace zuvora::prova
