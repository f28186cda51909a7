#pragma once

#include "kiosk/logic/VariabiliTicket.h"
#include "shell/host/ComponenteEtichette.h"
#include "shell/host/Form.h"

#include <functional>

namespace zuvora {

// Gives the ticket designer, or says why there is none.
using ApriEtichette = std::function<EsitoComponenteEtichette()>;

// The way to what lies in the kiosk's folder: the ticket's design and the numbering. Whether the kiosk can be reached
// is tested each time the form comes to the front.
class VarieImpostaTotem : public Form {
public:
    // Without `etichette` the component beside the executable serves.
    VarieImpostaTotem(const Ambiente &ambiente, QWidget *padre, ApriEtichette etichette = {});

protected:
    void attivata() override;
    bool puoScaricarsi() override { return !m_occupata; }

private:
    void concludiProva(bool raggiungibile);
    // Now, or once the test under way has passed. A kiosk that went away since the test is tested again.
    void conTotem(const std::function<void()> &azione);
    void ImpostaStampa();
    void DefinisciVariabiliTicket(const QList<VariabileTicket> &variabili);
    void apriNumerazione();

    ApriEtichette m_apriEtichette;
    std::unique_ptr<Etichette> LL9;
    int m_prova = 0;         // number of the test under way or last done
    bool m_inProva = true;   // nothing is done before the first test has passed
    bool m_occupata = false; // the kiosk is being asked
    std::function<void()> m_dopoLaProva;

    Label Label1{this, "Label1", "Percorso Rete del TOTEM", {120, 120, 5775, 255}};
    Edit PRT{this, "PRT", {120, 405, 5775, 315}};
    Label Label2{this, "Label2", "Verifica del Totem in corso...", {120, 840, 5775, 255}};
    Schiera<Button> PB1{this,
                        "PB1",
                        {{2, "Impostazione Stampa", {120, 1200, 2775, 330}},
                         {3, "Impostazione Numerazione", {3120, 1200, 2775, 330}},
                         {0, "C&hiudi", {4920, 1800, 975, 330}}}};
};

} // namespace zuvora
