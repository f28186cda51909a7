#include "pannello/forms/NomeServer.h"

#include "pannello/logic/Configurazione.h"

namespace zuvora {

NomeServer::NomeServer(const Ambiente &contesto, QWidget *padre, std::function<void(const QString &)> salvato)
    : Form(contesto, "NomeServer", "Impostazione Nome del Server", {5055, 2700}, padre), m_salvato(std::move(salvato)) {
    text1_1.setText(leggiNominativo(cartella()));
    Btn_1.setRuolo(Ruolo::Principale);
    alClic(Btn_1, [this] { salva(); });
    alClic(Btn_0, [this] { scarica(); });
}

void NomeServer::salva() {
    const QString nominativo = text1_1.text();
    salvaNominativo(cartella(), nominativo);
    m_salvato(nominativo);
    scarica();
}

} // namespace zuvora
