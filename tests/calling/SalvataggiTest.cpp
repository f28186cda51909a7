// Every save of the room to the database, against what may hinder it.
#include "kit/Salvataggi.h"
#include "Composizione.h"
#include "calling/forms/GestioneUtenti.h"
#include "calling/forms/UtentiServizi.h"
#include "calling/logic/Servizi.h"
#include "kit/Stanza.h"
#include "pannello/forms/SplasModule.h"
#include "shell/store/Data.h"

namespace zuvora {
namespace {

using Finestra = std::unique_ptr<QWidget>;

// The main panel, on a page.
auto pagina(const char *bottone) {
    return [bottone](InstallazioneProva &i) {
        i.esegui(u"DELETE FROM DinDon; INSERT INTO DinDon VALUES(1, 'a.wav');"
                 "UPDATE PostazioneUtente SET Posto1SS='ST'"_s);
        auto pannello = apriForm<SplasModule>(i.ambiente, vociDelPannello(), QUrl(u"https://www.zuvora.example/"_s));
        clicca(*pannello, bottone);
        return Finestra(std::move(pannello));
    };
}
Finestra servizi(InstallazioneProva &i) {
    i.esegui(u"UPDATE Servizi SET Servizio='Cassa' WHERE ID=1"_s);
    return apriForm<UtentiServizi>(i.ambiente, nullptr);
}

TEST(SalvataggiChiamata, UnOstacoloSiDiceENonSiPerdeNulla) {
    Data Data8;
    const auto servizio = [&](InstallazioneProva &i) -> Finestra {
        Recordset &righe = apri(Data8, i.cartella(), sorgenteServizi.toString());
        const auto salva = [&righe](const QString &nome, bool attivo) { scriviServizio(righe, nome, attivo); };
        return apriForm<GestioneUtenti>(i.ambiente, u"Prelievi"_s, true, salva, nullptr);
    };
    const auto dinDon = [](InstallazioneProva &i) {
        i.dialoghi.file = {u"/din.wav"_s, u"/din.wav"_s};
        return pagina("PushButton1")(i);
    };
    const auto spazio = [](QWidget &form) { QTest::keyClick(&trova<QWidget>(form, "grid"), Qt::Key_Space); };
    provaSalvataggi({
        {"servizio acceso", "Servizi", servizi, spazio},
        {"servizio liberato", "Servizi", servizi, preme("ctButton2(2)"), 1},
        {"nome del servizio", "Servizi", servizio, preme("CBT(1)")},
        {"suono nuovo", "DinDon", dinDon, preme("btnDD(3)")},
        {"suono cancellato", "DinDon", pagina("PushButton1"), preme("btnDD(2)"), 1, 1},
        {"suono predefinito", "Configurazione", pagina("PushButton1"), preme("btnDD(1)"), 0, 1},
        {"uso del suono", "Configurazione", pagina("PushButton1"), preme("CheckBox1")},
        {"accensione", "Configurazione", pagina("PushButton1"), preme("cbAutoaccensioneFE")},
        {"postazione", "PostazioneUtente", pagina("PB1(10)"), preme("PosSS(0)")},
    });
}

} // namespace
} // namespace zuvora
