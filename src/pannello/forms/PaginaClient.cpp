#include "pannello/forms/PaginaClient.h"

#include "pannello/logic/Configurazione.h"
#include "shell/host/Piattaforma.h"
#include "shell/logic/Numeri.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int altezza = 4335;
constexpr int topAperta = 1680;

} // namespace

PaginaClient::PaginaClient(const Apertura &apertura) : Pagina(apertura, "BoxImpostazioni(1)", altezza, topAperta) {
    ipS1.setAccessibleName(u"Indirizzo del server"_s);
    LaPorta.setAccessibleName(u"Porta di ascolto del server"_s);
    NameS1.setAccessibleName(u"Nome della macchina del server"_s);
    LaPorta.setFiltro(soloCifre);
    SaveIP.setRuolo(Ruolo::Principale);
    alClic(SaveIP, [this] { salva(); });
    PaginaClient::applicaPrincipale(apertura.principale);
}

void PaginaClient::applicaPrincipale(bool principale) {
    GroupBox1.setVisible(principale);
    SaveIP.setVisible(principale);
    for (Edit *campo : {&ipS1, &LaPorta, &NameS1}) {
        campo->setSolaLettura(principale ? QString()
                                         : u"Solo l'installazione principale (nome SERVER1) può cambiare i dati "
                                           "del server."_s);
        if (principale)
            campo->setToolTip(campo->accessibleName());
    }
}

void PaginaClient::riempi() {
    const DatiServer server = leggiDatiServer(cartella());
    LaPorta.setText(server.porta);
    (server.tipo == TipoChiamata::Automatica ? XZ_0 : XZ_1).setChecked(true);
    const Piattaforma &piattaforma = ambiente().piattaforma;
    ipS1.setText(piattaforma.indirizzoLocale());
    NameS1.setText(piattaforma.nomeMacchina());
}

void PaginaClient::salva() {
    if (!eNumerico(LaPorta.text())) {
        avvisa(u"Inserire porta di ascolto Server !"_s);
        return;
    }
    DatiServer server{ipS1.text(), NameS1.text(), LaPorta.text(), std::nullopt};
    if (XZ_0.isChecked())
        server.tipo = TipoChiamata::Automatica;
    if (XZ_1.isChecked())
        server.tipo = TipoChiamata::Selettiva;
    salvaDatiServer(cartella(), server);
    SaveIP.spunta();
}

} // namespace zuvora
