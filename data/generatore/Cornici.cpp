#include "Catalogo.h"
#include "CorniciForme.h"

#include <array>
#include <vector>

namespace zuvora::disegna {

using namespace Qt::Literals::StringLiterals;

namespace {

using Stile = void (*)(QPainter &, const Tono &);

QImage cornice(Stile stile, Tinta tinta) {
    return dipinto(misuraCornice, [&](QPainter &p) { stile(p, tono(tinta)); });
}

struct Serie {
    QStringView nome;
    Stile stile;
    std::vector<Tinta> tinte;
};

std::vector<Serie> serie() {
    using enum Tinta;
    return {
        {u"sottile", &sottile, {Blu, Verde, Grigio, Antracite}},
        {u"doppia", &doppia, {Blu, Verde, Bordeaux, Oro}},
        {u"arrotondata", &arrotondata, {Blu, Azzurro, Verde, Arancio, Argento}},
        {u"ombreggiata", &ombreggiata, {Bianco, Blu, Petrolio, Verde}},
        {u"angoli", &angoli, {Blu, Verde, Oro, Antracite}},
        {u"tratteggiata", &tratteggiata, {Azzurro, Grigio, Arancio}},
        {u"puntinata", &puntinata, {Blu, Viola}},
        {u"smussata", &smussata, {Blu, Verde, Argento}},
        {u"righe", &righe, {Blu, Salvia}},
        {u"laterale", &laterale, {Blu, Verde, Arancio}},
        {u"vetro", &vetro, {Bianco, Azzurro, Verde, Antracite}},
        {u"foto", &foto, {Bianco, Sabbia}},
        {u"ornamentale", &ornamentale, {Oro, Argento, Bordeaux}},
        {u"titolo", &conTitolo, {Blu, Verde, Rosso, Antracite}},
        {u"intestata", &intestata, {Blu, Petrolio, Viola, Grigio}},
        {u"quadro", &quadro, {Noce, Oro, Argento, Antracite}},
        {u"luminosa", &luminosa, {Azzurro, Verde}},
        {u"schermo", &schermo, {Antracite, Argento}},
    };
}

} // namespace

Disegni cornici() {
    Disegni esito;
    // The picture a free slot shows: its name is part of the installation. Kept as it is, not drawn here.
    esito.push_back({u"stondata.gif"_s, {}});
    for (const Serie &s : serie())
        for (const Tinta tinta : s.tinte)
            esito.push_back({u"cornice_%1_%2.png"_s.arg(tono(tinta).femminile, s.nome),
                             [stile = s.stile, tinta] { return cornice(stile, tinta); }});
    return esito;
}

} // namespace zuvora::disegna
