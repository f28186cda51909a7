#include "designer/logic/Finestra.h"

#include "shell/logic/Numeri.h"
#include "shell/logic/Risoluzioni.h"
#include "shell/store/EngineError.h"
#include "shell/store/Riga.h"

#include <algorithm>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Dimensione telaDefinita{24525, 14115};
constexpr double scostamentoSecondoSchermo = 20; // twips
constexpr int presaMinima = 8;                   // pixels that must show to be taken with the mouse

// One direction of a shift: from `da`, over a screen that begins at `inizio`.
int scorriLato(int da, int lato, int inizio, int schermo, int passo) {
    if (lato <= schermo)
        return da;
    // A form that stands further out than the rule allows may stay there, and only come nearer.
    const int minimo = std::min(da, inizio + schermo - lato);
    const int massimo = std::max(da, inizio);
    return std::clamp(da + passo, minimo, massimo);
}

} // namespace

Dimensione dimensioneTela(int risoluzione) {
    if (risoluzione < 0 || risoluzione >= static_cast<int>(risoluzioni.size()))
        return telaDefinita;
    const Risoluzione &r = risoluzioni[static_cast<std::size_t>(risoluzione)];
    return {static_cast<double>(r.larghezza), static_cast<double>(r.altezza)};
}

PuntoTwips leggiPosizioneFinestra(const QString &cartella) {
    const Riga riga = leggiRiga(cartella, u"Configurazione"_s);
    return {singoloDi(riga[u"MisuraFormLeft"]).value_or(0), singoloDi(riga[u"MisuraFormTop"]).value_or(0)};
}

QString leggiPercorsoTG(const QString &cartella) {
    try {
        return leggiRiga(cartella, u"TG"_s).testo(u"percorsourl");
    } catch (const EngineError &errore) {
        if (errore.numero() == Errore::NessunRecord)
            return {};
        throw;
    }
}

void SalvaPosizioneFinestra(const QString &cartella, PuntoTwips posizione) {
    scriviRiga(cartella, u"Configurazione"_s,
               {{u"MisuraFormLeft", singolo(posizione.left)}, {u"MisuraFormTop", singolo(posizione.top)}});
}

PuntoTwips VaiSecondoSchermo(double larghezzaSchermo) {
    return {larghezzaSchermo + scostamentoSecondoSchermo, 0};
}

int topRaggiungibile(const QRect &form, const QList<QRect> &prese, const QList<QRect> &schermi) {
    const auto siPrende = [&](const QRect &schermo) {
        return std::ranges::any_of(prese, [&](const QRect &presa) {
            const QRect vista = presa.intersected(schermo);
            return vista.width() >= presaMinima && vista.height() >= presaMinima;
        });
    };
    if (schermi.isEmpty() || std::ranges::any_of(schermi, siPrende))
        return form.top();
    // Its screen is the one below or above it, else the first.
    const auto sopra = std::ranges::find_if(schermi, [&](const QRect &s) {
        return std::ranges::any_of(prese,
                                   [&](const QRect &p) { return p.left() <= s.right() && p.right() >= s.left(); });
    });
    const QRect schermo = sopra == schermi.end() ? schermi.first() : *sopra;
    // Brought to the screen's left edge, as Esc does, would something of it show?
    const auto siPrenderebbe = [&](const QRect &presa) {
        const QRect vista = QRect(schermo.left(), presa.top(), presa.width(), presa.height()).intersected(schermo);
        return vista.height() >= presaMinima;
    };
    return std::ranges::any_of(prese, siPrenderebbe) ? form.top() : schermo.top();
}

QPoint scorri(const QRect &form, const QRect &schermo, QPoint passo) {
    return {scorriLato(form.left(), form.width(), schermo.left(), schermo.width(), passo.x()),
            scorriLato(form.top(), form.height(), schermo.top(), schermo.height(), passo.y())};
}

} // namespace zuvora
