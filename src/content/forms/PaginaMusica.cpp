#include "content/forms/PaginaMusica.h"

#include "content/logic/TestoScorrevole.h"
#include "shell/host/Dialoghi.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

PaginaMusica::PaginaMusica(const Apertura &apertura) : Pagina(apertura, "BoxImpostazioni(5)") {
    alClic(CBT_2, [this] { ScegliCartella(); });
    Salva5.setRuolo(Ruolo::Principale);
    FE1_1.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    alClic(Salva5, [this] { salva(); });
}

void PaginaMusica::riempi() {
    FE1_1.setText({});
    FE1_1.setText(leggiCartellaMusica(cartella()));
}

void PaginaMusica::ScegliCartella() {
    if (const auto scelta = ambiente().dialoghi.scegliCartella(this, u"Selezionare la cartella"_s))
        FE1_1.setText(*scelta);
}

void PaginaMusica::salva() {
    if (salvaCartellaMusica(cartella(), FE1_1.text()))
        Salva5.spunta();
}

} // namespace zuvora
