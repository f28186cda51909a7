#include "pannello/forms/PaginaPosizione.h"

#include "shell/host/Piattaforma.h"
#include "shell/logic/clsMonitors.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int leftSegnoPrimo = 840;
constexpr int leftSegnoSecondo = 3600;

} // namespace

PaginaPosizione::PaginaPosizione(const Apertura &apertura) : Pagina(apertura, "BoxImpostazioni(4)") {
    QFont cifra = font();
    cifra.setPointSizeF(16);
    cifra.setBold(true);
    for (LabelLink *numero : {&Label1_4, &Label1_3}) {
        numero->setFontBase(cifra);
        numero->setAlignment(Qt::AlignCenter);
        numero->setFocusPolicy(Qt::NoFocus); // the panel's own link serves the keyboard
        alClic(*numero, apertura.apriSito);
    }
    alClic(PosSchermo, [this](int indice) { scegli(indice == 0 ? Schermo::Primo : Schermo::Secondo); });
}

void PaginaPosizione::riempi() {
    segna(leggiSchermo(cartella()));
    const bool uno = clsMonitors(ambiente().piattaforma.monitor()).Monitors().size() < 2;
    Avviso.setCaption(uno ? u"Il secondo monitor non è collegato. Nel disegno del layout il tasto Esc riporta la "
                            "schermata sul primo."_s
                          : QString());
}

void PaginaPosizione::scegli(Schermo schermo) {
    const int larghezza = twipsDa(ambiente().piattaforma.schermo().width());
    salvaSchermo(cartella(), schermo, larghezza);
    segna(schermo);
    PosSchermo(schermo == Schermo::Primo ? 0 : 1).spunta();
}

void PaginaPosizione::segna(Schermo schermo) {
    Image4.setLeft(schermo == Schermo::Primo ? leftSegnoPrimo : leftSegnoSecondo);
}

} // namespace zuvora
