#include "content/forms/P1.h"

#include "content/logic/CorniceFilmato.h"

namespace zuvora {

P1::P1(const Ambiente &contesto, const QString &indirizzo, const QUrl &sito, QWidget *padre)
    : Form(contesto, "P1", "Anteprima Video YT", {10395, 7050}, padre) {
    alClic(ok, [this] { scarica(); });
    ok.setFocus();
    if (const auto cornice = corniceFilmato(indirizzo, sito))
        wb1.mostraHtml(cornice->html, cornice->provenienza);
    else
        wb1.vai(indirizzo);
}

} // namespace zuvora
