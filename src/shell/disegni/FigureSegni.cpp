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

constexpr Strato rete[] = {
    {"M3.5 4h14a1.5 1.5 0 0 1 1.5 1.5v9a1.5 1.5 0 0 1 -1.5 1.5h-14a1.5 1.5 0 0 1 -1.5 -1.5v-9a1.5 1.5 0 0 1 1.5 -1.5z",
     PrimarioChiaro, Primario, 2.5},
    {"M10.5 17v9.5h10", Nessuna, Evidenza, 3},
    {"M22 12h7v17h-7z", Accento, Primario, 2.5},
};

constexpr Strato riquadri[] = {
    {"M3 5h26v22h-26z", Bianco, Primario, 2.5},
    {"M6 8h12v9h-12z", Accento},
    {"M20 8h6v9h-6z", Evidenza},
    {"M6 19h20v5h-20z", Primario},
};

constexpr Strato campana[] = {
    {"M16 2.5v2", Nessuna, Primario, 3},
    {"M16 4.5a9 9 0 0 1 9 9v6.5l3 4h-24l3-4v-6.5a9 9 0 0 1 9-9z", Evidenza, Primario, 2.5},
    {"M12 26.500a4 4 0 0 0 8 0z", Primario},
};

constexpr Strato nota[] = {
    {"M11 24v-18l16-3v17.500", Nessuna, Primario, 3},
    {"M3 24.5a4 4 0 1 1 8 0a4 4 0 1 1 -8 0zM19 21a4 4 0 1 1 8 0a4 4 0 1 1 -8 0z", Accento, Primario},
};

constexpr Strato parlato[] = {
    {"M4.5 3.5h23a2.5 2.5 0 0 1 2.5 2.5v14a2.5 2.5 0 0 1 -2.5 2.5h-11.500l-7 7v-7h-4.5a2.5 2.5 0 0 1 -2.5 -2.5v-14a2.5 "
     "2.5 0 0 1 2.5 -2.5z",
     Accento, Primario},
    {"M9 11v4M14 8v10M19 10v6M24 12v2", Nessuna, Bianco, 2.8},
};

constexpr Strato radio[] = {
    {"M9 11l16-7.500", Nessuna, Primario, 2.5},
    {"M4 11h24a2 2 0 0 1 2 2v13a2 2 0 0 1 -2 2h-24a2 2 0 0 1 -2 -2v-13a2 2 0 0 1 2 -2z", Evidenza, Primario},
    {"M6 19.5a4.5 4.5 0 1 1 9 0a4.5 4.5 0 1 1 -9 0z", Bianco, Primario, 2.5},
    {"M19 17h7M19 22h7", Nessuna, Primario, 2.5},
};

constexpr Strato totem[] = {
    {"M9 2h14a2 2 0 0 1 2 2v17h-18v-17a2 2 0 0 1 2 -2z", Primario, Primario},
    {"M10 5h12v8h-12z", AccentoChiaro},
    {"M11 17h10", Nessuna, Bianco, 2.5},
    {"M13 21h6v8h-6z", TestoTenue},
    {"M8 29h16", Nessuna, Primario, 2.5},
};

constexpr Strato ingranaggio[] = {
    {"M16 3v26M3 16h26M6.8 6.8l18.400 18.400M6.8 25.2l18.400-18.400", Nessuna, Primario, 4},
    {"M8 16a8 8 0 1 1 16 0a8 8 0 1 1 -16 0z", Primario},
    {"M12 16a4 4 0 1 1 8 0a4 4 0 1 1 -8 0z", Bianco},
};

constexpr std::array segni{
    Figura{Disegno::Pulisci, 32, 32, pulisci},
    Figura{Disegno::Cartella, 32, 32, cartella},
    Figura{Disegno::Unita, 32, 32, unita},
    Figura{Disegno::FileImmagine, 32, 32, fileImmagine},
    Figura{Disegno::Domanda, 32, 32, domanda},
    Figura{Disegno::Avviso, 32, 32, avviso},
    Figura{Disegno::Riuscita, 32, 32, riuscita},
    Figura{Disegno::SpostaFinestra, 32, 32, spostaFinestra},
    Figura{Disegno::Presa, 32, 32, presa},
    Figura{Disegno::Rete, 32, 32, rete},
    Figura{Disegno::Riquadri, 32, 32, riquadri},
    Figura{Disegno::Campana, 32, 32, campana},
    Figura{Disegno::Nota, 32, 32, nota},
    Figura{Disegno::Parlato, 32, 32, parlato},
    Figura{Disegno::Radio, 32, 32, radio},
    Figura{Disegno::Totem, 32, 32, totem},
    Figura{Disegno::Ingranaggio, 32, 32, ingranaggio},
};

} // namespace

std::span<const Figura> figureSegni() {
    return segni;
}

} // namespace zuvora
