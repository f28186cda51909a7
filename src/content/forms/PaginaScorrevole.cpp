#include "content/forms/PaginaScorrevole.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

PaginaScorrevole::PaginaScorrevole(const Apertura &apertura) : Pagina(apertura, "BoxImpostazioni(6)") {
    Timer1.setInterval(passoScorrevole_ms);
    Timer1.setTimerType(Qt::PreciseTimer);
    Text1.setReadOnly(true);
    Text1.setFocusPolicy(Qt::NoFocus);
    Text1.setAccessibleName(u"Prova testo scorrevole"_s);
    quando(Timer1, &QTimer::timeout, [this] { scorri(); });
    alClic(PushButton3, [this] { prova(); });
    salva6.setRuolo(Ruolo::Principale);
    alClic(salva6, [this] { salva(); });
}

void PaginaScorrevole::riempi() {
    m_mobile.svuota();
    Text1.clear();
    testo.setText({});
    testo.setText(leggiTestoScorrevole(cartella()));
}

void PaginaScorrevole::prova() {
    m_mobile.prepara(testo.text());
    Timer1.start();
}

// The timer stands while there is nothing to move or to see.
void PaginaScorrevole::scorri() {
    Text1.setText(m_mobile.passo());
    Text1.setCursorPosition(0);
    if (Text1.text().isEmpty() || !aperta())
        Timer1.stop();
}

void PaginaScorrevole::salva() {
    salvaTestoScorrevole(cartella(), testo.text());
    salva6.spunta();
}

} // namespace zuvora
