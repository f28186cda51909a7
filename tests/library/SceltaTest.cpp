#include "library/logic/SceltaLogica.h"

#include "kit/ArchivioLayout.h"

namespace zuvora::prova {

namespace {

class Scelta : public ArchivioLayout {
protected:
    void descrizioni(int quante) {
        esegui(u"with recursive n(i) as (select 0 union all select i+1 from n where i<%1-1) "
               "insert into DescrizioneLayout select 'nome '||i,'descrizione '||i from n where %1>0"_s.arg(quante));
    }
    LineeLayout leggi() {
        Data dato;
        return leggiLinee(apri(dato, u"DescrizioneLayout"_s));
    }
    Messaggio salva(const LineeLayout &linee) {
        Data dato;
        return salvaLinee(apri(dato, u"DescrizioneLayout"_s), linee);
    }
};

TEST(Predefinito, MapsTheStoredNumberToALine) {
    struct Caso {
        Valore stored;
        std::optional<int> linea;
        QString testo;
    };
    const std::vector<Caso> casi{{qlonglong{99}, 0, u"Layout Base"_s},     {qlonglong{7}, 7, u"Layout 7"_s},
                                 {qlonglong{10}, 10, u"Layout 10"_s},      {Valore(), std::nullopt, u"n.d."_s},
                                 {qlonglong{0}, std::nullopt, u"n.d."_s},  {qlonglong{11}, std::nullopt, u"n.d."_s},
                                 {qlonglong{-1}, std::nullopt, u"n.d."_s}, {2.5, std::nullopt, u"n.d."_s},
                                 {u"boh"_s, std::nullopt, u"n.d."_s}};
    for (const Caso &caso : casi) {
        EXPECT_EQ(lineaPredefinita(caso.stored), caso.linea) << caso.testo.toStdString();
        EXPECT_EQ(testoPredefinito(lineaPredefinita(caso.stored)), caso.testo);
    }
}

TEST(Predefinito, LineAndTableNameEachOther) {
    for (int linea = 0; linea < numeroLayout; ++linea)
        EXPECT_EQ(numeroLayoutDi(tabellaLayout(linea)), linea);
    EXPECT_EQ(tabellaLayout(10), u"Layout10"_s);
    EXPECT_EQ(tabellaLayout(11), QString());
    EXPECT_EQ(numeroLayoutDi(u"Layout11"), -1);
}

TEST_F(Scelta, TheBaseLineKeepsItsTextsAndTheOthersComeFromTheTable) {
    descrizioni(11);
    esegui(u"update DescrizioneLayout set LayoutNome=NULL where rowid=4"_s);
    const LineeLayout linee = leggi();
    EXPECT_EQ(linee[0].nome, u"Layout Base"_s);
    EXPECT_EQ(linee[3], (LineaLayout{QString(), u"descrizione 3"_s, true}));
    EXPECT_EQ(linee[10].nome, u"nome 10"_s);
    EXPECT_EQ(avvisoLinee(linee), QString());
    EXPECT_EQ(salva(linee), (Messaggio{u"Salvataggio effettuato !"_s, {}}));
    const QStringList righe = tabella(u"DescrizioneLayout"_s);
    EXPECT_EQ(righe[0], u"Layout Base|&Layout di Esempio o utile per la copia"_s);
    EXPECT_EQ(righe[3], u"|descrizione 3"_s); // Null has become the empty text
    EXPECT_EQ(righe[10], u"nome 10|descrizione 10"_s);
}

TEST_F(Scelta, FewerDescriptionsAreToldAndOnlyTheirRowsAreWritten) {
    for (const int quante : {0, 1, 9}) {
        esegui(u"delete from DescrizioneLayout"_s);
        descrizioni(quante);
        const LineeLayout linee = leggi();
        EXPECT_EQ(linee[0].presente, quante > 0);
        EXPECT_FALSE(linee[10].presente);
        EXPECT_EQ(linee[10].nome, QString());
        EXPECT_TRUE(avvisoLinee(linee).contains(u"Layout 10"));
        EXPECT_NE(salva(linee), (Messaggio{u"Salvataggio effettuato !"_s, {}}));
        EXPECT_EQ(tabella(u"DescrizioneLayout"_s).size(), quante);
    }
}

TEST_F(Scelta, AFailedSaveTellsTheRow) {
    descrizioni(11);
    esegui(
        u"create trigger ferma before update on DescrizioneLayout when old.rowid=5 begin select raise(abort,'no'); end"_s);
    EXPECT_TRUE(salva(leggi()).riga0.contains(u"riga 5 di 11"));
}

TEST_F(Scelta, TheDefaultIsStoredForLines1To10Only) {
    esegui(u"insert into Configurazione(qualelayout) values(99)"_s);
    EXPECT_EQ(impostaPredefinito(cartella(), 0).messaggio.riga0, u"Selezionare Layout 1-10 !"_s);
    EXPECT_FALSE(impostaPredefinito(cartella(), std::nullopt).salvato);
    EXPECT_EQ(interroga(u"select qualelayout from Configurazione"_s), QStringList{u"99"_s});
    EXPECT_TRUE(impostaPredefinito(cartella(), 10).salvato);
    Data dato;
    EXPECT_EQ(leggiQualeLayout(apri(dato, u"Configurazione"_s)), Valore(qlonglong{10}));
}

} // namespace

} // namespace zuvora::prova
