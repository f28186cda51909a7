#include "calling/forms/UtentiServizi.h"

#include "calling/forms/GestioneUtenti.h"
#include "calling/logic/Servizi.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int colonnaNome = 2;

} // namespace

UtentiServizi::UtentiServizi(const Ambiente &contesto, QWidget *padre)
    : Form(contesto, "UtentiServizi", "Gestione Servizi   (Si ricorda che i servizi disponibili sono un massimo di 20)",
           {7335, 6495}, padre) {
    NrServizi.setSolaLettura(u"Il numero segue l'elenco"_s);
    NrServizi.setFocusPolicy(Qt::ClickFocus); // Tab goes from the list to what can be done with it
    ctButton2(1).setRuolo(Ruolo::Principale);
    ctButton2(2).setRuolo(Ruolo::Distruttivo);
    grid.lega(Data8);
    apri(Data8, cartella(), sorgenteServizi.toString());
    ContaAttivi();
    quando(grid, &Grid::attivato, [this] { scambia(); });
    alClic(ctButton2(1), [this] { modifica(); });
    alClic(ctButton2(2), [this] { cancella(); });
    alClic(ctButton2(0), [this] { scarica(); });
    grid.setFocus();
}

void UtentiServizi::ContaAttivi() {
    NrServizi.setText(QString::number(contaAttivi(Data1, cartella())));
}

void UtentiServizi::rileggi() {
    Data8.Refresh();
    ContaAttivi();
}

bool UtentiServizi::vuoto() {
    if (!Data8.aperto())
        rileggi();
    return grid.Rows() == 0;
}

void UtentiServizi::scambia() {
    if (!vuoto() && scambiaStato(Data8.Recordset()))
        rileggi();
}

void UtentiServizi::modifica() {
    if (vuoto())
        return;
    Recordset &servizi = Data8.Recordset();
    const QString nome = grid.testo(grid.Row(), colonnaNome);
    const bool attivo = eVero(servizi[u"ServizioAttivo"].Value());
    const auto salva = [this, &servizi](const QString &nuovo, bool acceso) { scriviServizio(servizi, nuovo, acceso); };
    GestioneUtenti form(ambiente(), nome, attivo, salva, this);
    form.mostraModale();
    if (form.salvato())
        rileggi();
}

void UtentiServizi::cancella() {
    if (vuoto() || !conferma(u"Cancello voce selezionata ?"_s))
        return;
    liberaServizio(Data8.Recordset());
    rileggi();
}

} // namespace zuvora
