#include "Composizione.h"

#include "library/forms/ApriTela.h"
#include "library/forms/Elementi.h"
#include "library/forms/SceltaLayout.h"

namespace zuvora {
namespace {

void apriSceltaLayout(SplasModule &pannello) {
    const auto carica = [&pannello](const QString &tabella, QWidget *padre) {
        apriTela(pannello.ambiente(), pannello.risoluzione(), tabella, padre);
    };
    SceltaLayout(pannello.ambiente(), carica, &pannello).mostraModale();
}

template <class F> void apriForm(SplasModule &pannello) {
    F(pannello.ambiente(), &pannello).mostraModale();
}

} // namespace

Apritori apritoriDelPannello() {
    Apritori apritori;
    apritori.form["PB1(7)"] = apriSceltaLayout;
    apritori.form["PushButton2"] = apriForm<Elementi>;
    return apritori;
}

} // namespace zuvora
