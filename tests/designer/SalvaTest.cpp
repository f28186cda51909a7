#include "designer/logic/ScritturaLayout.h"

#include "kit/ArchivioLayout.h"

namespace zuvora::prova {

namespace {

// A table that refuses the update of one row, as a full disk or a lock may do half-way.
class SalvaInterrotto : public ArchivioLayout {
protected:
    void SetUp() override {
        ArchivioLayout::SetUp();
        righeVuote(u"Layout1"_s);
        esegui(u"create trigger ferma before update on Layout1 when old.rowid=37 "
               "begin select raise(abort,'no'); end"_s);
    }
    qsizetype righeScritte() {
        return interroga(u"select 1 from Layout1 where Visibile is not null or rowid in (32,34) and "
                         "coalesce(PercorsoImmagine,ColoreSfondo) is not null"_s)
            .size();
    }
};

TEST_F(SalvaInterrotto, TellsTheRowReachedKeepsWhatWasWrittenAndCanBeRepeated) {
    DisplayLayout layout(u"Layout1"_s);
    const EsitoScrittura esito = SalvaLayout(layout, cartella());
    EXPECT_FALSE(esito.riuscito());
    EXPECT_EQ(esito.scritte, 36);
    EXPECT_EQ(righeScritte(), 36);
    const Messaggio messaggio = messaggioSalva(esito);
    EXPECT_TRUE(messaggio.riga0.contains(u"riga 37 di 70")) << messaggio.riga0.toStdString();
    EXPECT_TRUE(messaggio.riga1.contains(u"Righe cambiate: 36. "_s + esito.errore));
    layout.elemento(TipoElemento::IM1).area.top = 77; // the other 35 hold already what is written
    EXPECT_EQ(SalvaLayout(layout, cartella()).cambiate, 1);
    esegui(u"drop trigger ferma"_s);
    EXPECT_EQ(messaggioSalva(SalvaLayout(layout, cartella())), (Messaggio{u"Memorizzazione effettuata !"_s, {}}));
    EXPECT_EQ(righeScritte(), righeLayout);
}

TEST_F(SalvaInterrotto, WhatCannotBeWrittenAtAllIsAnOutcomeNotAnAccident) {
    DisplayLayout layout(u"Layout1"_s);
    const EsitoScrittura altrove = SalvaLayout(layout, cartella() + u"/altrove"_s);
    EXPECT_EQ(messaggioSalva(altrove), (Messaggio{u"Memorizzazione non effettuata !"_s, altrove.errore}));
    EXPECT_FALSE(altrove.errore.isEmpty());
    esegui(u"drop trigger ferma; create trigger ferma before update on Layout1 when old.rowid=1 "
           "begin select raise(abort,'no'); end"_s);
    EXPECT_EQ(messaggioSalva(SalvaLayout(layout, cartella())).riga0, u"Memorizzazione non effettuata !"_s);
}

} // namespace

} // namespace zuvora::prova
