#include "library/forms/ApriTela.h"

#include "designer/forms/Form1.h"
#include "designer/logic/LetturaLayout.h"
#include "library/forms/ImpostaCornice.h"
#include "library/forms/ImpostaSfondo.h"
#include "shell/host/Attesa.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Which pictures the reading of a layout asks for.
class ImmaginiChieste : public CaricatoreImmagini {
public:
    void prepara(const QString &percorso) override { m_percorsi << percorso; }
    bool carica(const QString &) override { return true; }
    const QStringList &percorsi() const { return m_percorsi; }

private:
    QStringList m_percorsi;
};

// The layout's pictures, decoded beside the window; null when the user called it off.
std::shared_ptr<ImmaginiQt> decodifica(const Ambiente &ambiente, const QString &tabella, QWidget *padre) {
    DisplayLayout layout(tabella);
    ImmaginiChieste chieste;
    CaricaLayout(layout, chieste, ambiente.valori.PercorsoApplicazione);
    const auto immagini = std::make_shared<ImmaginiQt>();
    const bool fatto = aspetta(ambiente, padre, u"Lettura delle immagini del Layout in corso..."_s,
                               [immagini, percorsi = chieste.percorsi()](Avanzamento &a) {
                                   for (const QString &percorso : percorsi)
                                       immagini->prepara(percorso);
                                   for (qsizetype i = 0; i < percorsi.size() && !a.annullato(); ++i) {
                                       immagini->carica(percorsi.at(i));
                                       a.setParte(i + 1, percorsi.size());
                                   }
                               });
    return fatto ? immagini : nullptr;
}

} // namespace

void apriTela(const Ambiente &ambiente, int risoluzione, const QString &tabella, QWidget *padre) {
    const auto immagini = decodifica(ambiente, tabella, padre);
    if (immagini == nullptr)
        return;
    DisplayLayout layout(tabella);
    const EsitoLettura esito = CaricaLayout(layout, *immagini, ambiente.valori.PercorsoApplicazione);
    const ApritoriTela apritori{
        [&ambiente](QWidget *form, int indice) { return apriImpostaCornice(ambiente, indice, form); },
        [&ambiente](QWidget *form, const UsoSfondo &uso) { apriSfondoLayout(ambiente, uso, form); }};
    Form1 form(ambiente, layout, *immagini, apritori, dimensioneTela(risoluzione - 1), padre);
    form.avvisaAllApertura(esito.testo());
    form.mostraModale();
}

} // namespace zuvora
