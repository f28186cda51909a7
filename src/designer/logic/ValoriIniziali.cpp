#include "designer/logic/LayoutElement.h"

#include <array>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Colore grigioScuro = 4210752;
constexpr Colore grigio = 12632256;
constexpr Colore bianco = coloreMassimo;
constexpr auto sinistra = Allineamento::Sinistra;
constexpr auto centro = Allineamento::Centro;

struct Aspetto {
    QStringView font;
    double dimensione = 0;
    bool grassetto = false;
    Colore sfondo = grigio;
    Colore testo = 0;
    Allineamento allineamento = sinistra;
    bool trasparente = false;
};

struct Inizio {
    TipoElemento tipo;
    int primo; // first and last index
    int ultimo;
    Area area;
    bool visibile;
    Aspetto stile;
    QStringView testo; // %1 stands for the number of the panel
};

constexpr Aspetto nessuno{};

constexpr std::array inizi{
    Inizio{TipoElemento::Text9,
           0,
           0,
           {7320, 240, 9735, 810},
           true,
           {u"Tahoma", 36, false, grigio, 0, sinistra, true},
           u"Titolo della Schermata"},
    Inizio{TipoElemento::Text9,
           1,
           1,
           {6840, 1080, 7575, 570},
           true,
           {u"Tahoma", 24, false, grigio, 0, sinistra, true},
           u"Sottotitolo della Schermata"},
    Inizio{TipoElemento::Text9,
           2,
           2,
           {12480, 8280, 6255, 495},
           true,
           {u"Tahoma", 18, true, grigioScuro, bianco, centro},
           u"Giovedi 29 Settembre 2011"},
    Inizio{TipoElemento::Text9,
           3,
           3,
           {12480, 8880, 6255, 1215},
           true,
           {u"Tahoma", 48, true, grigioScuro, bianco, centro},
           u"20:45"},
    Inizio{TipoElemento::Text2,
           0,
           0,
           {13440, 13200, 10695, 495},
           true,
           {u"Tahoma", 14.25, false, 0, bianco},
           u"Testo scorrevole"},
    Inizio{TipoElemento::IM1, 0, 0, {17280, 8160, 9615, 6615}, true, nessuno, {}},
    Inizio{TipoElemento::MP1, 0, 0, {14280, 4680, 8775, 6135}, true, nessuno, {}},
    Inizio{TipoElemento::WB1, 0, 0, {6600, 9360, 6765, 5055}, true, nessuno, {}},
    Inizio{TipoElemento::WB2, 0, 0, {14640, 1440, 8775, 5895}, true, nessuno, {}},
    Inizio{TipoElemento::LeNews, 0, 0, {6600, 11400, 7590, 1380}, true, nessuno, {}},
    Inizio{TipoElemento::YT, 0, 0, {10440, 2280, 6375, 5055}, true, nessuno, {}},
    Inizio{TipoElemento::Label2, 0, 0, {}, false, nessuno, u"Label2"},
    Inizio{TipoElemento::Tela, 0, 0, {}, true, {{}, 0, false, 0}, {}},
    // Free slots stand where a removed element is parked.
    Inizio{TipoElemento::Image1, 1, 25, {0, 17000, 1905, 1305}, false, nessuno, {}},
    Inizio{TipoElemento::Pannello1, 0, 0, {1000, 1000, 7005, 6495}, true, nessuno, {}},
    Inizio{TipoElemento::Pannello1, 1, 7, {1000, 23000, 7005, 6495}, false, nessuno, {}},
};

// The labels of a panel, by role.
constexpr std::array etichette{
    Inizio{TipoElemento::Text1,
           0,
           21,
           {960, 2880, 4935, 3375},
           true,
           {u"Tahoma", 128.25, false, grigioScuro, bianco, centro},
           u"0"},
    Inizio{TipoElemento::Text1,
           1,
           22,
           {240, 240, 6615, 735},
           true,
           {u"Tahoma", 27.75, false, grigioScuro, bianco},
           u"Postazione %1"},
    Inizio{TipoElemento::Text1,
           2,
           23,
           {240, 1200, 6615, 720},
           true,
           {u"Arial", 27.75, false, grigio, 0, sinistra, true},
           u"Servizio (%1)"},
};

struct Eccezione {
    int etichetta;
    Area area;
    double dimensione;
};
constexpr std::array eccezioni{
    Eccezione{0, {960, 2880, 4935, 3375}, 126},
    Eccezione{22, {120, 240, 6615, 735}, 27.75},
    Eccezione{14, {240, 1080, 6615, 720}, 27.75},
    Eccezione{17, {360, 1200, 6615, 720}, 27.75},
};

LayoutElement daInizio(const Inizio &inizio, int indice) {
    LayoutElement e;
    e.tipo = inizio.tipo;
    e.indice = indice;
    e.area = inizio.area;
    e.visibile = inizio.visibile;
    e.didascalia = inizio.testo.toString();
    e.font = {inizio.stile.font.toString(), inizio.stile.dimensione, inizio.stile.grassetto, false};
    e.coloreSfondo = inizio.stile.sfondo;
    e.coloreTesto = inizio.stile.testo;
    e.allineamento = inizio.stile.allineamento;
    e.trasparente = inizio.stile.trasparente;
    e.cornice = inizio.tipo == TipoElemento::Image1;
    return e;
}

LayoutElement etichettaIniziale(int indice) {
    LayoutElement e = daInizio(etichette[static_cast<std::size_t>(indice % 3)], indice);
    e.didascalia.replace(u"%1"_s, QString::number(indice / 3 + 1));
    for (const Eccezione &eccezione : eccezioni) {
        if (eccezione.etichetta == indice) {
            e.area = eccezione.area;
            e.font.dimensione = eccezione.dimensione;
        }
    }
    return e;
}

} // namespace

LayoutElement valoreIniziale(TipoElemento tipo, int indice) {
    if (tipo == TipoElemento::Text1)
        return etichettaIniziale(indice);
    for (const Inizio &inizio : inizi) {
        if (inizio.tipo == tipo && indice >= inizio.primo && indice <= inizio.ultimo)
            return daInizio(inizio, indice);
    }
    return {};
}

} // namespace zuvora
