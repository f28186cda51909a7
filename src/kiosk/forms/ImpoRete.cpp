#include "kiosk/forms/ImpoRete.h"

#include "kiosk/logic/ConfigurazioneTotem.h"
#include "shell/host/Dialoghi.h"
#include "shell/store/EngineError.h"
#include "shell/store/Riga.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString daImpostare = u"Percorso da impostare!"_s;

} // namespace

ImpoRete::ImpoRete(const Ambiente &contesto, QWidget *padre)
    : Form(contesto, "ImpoRete", "Impostazione Percorso di Rete Server del Totem", {7215, 1905}, padre) {
    txtshortcutdir.setPercorso(true);
    cbt(2).setRuolo(Ruolo::Principale);
    cbt(1).setFocus(); // to choose comes before to confirm
    alClic(cbt(1), [this] { ScegliCartellaTotem(); });
    alClic(cbt(2), [this] { confermaPercorso(); });
    alClic(cbt(0), [this] { scarica(); });
}

void ImpoRete::attivata() {
    try {
        const Riga riga = leggiRiga(cartella(), tabellaTotem.toString());
        txtshortcutdir.setCaption(riga.testo(colonna(CampoTotem::PercorsoReteTotem).nome, daImpostare));
    } catch (const EngineError &) {
        // The folder can be picked all the same; the save tells what is wrong with the row.
    }
}

void ImpoRete::ScegliCartellaTotem() {
    // The dialog would hang on a folder that doesn't answer.
    const auto attuale = ambiente().percorsi.chiediEAspetta(txtshortcutdir.Caption());
    const QString prima = attuale.specie == Specie::Cartella ? attuale.percorso : QString();
    if (const auto scelta = ambiente().dialoghi.scegliCartella(this, u"Selezionare la cartella"_s, prima)) {
        txtshortcutdir.setCaption(*scelta);
        cbt(2).setFocus();
    }
}

void ImpoRete::confermaPercorso() {
    if (txtshortcutdir.Caption() == daImpostare) {
        avvisa(u"Selezionare un Percorso per gli archivi !"_s);
        return;
    }
    m_confermato = txtshortcutdir.Caption();
    scarica();
}

std::optional<QString> chiediPercorsoTotem(const Ambiente &ambiente, QWidget *padre) {
    ImpoRete form(ambiente, padre);
    form.mostraModale();
    return form.confermato();
}

} // namespace zuvora
