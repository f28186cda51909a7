#include "library/forms/ApriTela.h"

#include "designer/forms/AnteprimaTGOnline.h"
#include "designer/forms/ApriDesigner.h"
#include "library/forms/ImpostaCornice.h"
#include "library/forms/ImpostaSfondo.h"

namespace zuvora {
namespace {

Dimensione misuraDi(const LayoutElement &elemento) {
    return {elemento.area.width, elemento.area.height};
}

void apriAnteprimaTG(const Ambiente &ambiente, QWidget *padre, DisplayLayout &layout,
                     const std::function<void()> &cambiato) {
    LayoutElement &WB2 = layout.elemento(TipoElemento::WB2);
    const auto accettata = [&](const Dimensione &misura) {
        WB2.area.width = misura.width;
        WB2.area.height = misura.height;
        cambiato();
    };
    AnteprimaTGOnline(ambiente, misuraDi(WB2), ambiente.valori.PercorsoTG, accettata, padre).mostraModale();
}

} // namespace

ApritoriTela apritoriTela(const Ambiente &ambiente) {
    ApritoriTela apritori;
    apritori.decorazione = [ambiente](QWidget *padre, int indice) {
        return apriImpostaCornice(ambiente, indice, padre);
    };
    apritori.sfondo = [ambiente](QWidget *padre, const UsoSfondo &uso) { apriSfondoLayout(ambiente, uso, padre); };
    apritori.anteprimaTG = [ambiente](QWidget *padre, DisplayLayout &layout, const std::function<void()> &cambiato) {
        apriAnteprimaTG(ambiente, padre, layout, cambiato);
    };
    return apritori;
}

void apriTela(const Ambiente &ambiente, int risoluzione, const QString &tabella, QWidget *padre) {
    apriDesigner(ambiente, padre, risoluzione, tabella, apritoriTela(ambiente));
}

} // namespace zuvora
