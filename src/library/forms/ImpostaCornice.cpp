#include "library/forms/ImpostaCornice.h"

#include "library/logic/Decorazioni.h"
#include "shell/host/ImmagineIllegibile.h"
#include "shell/host/MsgForm.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

ImpostaCornice::ImpostaCornice(const Ambiente &contesto, int i, QWidget *padre)
    : Form(contesto, "ImpostaCornice", "Imposta Cornice", {8970, 6480}, padre) {
    QFont titolo = font();
    titolo.setPointSizeF(14);
    titolo.setBold(true);
    Label1.setFontBase(titolo);
    Label1.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Label1.setCaption(nomeDecorazione(i));
    Label2.hide();
    grid.lega(Data1);
    m_gruppo.setScelto(0);
    Btn(0).setRuolo(Ruolo::Principale);
    quando(grid, &Grid::rigaCambiata, [this] { mostraRiga(); });
    quando(grid, &Grid::attivato, [this] { applica(); });
    quando(m_gruppo, &GruppoRadio::cambiato, [this](int indice) { scegliCategoria(indice); });
    alClic(Btn(0), [this] { applica(); });
    alClic(Btn(1), [this] { scarica(); });
    scegliCategoria(0);
    grid.setFocus();
}

void ImpostaCornice::scegliCategoria(int indice) {
    m_categoria = indice;
    apri(Data1, cartella(), sorgenteDecorazioni(categorieDecorazioni.at(std::size_t(indice)).Tipo));
    mostraRiga();
}

void ImpostaCornice::mostraRiga() {
    if (grid.Rows() == 0)
        return;
    const QString file = testoDi(Data1.Recordset()[u"File"].Value(), {});
    DecorazioneScelta = percorsoDecorazione(cartella(), m_categoria, file);
    Label2.setCaption(DecorazioneScelta);
    Image1.mostra(DecorazioneScelta);
}

void ImpostaCornice::applica() {
    if (!DecorazioneScelta.isEmpty() && avvisaSeIllegibile(ambiente(), DecorazioneScelta, this))
        return;
    if (indiceDecorazione(Label1.Caption()) > 0)
        m_applicata = SceltaDecorazione{DecorazioneScelta, SecondoPiano.isChecked()};
    scarica();
}

std::optional<SceltaDecorazione> apriImpostaCornice(const Ambiente &ambiente, int i, QWidget *padre) {
    ImpostaCornice form(ambiente, i, padre);
    form.mostraModale();
    return form.applicata();
}

} // namespace zuvora
