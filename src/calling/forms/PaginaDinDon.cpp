#include "calling/forms/PaginaDinDon.h"

#include "calling/forms/ProvaSuono.h"
#include "calling/logic/Suoni.h"
#include "shell/host/Dialoghi.h"
#include "shell/host/Piattaforma.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

PaginaDinDon::PaginaDinDon(const Apertura &apertura) : Pagina(apertura, "BoxImpostazioni(8)") {
    btnDD(2).setRuolo(Ruolo::Distruttivo);
    btnDD(1).setRuolo(Ruolo::Principale);
    gridDD.lega(Data3);
    alClic(btnDD(3), [this] { nuovo(); });
    alClic(btnDD(2), [this] { cancella(); });
    alClic(btnDD(1), [this] { predefinito(); });
    alClic(btnDD(4), [this] { prova(); });
    alClic(CheckBox1, [this] { salvaUso(); });
}

void PaginaDinDon::riempi() {
    zuvora::apri(Data3, cartella(), sorgenteSuoni.toString());
    CheckBox1.setChecked(leggiUsoSuono(cartella()));
}

void PaginaDinDon::nuovo() {
    const auto scelto = ambiente().dialoghi.apriFile(this, {{}, u"File Suono (*.wav) )|*.wav"_s, {}});
    if (!scelto)
        return;
    const QString percorso =
        percorsoSuono(ambiente().percorsi.conUnita(*scelto), ambiente().piattaforma.nomeMacchina());
    aggiungiSuono(zuvora::apri(Data3, cartella(), sorgenteSuoni.toString()), percorso);
    Data3.Refresh();
}

void PaginaDinDon::cancella() {
    if (vuoto() || !conferma(u"Cancello voce selezionata ?"_s))
        return;
    Data3.Recordset().Delete();
    avvisa(u"Voce cancellata !"_s);
    Data3.Refresh();
}

void PaginaDinDon::predefinito() {
    if (vuoto())
        return;
    salvaSuonoPredefinito(cartella(), suonoCorrente(Data3.Recordset()));
    avvisa(u"DinDon predefinito impostato !"_s);
}

void PaginaDinDon::prova() {
    if (vuoto())
        return;
    const QString motivo =
        provaSuono(ambiente().piattaforma.cartellaEseguibile(), ambiente().percorsi, suonoCorrente(Data3.Recordset()));
    if (!motivo.isEmpty())
        avvisa(u"Il suono non si può provare !"_s, motivo);
}

void PaginaDinDon::salvaUso() {
    const bool usato = CheckBox1.isChecked();
    try {
        salvaUsoSuono(cartella(), usato);
    } catch (...) {
        CheckBox1.setChecked(!usato); // the box goes on telling what is stored
        throw;
    }
    CheckBox1.spunta();
}

} // namespace zuvora
