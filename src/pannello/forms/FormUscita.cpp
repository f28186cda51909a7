#include "pannello/forms/FormUscita.h"

namespace zuvora {

FormUscita::FormUscita(const Ambiente &contesto, QWidget *padre)
    : Form(contesto, "FormUscita", "Chiusura applicazione", {4350, 1635}, padre),
      Label1(this, "Label1", "Chiudere il Modulo di Impostazione di Zuvora ?", {240, 360, 3870, 495}),
      cbt(this, "cbt", {{0, "&Si", {1080, 1080, 1095, 330}}, {1, "&No", {2160, 1080, 1095, 330}}}) {
    Label1.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    alClic(cbt, [this](int indice) {
        m_risposta = indice == 0 ? RispostaUscita::Esci : RispostaUscita::Resta;
        scarica();
    });
    cbt(1).setFocus();
}

} // namespace zuvora
