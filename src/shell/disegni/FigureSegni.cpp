#include "shell/disegni/Figure.h"

#include <array>

namespace zuvora {
namespace {

// Marks: few, bold shapes, since some are shown at 16 pixels.
using enum Tinta;

constexpr Strato pulisci[] = {
    {"M24.67 3.04L19.19 11.81", Nessuna, Evidenza, 3},
    {"M13.11 13.56L20.29 18.04L18.05 30.49L2.9 21.03z", EvidenzaChiara, Primario},
    {"M11.22 20.13L8.33 23.87M15.21 22.62L13.12 26.86", Nessuna, Primario, 1.8},
    {"M14.96 9.72L22.93 14.7L20.44 18.69L12.47 13.71z", Accento, Primario},
};

constexpr Strato cartella[] = {
    {"M3 8a2.5 2.5 0 0 1 2.5-2.5h7l3 3.5h11a2.5 2.5 0 0 1 2.5 2.5v13a2.5 2.5 0 0 1-2.5 2.5h-21a2.5 2.5 0 0 1-2.5-2.5z",
     Evidenza, Primario},
    {"M3 14h26v10.5a2.5 2.5 0 0 1-2.5 2.5h-21a2.5 2.5 0 0 1-2.5-2.5z", EvidenzaChiara, Primario},
};

constexpr Strato unita[] = {
    {"M8 6h16l5 11v7a3 3 0 0 1-3 3h-20a3 3 0 0 1-3-3v-7z", Velo, Primario},
    {"M6 16h20a3 3 0 0 1 3 3v5a3 3 0 0 1 -3 3h-20a3 3 0 0 1 -3 -3v-5a3 3 0 0 1 3 -3z", Bianco, Primario},
    {"M8 21.5h9", Nessuna, Primario},
    {"M21.5 21.5a2 2 0 1 1 4 0a2 2 0 1 1 -4 0z", Accento},
};

constexpr Strato fileImmagine[] = {
    {"M7 3h13l6 6v17a3 3 0 0 1-3 3h-16a3 3 0 0 1-3-3v-20a3 3 0 0 1 3-3z", Bianco, Primario},
    {"M20 3v6h6z", Velo, Primario},
    {"M8.3 13a2.2 2.2 0 1 1 4.4 0a2.2 2.2 0 1 1 -4.4 0z", Evidenza},
    {"M6.5 26v-2.5l5-5l3 3l4-5l5 5.5v3q0 1-1 1z", Accento},
};

constexpr Strato domanda[] = {
    {"M2 16a14 14 0 1 1 28 0a14 14 0 1 1 -28 0z", Primario},
    {"M11.5 12.5a4.5 4.5 0 1 1 6.5 4q-2 1-2 3", Nessuna, Bianco, 3.2},
    {"M14 23.6a2 2 0 1 1 4 0a2 2 0 1 1 -4 0z", Bianco},
};

constexpr Strato avviso[] = {
    {"M16 4.5l12.5 22h-25z", Evidenza, Evidenza, 3},
    {"M16 11.5v7", Nessuna, Primario, 3.2},
    {"M14 23.4a2 2 0 1 1 4 0a2 2 0 1 1 -4 0z", Primario},
};

constexpr Strato riuscita[] = {
    {"M2 16a14 14 0 1 1 28 0a14 14 0 1 1 -28 0z", Accento},
    {"M9.5 16.5l4.5 4.8l8.5 -10", Nessuna, Bianco, 3.6},
};

constexpr Strato spostaFinestra[] = {
    {"M16 4v24M4 16h24M12.5 7.5l3.5-3.5l3.5 3.5M12.5 24.5l3.5 3.5l3.5-3.5M7.5 12.5l-3.5 3.5l3.5 3.5M24.5 12.5l3.5 "
     "3.5l-3.5 3.5",
     Nessuna, Primario, 2.5},
};

constexpr Strato presa[] = {
    {"M3.8 10a2.2 2.2 0 1 1 4.4 0a2.2 2.2 0 1 1 -4.4 0zM13.8 10a2.2 2.2 0 1 1 4.4 0a2.2 2.2 0 1 1 -4.4 0zM23.8 10a2.2 "
     "2.2 0 1 1 4.4 0a2.2 2.2 0 1 1 -4.4 0zM3.8 22a2.2 2.2 0 1 1 4.4 0a2.2 2.2 0 1 1 -4.4 0zM13.8 22a2.2 2.2 0 1 1 4.4 "
     "0a2.2 2.2 0 1 1 -4.4 0zM23.8 22a2.2 2.2 0 1 1 4.4 0a2.2 2.2 0 1 1 -4.4 0z",
     TestoTenue},
};

constexpr std::array segni{
    Figura{Disegno::Pulisci, 32, 32, pulisci},   Figura{Disegno::Cartella, 32, 32, cartella},
    Figura{Disegno::Unita, 32, 32, unita},       Figura{Disegno::FileImmagine, 32, 32, fileImmagine},
    Figura{Disegno::Domanda, 32, 32, domanda},   Figura{Disegno::Avviso, 32, 32, avviso},
    Figura{Disegno::Riuscita, 32, 32, riuscita}, Figura{Disegno::SpostaFinestra, 32, 32, spostaFinestra},
    Figura{Disegno::Presa, 32, 32, presa},
};

} // namespace

std::span<const Figura> figureSegni() {
    return segni;
}

} // namespace zuvora
