#include "kiosk/logic/Disposizione.h"

#include <algorithm>
#include <span>

namespace zuvora {
namespace {

// What so many services share: the size of a button, the tops of the rows and the lefts of the columns, twips. A 0 in
// the lists stands for none.
struct Fascia {
    int da;
    int a;
    int larghezza;
    int altezza;
    std::array<int, 5> righe;
    std::array<int, 5> colonne;
};

// Where the buttons of the last row stand for that number of services, if not from the first column on.
struct UltimaRiga {
    int servizi;
    std::array<int, 3> sinistre;
};

struct Tavola {
    std::span<const Fascia> fasce;
    std::span<const UltimaRiga> ultime;
};

constexpr std::array<Fascia, 8> fasce1280 = {{
    {1, 1, 8415, 5415, {4920}, {5040}},
    {2, 2, 7815, 5415, {4920}, {1440, 9600}},
    {3, 4, 7095, 4455, {3960, 8760}, {1920, 9360}},
    {5, 6, 5895, 3615, {3360, 7440}, {480, 6600, 12720}},
    {7, 9, 5895, 3615, {2520, 6600, 10680}, {480, 6600, 12720}},
    {10, 12, 5895, 2775, {2520, 5640, 8760, 11760}, {480, 6600, 12720}},
    {13, 16, 4335, 2415, {2880, 5520, 8160, 10800}, {480, 5040, 9600, 14160}},
    {17, 20, 4335, 2100, {2880, 5220, 7680, 10080, 12480}, {480, 5040, 9600, 14160}},
}};
constexpr std::array<Fascia, 6> fasce1920 = {{
    {1, 1, 9855, 6135, {5520}, {9120}},
    {2, 2, 9855, 6135, {5400}, {3360, 15360}},
    {3, 4, 7695, 5175, {4400, 10000}, {5880, 14040}},
    {5, 8, 5295, 3735, {5400, 9360}, {4200, 9600, 15000, 20400}},
    {9, 15, 4935, 3615, {5400, 9120, 12840}, {1680, 6720, 11760, 16800, 21840}},
    {16, 20, 4935, 2895, {4920, 7920, 10920, 13920}, {1680, 6720, 11760, 16800, 21840}},
}};
constexpr std::array<Fascia, 8> fasce1440 = {{
    {1, 1, 8415, 5415, {4000}, {6240}},
    {2, 2, 7815, 5415, {4000}, {2640, 10800}},
    {3, 4, 7095, 4455, {2840, 7540}, {3120, 10560}},
    {5, 6, 5895, 3615, {2440, 6520}, {1680, 7800, 13920}},
    {7, 9, 5895, 3500, {1915, 5595, 9310}, {1680, 7800, 13920}},
    {10, 12, 4200, 2535, {3240, 5880, 8520}, {1680, 6000, 10320, 14640}},
    {13, 16, 4200, 2535, {2400, 5040, 7680, 10320}, {1680, 6000, 10320, 14640}},
    {17, 20, 3800, 2535, {2280, 4920, 7560, 10200}, {720, 4680, 8640, 12600, 16560}},
}};

constexpr std::array<UltimaRiga, 3> ultime1280 = {{{3, {5640}}, {5, {3360, 9480}}, {7, {6600}}}};
constexpr std::array<UltimaRiga, 9> ultime1920 = {{
    {3, {10080}},
    {5, {12480}},
    {6, {9600, 15000}},
    {11, {11760}},
    {12, {9360, 14400}},
    {13, {6720, 11760, 16800}},
    {16, {11760}},
    {17, {9360, 14400}},
    {18, {6720, 11760, 16800}},
}};
// The middle button of six stands 80 twips off its column: so it is on the kiosk.
constexpr std::array<UltimaRiga, 4> ultime1440 = {
    {{3, {6840}}, {5, {4560, 10680}}, {6, {1680, 7880, 13920}}, {7, {7800}}}};

constexpr std::array<Tavola, 3> tavole = {{{fasce1280, ultime1280}, {fasce1920, ultime1920}, {fasce1440, ultime1440}}};

template <std::size_t N> int quanti(const std::array<int, N> &valori) {
    return static_cast<int>(N - std::ranges::count(valori, 0));
}

} // namespace

std::vector<QRect> disposizionePulsanti(int schermo, int servizi) {
    if (schermo < 0 || schermo >= static_cast<int>(tavole.size()))
        return {};
    const auto &[fasce, ultime] = tavole[static_cast<std::size_t>(schermo)];
    const auto fascia = std::ranges::find_if(fasce, [=](const Fascia &f) { return f.da <= servizi && servizi <= f.a; });
    if (fascia == fasce.end())
        return {};
    const auto ultima = std::ranges::find(ultime, servizi, &UltimaRiga::servizi);
    const int perRiga = quanti(fascia->colonne);
    const int rigaFinale = (servizi - 1) / perRiga;
    std::vector<QRect> posti;
    for (int i = 0; i < servizi; ++i) {
        const int riga = i / perRiga;
        const auto colonna = static_cast<std::size_t>(i % perRiga);
        const int sinistra =
            riga == rigaFinale && ultima != ultime.end() ? ultima->sinistre.at(colonna) : fascia->colonne.at(colonna);
        posti.emplace_back(sinistra, fascia->righe.at(static_cast<std::size_t>(riga)), fascia->larghezza,
                           fascia->altezza);
    }
    return posti;
}

int fuoriSchermo(int schermo, int servizi) {
    int fuori = 0;
    for (const QRect &posto : disposizionePulsanti(schermo, servizi))
        fuori =
            std::max(fuori, posto.y() + posto.height() - schermiTotem.at(static_cast<std::size_t>(schermo)).altezza);
    return fuori;
}

} // namespace zuvora
