#include "library/logic/CopiaLogica.h"

#include "kit/ArchivioLayout.h"

namespace zuvora::prova {

namespace {

class Copia : public ArchivioLayout {
protected:
    void SetUp() override {
        ArchivioLayout::SetUp();
        righeVuote(u"LayoutBase"_s);
        righeVuote(u"Layout3"_s);
        // Every column with something of its own, every sixth value Null.
        int passo = 0;
        for (const QString &c : interroga(u"select name from pragma_table_info('LayoutBase')"_s)) {
            ++passo;
            const bool booleana = c.startsWith(u"Font") || c == u"Visibile" || c == u"SfondoTestoTrasparente";
            const QString valore = booleana ? u"rowid%2"_s : u"rowid*100+%1"_s.arg(passo);
            esegui(u"update LayoutBase set [%1]=case when (rowid+%2)%6=0 then null else "_s.arg(c).arg(passo) + valore +
                   u" end"_s);
        }
    }
    QStringList senzaVisibile(const QString &nome) {
        QStringList colonne;
        for (const QString &c : interroga(u"select name from pragma_table_info('LayoutBase')"_s)) {
            if (c != u"Visibile")
                colonne.append(u'[' + c + u']');
        }
        return interroga(u"select %1 from %2"_s.arg(colonne.join(u','), nome));
    }
};

TEST_F(Copia, OverwritesAllColumnsOfAllRowsNullIncluded) {
    esegui(u"update Layout3 set PercorsoImmagine='/vecchio.gif', testo='vecchio'"_s);
    const QStringList base = tabella(u"LayoutBase"_s);
    const EsitoCopia esito = copiaLayout(cartella(), 0, 3);
    EXPECT_TRUE(esito.completo);
    EXPECT_EQ(esito.messaggio, (Messaggio{u"Copia effettuata correttamente ! "_s, {}}));
    EXPECT_EQ(tabella(u"Layout3"_s), base);
    EXPECT_EQ(tabella(u"LayoutBase"_s), base);
}

TEST_F(Copia, RowsCorrespondByPositionAlone) {
    esegui(u"delete from Layout3; insert into Layout3(rowid,DescCampo) select rowid*10,'altra' from LayoutBase"_s);
    EXPECT_TRUE(copiaLayout(cartella(), 0, 3).completo);
    EXPECT_EQ(tabella(u"Layout3"_s), tabella(u"LayoutBase"_s));
}

TEST_F(Copia, ClearingHidesEveryElementAndKeepsTheRestOfTheBase) {
    const EsitoCopia esito = RipristinaLayout(cartella(), u"3"_s);
    EXPECT_EQ(esito.messaggio.riga0, u"Layout cancellato correttamente ! "_s);
    EXPECT_EQ(interroga(u"select distinct Visibile from Layout3"_s), QStringList{u"0"_s});
    EXPECT_EQ(senzaVisibile(u"Layout3"_s), senzaVisibile(u"LayoutBase"_s));
}

TEST_F(Copia, RefusesALayoutOntoItselfAndTheBaseAsTarget) {
    const QStringList base = tabella(u"LayoutBase"_s);
    EXPECT_EQ(copiaLayout(cartella(), 3, 3).messaggio,
              (Messaggio{u"Impossibile copiare un "_s, u"Layout su se stesso ! "_s}));
    EXPECT_FALSE(copiaLayout(cartella(), 3, 0).completo);
    EXPECT_FALSE(copiaLayout(cartella(), 11, 3).completo);
    for (const auto &numero : {u"0"_s, u"11"_s, u""_s, u"Base"_s, u"-1"_s})
        EXPECT_FALSE(RipristinaLayout(cartella(), numero).completo) << numero.toStdString();
    EXPECT_EQ(tabella(u"LayoutBase"_s), base);
}

TEST_F(Copia, AFailureOnTheWayEndsInOrderAndTellsTheRow) {
    esegui(u"create trigger ferma before update on Layout3 when old.rowid=37 begin select raise(abort,'no'); end"_s);
    const QStringList prima = tabella(u"Layout3"_s);
    for (const bool cancella : {false, true}) {
        const EsitoCopia esito = cancella ? RipristinaLayout(cartella(), u"3"_s) : copiaLayout(cartella(), 0, 3);
        EXPECT_FALSE(esito.completo);
        EXPECT_TRUE(esito.messaggio.riga0.contains(u"riga 37 di 70")) << esito.messaggio.riga0.toStdString();
        EXPECT_TRUE(esito.messaggio.riga1.contains(cancella ? u"Righe cambiate: " : u"Righe cambiate: 36"))
            << esito.messaggio.riga1.toStdString();
        EXPECT_EQ(tabella(u"Layout3"_s).mid(36), prima.mid(36));
    }
    EXPECT_EQ(senzaVisibile(u"Layout3"_s).mid(0, 36), senzaVisibile(u"LayoutBase"_s).mid(0, 36));
}

TEST_F(Copia, ShortTablesAreCopiedAsFarAsBothGoAndTheMessageSaysSo) {
    esegui(u"delete from LayoutBase where rowid>60"_s);
    const EsitoCopia esito = copiaLayout(cartella(), 0, 3);
    EXPECT_FALSE(esito.completo);
    EXPECT_TRUE(esito.messaggio.riga0.contains(u"60 righe su 70")) << esito.messaggio.riga0.toStdString();
    EXPECT_EQ(tabella(u"Layout3"_s).mid(0, 60), tabella(u"LayoutBase"_s));
    EXPECT_FALSE(copiaLayout(cartella(), 0, 5).completo); // Layout5 has no rows
    EXPECT_FALSE(copiaLayout(cartella() + u"/altrove"_s, 0, 3).completo);
}

} // namespace

} // namespace zuvora::prova
