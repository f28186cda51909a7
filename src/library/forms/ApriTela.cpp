#include "library/forms/ApriTela.h"

#include "designer/forms/Form1.h"
#include "designer/logic/LetturaLayout.h"
#include "library/forms/ImpostaCornice.h"
#include "library/forms/ImpostaSfondo.h"

namespace zuvora {

void apriTela(const Ambiente &ambiente, int risoluzione, const QString &tabella, QWidget *padre) {
    DisplayLayout layout(tabella);
    ImmaginiQt immagini;
    const EsitoLettura esito = CaricaLayout(layout, immagini, ambiente.valori.PercorsoApplicazione);
    const ApritoriTela apritori{
        [&ambiente](QWidget *form, int indice) { return apriImpostaCornice(ambiente, indice, form); },
        [&ambiente](QWidget *form, const UsoSfondo &uso) { apriSfondoLayout(ambiente, uso, form); }};
    Form1 form(ambiente, layout, immagini, apritori, dimensioneTela(risoluzione - 1), padre);
    form.avvisaAllApertura(esito.testo());
    form.mostraModale();
}

} // namespace zuvora
