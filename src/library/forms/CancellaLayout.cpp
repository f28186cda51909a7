#include "library/forms/CancellaLayout.h"

#include "library/logic/CopiaLogica.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

CancellaLayout::CancellaLayout(const Ambiente &contesto, const QString &numero, QWidget *padre)
    : Form(contesto, "CancellaLayout", "", {7695, 5010}, padre) {
    QFont grande = font();
    grande.setPointSizeF(11);
    Label1.setFontBase(grande);
    grande.setPointSizeF(10);
    grande.setBold(true);
    Label3.setFontBase(grande);
    Label3.setCaption(numero);
    setAccessibleName(u"Cancellazione del Layout "_s + numero);
    PB1(1).setRuolo(Ruolo::Distruttivo);
    alClic(PB1(1), [this] { conferma(); });
    alClic(PB1(0), [this] { scarica(); });
    PB1(0).setFocus();
}

void CancellaLayout::conferma() {
    const EsitoCopia esito = RipristinaLayout(cartella(), Label3.Caption());
    avvisa(esito.messaggio.riga0, esito.messaggio.riga1);
    if (esito.completo)
        scarica(); // after a failure the form stays, to try again
}

} // namespace zuvora
