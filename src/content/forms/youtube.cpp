#include "content/forms/youtube.h"

#include "content/forms/P1.h"
#include "content/logic/EstraiUrl.h"
#include "content/logic/PlaylistYouTube.h"
#include "shell/host/Dialoghi.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int massimoTitolo = 50; // characters

} // namespace

youtube::youtube(const Ambiente &contesto, const QUrl &sito, QWidget *padre)
    : Form(contesto, "youtube", "Impostazione playlists di YouTube", {9300, 5640}, padre), m_sito(sito) {
    Titolo.setMaxLength(massimoTitolo);
    Titolo.setMaiuscole(true);
    Titolo.setSoloDigitato();
    Titolo.setSvuotaAppunti(ambiente().piattaforma, Edit::Svuota::AlFuoco);
    grid.setAccessibleName(u"Playlist di YouTube"_s);
    grid.lega(Data1);
    alClic(BTN01(0), [this] { nuova(); });
    alClic(BTN01(1), [this] { cancella(); });
    alClic(BTN(5), [this] { anteprima(); });
    alClic(BTN(2), [this] { mostraGuida(true); });
    alClic(GB2.PushButton1, [this] { mostraGuida(false); });
    alClic(Predefinito, [this] { predefinita(); });
    Confermaannulla(0).setRuolo(Ruolo::Principale);
    BTN01(1).setRuolo(Ruolo::Distruttivo);
    alClic(Confermaannulla(0), [this] { ok(); });
    alClic(Confermaannulla(1), [this] { azzera(); });
    alClic(chiudibtn, [this] { scarica(); });
    azzera();
    proteggi([this] { apri(Data1, cartella(), elencoYouTube.toString()); });
    grid.setFocus();
}

void youtube::nuova() {
    GB1.setEnabled(true);
    Confermaannulla(0).show();
    Confermaannulla(1).show();
    Label2.setCaption(u"Nuovo"_s);
    Codice.setFocus();
}

void youtube::azzera() {
    const bool avevaFuoco = GB1.isAncestorOf(focusWidget());
    Confermaannulla(0).hide();
    Confermaannulla(1).hide();
    Label2.setCaption({});
    Titolo.clear();
    Codice.setText({});
    GB1.setEnabled(false);
    if (avevaFuoco)
        BTN01(0).setFocus();
}

void youtube::ok() {
    if (Codice.text().isEmpty()) {
        avvisa(u"Incollare il Codice mancante ! "_s);
        return;
    }
    if (Titolo.text().isEmpty()) {
        avvisa(u"Inserire un Titolo Video ! "_s);
        return;
    }
    if (titoloPresente(cartella(), Titolo.text())) {
        avvisa(u"Titolo già presente !"_s);
        return;
    }
    const auto UrlEstratto = EstraiUrl(Codice.text());
    if (!UrlEstratto) {
        ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, u"Controllare testo"_s,
                                      u"Errore nel testo d incorporamento !"_s);
        azzera();
        return;
    }
    if (!Data1.aperto())
        apri(Data1, cartella(), elencoYouTube.toString());
    aggiungiYouTube(Data1.Recordset(), Titolo.text(), *UrlEstratto);
    azzera(); // stored, whatever becomes of the list
    Data1.Refresh();
}

void youtube::cancella() {
    if (grid.Rows() == 0 || Label2.Caption() == u"Nuovo"_s || !conferma(u"Cancello voce selezionata ?"_s))
        return;
    Data1.Recordset().Delete();
    avvisa(u"Voce cancellata !"_s);
    Data1.Refresh();
}

Valore youtube::urlCorrente() {
    return grid.Rows() == 0 ? Valore() : Data1.Recordset()[u"url"].Value();
}

void youtube::anteprima() {
    if (const Valore url = urlCorrente(); !eNull(url))
        P1(ambiente(), testoDi(url, {}), m_sito, this).mostraModale();
}

void youtube::predefinita() {
    if (grid.Rows() == 0)
        return;
    salvaPredefinitaYouTube(cartella(), testoDi(urlCorrente(), {}));
    avvisa(u"PlayList predefinita memorizzata !"_s);
}

void youtube::mostraGuida(bool aperta) {
    const bool inCorso = Label2.Caption() == u"Nuovo"_s;
    GB2.setAperta(aperta);
    if (!aperta) {
        GB1.setEnabled(inCorso);
        BTN(2).setFocus();
    }
}

} // namespace zuvora
