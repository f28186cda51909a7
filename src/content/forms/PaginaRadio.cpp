#include "content/forms/PaginaRadio.h"

#include "content/forms/AnteprimaRadio.h"
#include "content/forms/GestioneRadio.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

PaginaRadio::PaginaRadio(const Apertura &apertura) : Pagina(apertura, "RadioBox") {
    GridRadio.setAccessibleName(u"Stazioni radio"_s);
    GridRadio.lega(Data4);
    btnRadio(2).setRuolo(Ruolo::Distruttivo);
    alClic(btnRadio(3), [this] { gestisci({}); });
    alClic(btnRadio(1), [this] { modifica(); });
    alClic(btnRadio(2), [this] { cancella(); });
    alClic(btnRadio(4), [this] { prova(); });
    quando(GridRadio, &Grid::attivato, [this] { modifica(); });
}

void PaginaRadio::riempi() {
    zuvora::apri(Data4, cartella(), elencoRadio.toString());
}

std::optional<VoceRadio> PaginaRadio::scelta() {
    if (GridRadio.Rows() == 0)
        return std::nullopt;
    Recordset &radio = Data4.Recordset();
    return VoceRadio{testoDi(radio[u"NomeRadio"].Value(), {}), testoDi(radio[u"PercorsoURL"].Value(), {})};
}

void PaginaRadio::gestisci(const std::optional<VoceRadio> &daModificare) {
    if (!Data4.aperto())
        riempi();
    GestioneRadio form(ambiente(), Data4, daModificare, this);
    form.mostraModale();
    if (!form.salvata())
        return;
    Data4.Refresh();
    for (int riga = 0; riga < GridRadio.Rows(); ++riga)
        if (GridRadio.testo(riga, 0) == *form.salvata()) {
            GridRadio.seleziona(riga);
            break;
        }
}

void PaginaRadio::modifica() {
    if (const auto voce = scelta())
        gestisci(voce);
}

void PaginaRadio::cancella() {
    if (GridRadio.Rows() == 0 || !conferma(u"Cancello voce selezionata ?"_s))
        return;
    Data4.Recordset().Delete();
    avvisa(u"Voce cancellata !"_s);
    Data4.Refresh();
}

void PaginaRadio::prova() {
    if (const auto voce = scelta())
        AnteprimaRadio(ambiente(), *voce, this).mostraModale();
}

} // namespace zuvora
