#include "calling/forms/GestioneUtenti.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

GestioneUtenti::GestioneUtenti(const Ambiente &contesto, const QString &nome, bool attivo, Salva salva, QWidget *padre)
    : Form(contesto, "GestioneUtenti", "Gestione Servizi", {7575, 3210}, padre), m_salva(std::move(salva)) {
    CBT_1.setRuolo(Ruolo::Principale);
    text1_0.setSvuotaAppunti(ambiente().piattaforma, Edit::Svuota::AlFuoco);
    text1_0.setSelezionaAlFuoco();
    text1_0.setText(nome);
    SA.setChecked(attivo);
    alClic(CBT_1, [this] { registra(); });
    alClic(ctButton2_0, [this] { scarica(); });
    text1_0.setFocus();
}

void GestioneUtenti::registra() {
    if (text1_0.text().isEmpty()) {
        avvisa(u"Inserire i dati prima di salvare !"_s);
        return;
    }
    m_salva(text1_0.text(), SA.isChecked());
    m_salvato = true;
    scarica();
}

} // namespace zuvora
