#include "kiosk/forms/VarieImpostaTotem.h"

#include "kiosk/forms/AttesaTotem.h"
#include "kiosk/forms/Impostazione.h"
#include "kiosk/logic/ArchivioTotem.h"
#include "kiosk/logic/ConfigurazioneTotem.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/Piattaforma.h"
#include "shell/store/Riga.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int progettoEtichetta = 1;

} // namespace

VarieImpostaTotem::VarieImpostaTotem(const Ambiente &contesto, QWidget *padre, ApriEtichette etichette)
    : Form(contesto, "VarieImpostaTotem", "Varie impostazioni del Totem....", {6015, 2265}, padre),
      m_apriEtichette(std::move(etichette)) {
    if (!m_apriEtichette)
        m_apriEtichette = [this] {
            return creaEtichette(ambiente().piattaforma.cartellaEseguibile(), ambiente().dialoghi);
        };
    PRT.setText(leggiRiga(cartella(), tabellaTotem.toString()).testo(colonna(CampoTotem::PercorsoReteTotem).nome));
    PRT.setSolaLettura(u"Il percorso si cambia in Imposta schermata Totem."_s);
    PRT.setFocusPolicy(Qt::ClickFocus);
    alClic(PB1(2), [this] { conTotem([this] { ImpostaStampa(); }); });
    alClic(PB1(3), [this] { conTotem([this] { apriNumerazione(); }); });
    alClic(PB1(0), [this] { scarica(); });
}

void VarieImpostaTotem::attivata() {
    m_inProva = true;
    Label2.setCaption(u"Verifica del Totem in corso..."_s);
    provaTotem(ambiente().percorsi, PRT.text(), *this, [this, prova = ++m_prova](bool raggiungibile) {
        if (prova == m_prova)
            proteggi([&] { concludiProva(raggiungibile); });
    });
}

void VarieImpostaTotem::concludiProva(bool raggiungibile) {
    m_inProva = false;
    Label2.setCaption({});
    const auto azione = std::exchange(m_dopoLaProva, nullptr);
    if (!raggiungibile) {
        ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, titoloMessaggi(),
                                      u"Percorso TOTEM non impostato o TOTEM non raggiungibile !"_s);
        scarica();
    } else if (azione) {
        azione();
    }
}

void VarieImpostaTotem::conTotem(const std::function<void()> &azione) {
    const auto sorvegliata = [this, azione] {
        try {
            azione();
        } catch (const EngineError &e) {
            if (!percorsoMancante(e.numero()))
                throw;
            m_dopoLaProva = [e] { throw e; }; // told when the kiosk turns out to be there
            attivata();
        }
    };
    if (m_inProva)
        m_dopoLaProva = sorvegliata;
    else
        sorvegliata();
}

void VarieImpostaTotem::ImpostaStampa() {
    struct Ticket {
        QList<VariabileTicket> variabili;
        QString file;
    };
    Ticket ticket;
    {
        const AttesaTotem attesa(m_occupata);
        const std::function<Ticket()> lettura = [percorsi = ambiente().percorsi, cartellaTotem = PRT.text()] {
            return Ticket{variabiliTicket(fileTotem(percorsi, cartellaTotem, nomi::archivioTotem)),
                          fileTotem(percorsi, cartellaTotem, nomi::biglietto)};
        };
        ticket = alTotem(lettura);
    }
    if (LL9 == nullptr) {
        auto [etichette, motivo] = m_apriEtichette();
        LL9 = std::move(etichette);
        if (LL9 == nullptr) {
            ambiente().dialoghi.messaggio(this, Dialoghi::Icona::Informazione, titoloMessaggi(), motivo);
            return;
        }
    }
    LL9->LlDefineVariableStart();
    DefinisciVariabiliTicket(ticket.variabili);
    LL9->LlDefineLayout(this, u"Impostazione Modulo"_s, progettoEtichetta, ticket.file);
    attivata(); // the designer is no form of the program's, but the return from it is one
}

void VarieImpostaTotem::DefinisciVariabiliTicket(const QList<VariabileTicket> &variabili) {
    for (const VariabileTicket &variabile : variabili)
        LL9->LlDefineVariableExt(variabile.nome, variabile.contenuto, variabile.tipo);
}

void VarieImpostaTotem::apriNumerazione() {
    Impostazione(ambiente(), PRT.text(), this).mostraModale();
}

} // namespace zuvora
