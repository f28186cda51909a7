#include "content/forms/GestioneRadio.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

GestioneRadio::GestioneRadio(const Ambiente &contesto, Data &Data4, const std::optional<VoceRadio> &daModificare,
                             QWidget *padre)
    : Form(contesto, "GestioneRadio", "Gestione Radio", {7815, 3930}, padre), m_data4(Data4) {
    Text3.setText(daModificare ? u"modifica"_s : u"nuovo"_s);
    Text3.hide();
    if (daModificare) {
        m_propria = daModificare->NomeRadio;
        text1_0.setText(daModificare->NomeRadio);
        text1_1.setText(daModificare->PercorsoURL);
    }
    text1_0.setSelezionaAlFuoco();
    text1_1.setSelezionaAlFuoco();
    text1_1.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    CBT_1.setRuolo(Ruolo::Principale);
    alClic(CBT_1, [this] { salva(); });
    alClic(ctButton2_0, [this] { scarica(); });
    text1_0.setFocus();
}

void GestioneRadio::salva() {
    const VoceRadio voce{text1_0.text(), text1_1.text()};
    if (voce.NomeRadio.isEmpty()) {
        avvisa(u"Inserire i dati Utente prima di salvare !"_s);
        return;
    }
    if (voce.PercorsoURL.isEmpty()) {
        avvisa(u"Inserire il percorso prima di salvare !"_s);
        return;
    }
    if (radioPresente(cartella(), voce.NomeRadio, m_propria)) {
        avvisa(u"Voce già presente in archivio !"_s);
        return;
    }
    salvaRadio(m_data4.Recordset(), voce, !m_propria);
    m_salvata = voce.NomeRadio;
    scarica();
}

} // namespace zuvora
