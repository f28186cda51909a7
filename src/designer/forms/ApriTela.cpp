#include "designer/forms/ApriTela.h"

#include "designer/forms/Form1.h"
#include "designer/logic/LetturaLayout.h"

namespace zuvora {

void apriTela(const Ambiente &ambiente, QWidget *padre, int risoluzione, const QString &tabella,
              const ApritoriTela &apritori) {
    DisplayLayout layout(tabella);
    ImmaginiQt immagini;
    const EsitoLettura esito = CaricaLayout(layout, immagini, ambiente.valori.PercorsoApplicazione);
    Form1 form(ambiente, layout, immagini, apritori, dimensioneTela(risoluzione - 1), padre);
    form.avvisaAllApertura(esito.testo());
    form.mostraModale();
}

} // namespace zuvora
