#include "library/forms/ApriTela.h"

#include "designer/forms/Form1.h"
#include "designer/logic/LetturaLayout.h"
#include "library/forms/ImpostaCornice.h"
#include "library/forms/ImpostaSfondo.h"
#include "shell/host/Attesa.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Decodes pictures beside the window; false when the user called it off.
bool decodifica(const Ambiente &ambiente, const std::shared_ptr<ImmaginiQt> &immagini, const QStringList &percorsi,
                QWidget *padre) {
    return aspetta(ambiente, padre, u"Lettura delle immagini del Layout in corso..."_s,
                   [immagini, percorsi](Avanzamento &a) {
                       for (qsizetype i = 0; i < percorsi.size() && !a.annullato(); ++i) {
                           immagini->carica(percorsi.at(i));
                           a.setParte(i + 1, percorsi.size());
                       }
                   });
}

} // namespace

void apriTela(const Ambiente &ambiente, int risoluzione, const QString &tabella, QWidget *padre) {
    const auto immagini = std::make_shared<ImmaginiQt>();
    DisplayLayout layout(tabella);
    LetturaLayout lettura(layout, *immagini, ambiente.valori.PercorsoApplicazione);
    if (!decodifica(ambiente, immagini, lettura.percorsi(), padre))
        return;
    const EsitoLettura esito = lettura.risolvi();
    const ApritoriTela apritori{
        [&ambiente](QWidget *form, int indice) { return apriImpostaCornice(ambiente, indice, form); },
        [&ambiente](QWidget *form, const UsoSfondo &uso) { apriSfondoLayout(ambiente, uso, form); }};
    Form1 form(ambiente, layout, *immagini, apritori, dimensioneTela(risoluzione - 1), padre);
    form.avvisaAllApertura(esito.testo());
    form.mostraModale();
}

} // namespace zuvora
