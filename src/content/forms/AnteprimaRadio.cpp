#include "content/forms/AnteprimaRadio.h"

namespace zuvora {

AnteprimaRadio::AnteprimaRadio(const Ambiente &ambiente_, const VoceRadio &voce, QWidget *padre)
    : Form(ambiente_, "AnteprimaRadio", "Anteprima Radio selezionata", {tutta.width, tutta.height}, padre) {
    wb1.hide();
    const auto mostraPagina = [this, indirizzo = voce.PercorsoURL] {
        Ascolto.hide();
        wb1.show();
        wb1.vai(indirizzo);
    };
    quando(Ascolto, &AscoltoRadio::paginaWeb, mostraPagina);
    Ascolto.ascolta(voce);
}

} // namespace zuvora
