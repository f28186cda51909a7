#include "content/forms/P1.h"

namespace zuvora {

P1::P1(const Ambiente &ambiente_, const QString &indirizzo, QWidget *padre)
    : Form(ambiente_, "P1", "Anteprima Video YT", {10395, 7050}, padre) {
    alClic(ok, [this] { scarica(); });
    wb1.vai(indirizzo);
}

} // namespace zuvora
