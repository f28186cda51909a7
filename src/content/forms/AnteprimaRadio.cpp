#include "content/forms/AnteprimaRadio.h"

namespace zuvora {

AnteprimaRadio::AnteprimaRadio(const Ambiente &contesto, const VoceRadio &voce, QWidget *padre)
    : Form(contesto, "AnteprimaRadio", "Anteprima Radio selezionata", {tutta.width, tutta.height}, padre) {
    wb1.hide();
    const auto mostraPagina = [this, indirizzo = voce.PercorsoURL] {
        Ascolto.hide();
        wb1.show();
        wb1.vai(indirizzo);
    };
    quando(Ascolto, &AscoltoRadio::rimandato, mostraPagina);
    Ascolto.ascolta(voce);
}

} // namespace zuvora
