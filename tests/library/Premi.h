#pragma once

#include "kit/Guida.h"

namespace zuvora {

// Clicks a button and gives what the message form said, both lines; `risposta` is the button that answers.
inline QString premi(QWidget &form, const char *bottone, int risposta = 0) {
    QString righe;
    Guida guida;
    guida.messaggio(&righe, risposta);
    clicca(form, bottone);
    return righe;
}

} // namespace zuvora
