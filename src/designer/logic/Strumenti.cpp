#include "designer/logic/Strumenti.h"

#include <algorithm>
#include <array>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int stretto = 735;

constexpr std::array bottoni{
    BottoneStrumenti{0,
                     u" Testo Scorrevole ",
                     {},
                     120,
                     840,
                     stretto,
                     Disegno::TestoScorrevole,
                     Comando::PiazzaElemento,
                     TipoElemento::Text2},
    BottoneStrumenti{1, u" Servizio", u" Pannelli", 120, 240, 1575, Disegno::Servizio, Comando::PiazzaPannello},
    BottoneStrumenti{
        2, u"Titolo ", {}, 960, 840, stretto, Disegno::Titolo, Comando::PiazzaElemento, TipoElemento::Text9, 0},
    BottoneStrumenti{3,
                     u" Sottotitolo ",
                     {},
                     120,
                     1440,
                     stretto,
                     Disegno::Sottotitolo,
                     Comando::PiazzaElemento,
                     TipoElemento::Text9,
                     1},
    BottoneStrumenti{
        4, u" Data ", {}, 960, 1440, stretto, Disegno::Data, Comando::PiazzaElemento, TipoElemento::Text9, 2},
    BottoneStrumenti{5, u" Ora", {}, 1800, 840, stretto, Disegno::Ora, Comando::PiazzaElemento, TipoElemento::Text9, 3},
    BottoneStrumenti{6, u" Sfondo ", {}, 120, 2040, stretto, Disegno::Sfondo, Comando::ApriSfondo},
    BottoneStrumenti{7, u" Colore Sfondo ", {}, 960, 2040, stretto, Disegno::ColoreSfondo, Comando::ApriColoreSfondo},
    BottoneStrumenti{8, u" Decorazioni ", {}, 1800, 1440, stretto, Disegno::Decorazioni, Comando::PiazzaDecorazione},
    BottoneStrumenti{
        9, u" Immagini ", {}, 1800, 2040, stretto, Disegno::Immagini, Comando::PiazzaElemento, TipoElemento::IM1},
    BottoneStrumenti{
        10, u" Video ", {}, 120, 2640, stretto, Disegno::Video, Comando::PiazzaElemento, TipoElemento::MP1},
    BottoneStrumenti{
        12, u" Meteo ", {}, 1800, 2640, stretto, Disegno::Meteo, Comando::PiazzaElemento, TipoElemento::WB1},
    BottoneStrumenti{14,
                     u" Individua posizione Secondo Schermo ",
                     {},
                     960,
                     2640,
                     stretto,
                     Disegno::SecondoSchermo,
                     Comando::SecondoSchermo},
    BottoneStrumenti{
        15, u" Salva Posizione Finestra", {}, 960, 3240, stretto, Disegno::PosizioneFinestra, Comando::SalvaPosizione},
    BottoneStrumenti{16, u" Salva Impostazioni", {}, 1800, 3240, stretto, Disegno::Salva, Comando::Salva},
    BottoneStrumenti{17, u" Chiudi Impostazione Layout ", {}, 120, 3840, 2415, Disegno::Chiudi, Comando::Chiudi},
    BottoneStrumenti{
        22, u" PlayList YouTube", {}, 120, 3240, stretto, Disegno::YouTube, Comando::PiazzaElemento, TipoElemento::YT},
};

constexpr double larghezzaDecorazione = 1905;
constexpr double altezzaDecorazione = 1305;

// The lowest index in the range whose element is free, put on the canvas.
std::optional<int> piazzaPrimo(DisplayLayout &layout, TipoElemento tipo, int primo, int ultimo) {
    for (int i = primo; i <= ultimo; ++i) {
        if (piazzaElemento(layout, tipo, i))
            return i;
    }
    return std::nullopt;
}

} // namespace

std::span<const BottoneStrumenti> bottoniStrumenti() {
    return bottoni;
}

const BottoneStrumenti *bottoneStrumenti(int indice) {
    const auto trovato = std::ranges::find(bottoni, indice, &BottoneStrumenti::indice);
    return trovato == bottoni.end() ? nullptr : &*trovato;
}

int piazzati(const DisplayLayout &layout, const BottoneStrumenti &bottone) {
    const auto suo = [&](const LayoutElement &e) {
        switch (bottone.comando) {
        case Comando::PiazzaElemento:
            return e.tipo == bottone.tipo && e.indice == bottone.indiceElemento;
        case Comando::PiazzaPannello:
            return e.tipo == TipoElemento::Pannello1;
        case Comando::PiazzaDecorazione:
            return e.tipo == TipoElemento::Image1;
        default:
            return false;
        }
    };
    return static_cast<int>(
        std::ranges::count_if(layout, [&](const LayoutElement &e) { return e.visibile && suo(e); }));
}

bool piazzaElemento(DisplayLayout &layout, TipoElemento tipo, int indice) {
    LayoutElement &e = layout.elemento(tipo, indice);
    if (e.visibile)
        return false;
    e.area.top = 0;
    e.area.left = 0;
    e.visibile = true;
    return true;
}

std::optional<int> piazzaPannello(DisplayLayout &layout) {
    return piazzaPrimo(layout, TipoElemento::Pannello1, 0, numeroPannelli - 1);
}

std::optional<int> piazzaDecorazione(DisplayLayout &layout) {
    const auto i = piazzaPrimo(layout, TipoElemento::Image1, 1, numeroDecorazioni);
    if (i) {
        Area &area = layout.elemento(TipoElemento::Image1, *i).area;
        area.height = altezzaDecorazione;
        area.width = larghezzaDecorazione;
    }
    return i;
}

Messaggio messaggioPannelliFiniti() {
    return {u"Tutti  i Pannelli sono"_s, u"stati utilizzati !"_s};
}

Messaggio messaggioDecorazioniFinite() {
    return {u"Tutte le decorazioni sono"_s, u"state utilizzate !"_s};
}

bool applicaDecorazione(DisplayLayout &layout, int i, const QString &percorso, bool secondoPiano,
                        CaricatoreImmagini &immagini) {
    if (i < 1 || i > numeroDecorazioni || (!percorso.isEmpty() && !immagini.carica(percorso)))
        return false;
    LayoutElement &e = layout.elemento(TipoElemento::Image1, i);
    e.immagine = percorso;
    e.cornice = false;
    e.immagineMancante = false;
    layout.setPiano(i, !secondoPiano);
    return true;
}

bool applicaSfondo(DisplayLayout &layout, const QString &percorso, CaricatoreImmagini &immagini) {
    if (!percorso.isEmpty() && !immagini.carica(percorso))
        return false;
    layout.tela().immagine = percorso;
    layout.Label2() = percorso;
    return true;
}

} // namespace zuvora
