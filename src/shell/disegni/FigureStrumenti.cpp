#include "shell/disegni/Figure.h"

#include <array>

namespace zuvora {
namespace {

// Toolbox of the designer; the same drawings stand for the boxes of a layout.
using enum Tinta;

constexpr Strato testoScorrevole[] = {
    {"M5 4h22a3 3 0 0 1 3 3v9a3 3 0 0 1 -3 3h-22a3 3 0 0 1 -3 -3v-9a3 3 0 0 1 3 -3z", Primario, Primario},
    {"M4 15.500l3-7.500l3 7.500M5 13h4M13.500 8v7.500h2.500a2 2 0 0 0 0-4.200h-2.500h2a1.650 1.650 0 0 0 0-3.300zM27 "
     "9.200a3.700 3.700 0 1 0 0 5",
     Nessuna, Bianco},
    {"M27 26H6M10 22l-4 4l4 4", Nessuna, Accento, 2.5},
};

constexpr Strato servizio[] = {
    {"M6 3h20a3 3 0 0 1 3 3v20a3 3 0 0 1 -3 3h-20a3 3 0 0 1 -3 -3v-20a3 3 0 0 1 3 -3z", Bianco, Primario},
    {"M3 11v-5a3 3 0 0 1 3 -3h20a3 3 0 0 1 3 3v5z", Primario},
    {"M8 7h16", Nessuna, Bianco},
    {"M9.5 17.5l3 -2v10M17.5 17.5q.5 -2.5 3 -2.5q3 0 3 2.7q0 2 -2.5 4.3l-3.5 3.5h6.5", Nessuna, Accento, 3},
};

constexpr Strato titolo[] = {
    {"M5 4h22v7h-3l-1-3h-4.5v13h3v3h-11v-3h3v-13h-4.5l-1 3h-3z", Primario},
    {"M6 28h20", Nessuna, Evidenza, 3},
};

constexpr Strato sottotitolo[] = {
    {"M5 5h22", Nessuna, Bordo, 4},
    {"M8 11h16v6h-2.5l-.8-3h-2.7v9h2.2v2.5h-8.4v-2.5h2.2v-9h-2.7l-.8 3h-2.5z", Primario},
    {"M9 29h14", Nessuna, Evidenza, 2.5},
};

constexpr Strato data[] = {
    {"M6 5h20a3 3 0 0 1 3 3v18a3 3 0 0 1 -3 3h-20a3 3 0 0 1 -3 -3v-18a3 3 0 0 1 3 -3z", Bianco, Primario},
    {"M4 12.5v-4.5a2 2 0 0 1 2 -2h20a2 2 0 0 1 2 2v4.5z", Pericolo},
    {"M3 12.5h26", Nessuna, Primario},
    {"M10 3v4M22 3v4", Nessuna, Primario, 3},
    {"M8 16h4v3.5h-4zM14 16h4v3.5h-4zM20 16h4v3.5h-4zM8 22h4v3.5h-4z", Primario},
    {"M14 21h4a1 1 0 0 1 1 1v3.5a1 1 0 0 1 -1 1h-4a1 1 0 0 1 -1 -1v-3.5a1 1 0 0 1 1 -1z", Evidenza},
};

constexpr Strato ora[] = {
    {"M3 16a13 13 0 1 1 26 0a13 13 0 1 1 -26 0z", Bianco, Primario, 2.5},
    {"M16 6v1M16 25v1M6 16h1M25 16h1", Nessuna, Bordo},
    {"M16 16V8.5", Nessuna, Primario, 2.5},
    {"M16 16l5.5 3.5", Nessuna, Accento, 2.5},
    {"M14 16a2 2 0 1 1 4 0a2 2 0 1 1 -4 0z", Evidenza},
};

constexpr Strato sfondo[] = {
    {"M5 3h22a3 3 0 0 1 3 3v14a3 3 0 0 1 -3 3h-22a3 3 0 0 1 -3 -3v-14a3 3 0 0 1 3 -3z", PrimarioChiaro},
    {"M7.2 9.5a2.8 2.8 0 1 1 5.6 0a2.8 2.8 0 1 1 -5.6 0z", Evidenza},
    {"M2.5 20l7.500-6l5 4l7-8l7.500 8v4.500h-26.500z", Accento},
    {"M5 3h22a3 3 0 0 1 3 3v14a3 3 0 0 1 -3 3h-22a3 3 0 0 1 -3 -3v-14a3 3 0 0 1 3 -3z", Nessuna, Primario},
    {"M16 24v4M10 29h12", Nessuna, Primario, 2.5},
};

constexpr Strato coloreSfondo[] = {
    {"M13.5 5.5l11.5 11.5l-9.5 9.5q-1.5 1.5-3 0l-8.5-8.5q-1.5-1.5 0-3z", Bianco, Primario},
    {"M5.5 17h18l-8.7 8.7q-.8.8-1.6 0z", Pericolo},
    {"M13.5 5.5l11.5 11.5l-9.5 9.5q-1.5 1.5-3 0l-8.5-8.5q-1.5-1.5 0-3zM8.5 2.5l8 8", Nessuna, Primario},
    {"M27.5 20q3 4.5 3 6.5a3 3 0 0 1-6 0q0-2 3-6.5z", Pericolo},
};

constexpr Strato decorazioni[] = {
    {"M5 3h22a2 2 0 0 1 2 2v22a2 2 0 0 1 -2 2h-22a2 2 0 0 1 -2 -2v-22a2 2 0 0 1 2 -2z", Evidenza, Primario},
    {"M4 4l5.5 5.5M28 4l-5.5 5.5M4 28l5.5-5.5M28 28l-5.5-5.5", Nessuna, Primario, 1.5},
    {"M9 9h14v14h-14z", Bianco, Primario},
    {"M16 11l1.5 3.5l3.5 1.5l-3.5 1.5l-1.5 3.5l-1.5-3.5l-3.5-1.5l3.5-1.5z", Accento},
};

constexpr Strato immagini[] = {
    {"M10.5 3h17a2.5 2.5 0 0 1 2.5 2.5v12a2.5 2.5 0 0 1 -2.5 2.5h-17a2.5 2.5 0 0 1 -2.5 -2.5v-12a2.5 2.5 0 0 1 2.5 "
     "-2.5z",
     AccentoChiaro, Primario},
    {"M4.5 9h18a2.5 2.5 0 0 1 2.5 2.5v14a2.5 2.5 0 0 1 -2.5 2.5h-18a2.5 2.5 0 0 1 -2.5 -2.5v-14a2.5 2.5 0 0 1 2.5 "
     "-2.5z",
     Bianco},
    {"M6.2 15a2.3 2.3 0 1 1 4.6 0a2.3 2.3 0 1 1 -4.6 0z", Evidenza},
    {"M2.5 25l6.5-5.5l3.5 3.5l5-6l7 6.5v4.5h-22z", Accento},
    {"M4.5 9h18a2.5 2.5 0 0 1 2.5 2.5v14a2.5 2.5 0 0 1 -2.5 2.5h-18a2.5 2.5 0 0 1 -2.5 -2.5v-14a2.5 2.5 0 0 1 2.5 "
     "-2.5z",
     Nessuna, Primario},
};

constexpr Strato video[] = {
    {"M5 5h22a3 3 0 0 1 3 3v16a3 3 0 0 1 -3 3h-22a3 3 0 0 1 -3 -3v-16a3 3 0 0 1 3 -3z", Primario, Primario},
    {"M6.1 7h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 0 1 -0.6 0.6h-1.8a0.6 0.6 0 0 1 -0.6 -0.6v-1.4a0.6 0.6 0 0 1 0.6 "
     "-0.6zM12.1 7h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 0 1 -0.6 0.6h-1.8a0.6 0.6 0 0 1 -0.6 -0.6v-1.4a0.6 0.6 0 0 "
     "1 0.6 -0.6zM18.1 7h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 0 1 -0.6 0.6h-1.8a0.6 0.6 0 0 1 -0.6 -0.6v-1.4a0.6 "
     "0.6 0 0 1 0.6 -0.6zM24.1 7h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 0 1 -0.6 0.6h-1.8a0.6 0.6 0 0 1 -0.6 "
     "-0.6v-1.4a0.6 0.6 0 0 1 0.6 -0.6zM6.1 22.4h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 0 1 -0.6 0.6h-1.8a0.6 0.6 0 0 "
     "1 -0.6 -0.6v-1.4a0.6 0.6 0 0 1 0.6 -0.6zM12.1 22.4h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 0 1 -0.6 0.6h-1.8a0.6 "
     "0.6 0 0 1 -0.6 -0.6v-1.4a0.6 0.6 0 0 1 0.6 -0.6zM18.1 22.4h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 0 1 -0.6 "
     "0.6h-1.8a0.6 0.6 0 0 1 -0.6 -0.6v-1.4a0.6 0.6 0 0 1 0.6 -0.6zM24.1 22.4h1.8a0.6 0.6 0 0 1 0.6 0.6v1.4a0.6 0.6 0 "
     "0 1 -0.6 0.6h-1.8a0.6 0.6 0 0 1 -0.6 -0.6v-1.4a0.6 0.6 0 0 1 0.6 -0.6z",
     Bianco},
    {"M6 11.5h20a1 1 0 0 1 1 1v7a1 1 0 0 1 -1 1h-20a1 1 0 0 1 -1 -1v-7a1 1 0 0 1 1 -1z", Bianco},
    {"M13.21 12.28L19.72 16L13.21 19.72z", Accento},
};

constexpr Strato meteo[] = {
    {"M15 11a5.5 5.5 0 1 1 11 0a5.5 5.5 0 1 1 -11 0z", Evidenza},
    {"M27.89 14.06L29.74 14.83M23.56 18.39L24.33 20.24M13.11 7.94L11.26 7.17M17.44 3.61L16.67 1.76M23.56 3.61L24.33 "
     "1.76M27.89 7.94L29.74 7.17",
     Nessuna, Evidenza},
    {"M9 28a6 6 0 0 1-.5-12a7.5 7.5 0 0 1 14-.5a6.3 6.3 0 0 1 .5 12.5z", Bianco, Primario},
};

constexpr Strato secondoSchermo[] = {
    {"M4 3h14a2 2 0 0 1 2 2v9a2 2 0 0 1 -2 2h-14a2 2 0 0 1 -2 -2v-9a2 2 0 0 1 2 -2z", Bianco, TestoTenue},
    {"M6 20h4", Nessuna, TestoTenue},
    {"M13 10h15a2 2 0 0 1 2 2v10a2 2 0 0 1 -2 2h-15a2 2 0 0 1 -2 -2v-10a2 2 0 0 1 2 -2z", Accento, Primario},
    {"M20.5 25v3M16 29h9", Nessuna, Primario},
    {"M18 14.7q.6-1.7 2.5-1.7q2.5 0 2.5 2.1q0 1.5-1.8 2.9l-3.2 3h5.3", Nessuna, Bianco, 2.4},
};

constexpr Strato posizioneFinestra[] = {
    {"M4.5 3h18a2.5 2.5 0 0 1 2.5 2.5v14a2.5 2.5 0 0 1 -2.5 2.5h-18a2.5 2.5 0 0 1 -2.5 -2.5v-14a2.5 2.5 0 0 1 2.5 "
     "-2.5z",
     Bianco, Primario},
    {"M2 9v-3.5a2.5 2.5 0 0 1 2.5 -2.5h18a2.5 2.5 0 0 1 2.5 2.5v3.5z", Primario},
    {"M4.9 6a1.1 1.1 0 1 1 2.2 0a1.1 1.1 0 1 1 -2.2 0zM8.4 6a1.1 1.1 0 1 1 2.2 0a1.1 1.1 0 1 1 -2.2 0z", Bianco},
    {"M22.5 30.5q-7-6.5-7-11.5a7 7 0 0 1 14 0q0 5-7 11.5z", Pericolo, Bianco, 1.5},
    {"M19.9 19a2.6 2.6 0 1 1 5.2 0a2.6 2.6 0 1 1 -5.2 0z", Bianco},
};

constexpr Strato salva[] = {
    {"M6 3h17l6 6v17a3 3 0 0 1-3 3h-20a3 3 0 0 1-3-3v-20a3 3 0 0 1 3-3z", Primario, Primario},
    {"M10 3h10a1 1 0 0 1 1 1v6a1 1 0 0 1 -1 1h-10a1 1 0 0 1 -1 -1v-6a1 1 0 0 1 1 -1z", PrimarioChiaro},
    {"M17 4.5h1.5a0.5 0.5 0 0 1 0.5 0.5v4a0.5 0.5 0 0 1 -0.5 0.5h-1.5a0.5 0.5 0 0 1 -0.5 -0.5v-4a0.5 0.5 0 0 1 0.5 "
     "-0.5z",
     Primario},
    {"M9 16h14a1.5 1.5 0 0 1 1.5 1.5v9a1.5 1.5 0 0 1 -1.5 1.5h-14a1.5 1.5 0 0 1 -1.5 -1.5v-9a1.5 1.5 0 0 1 1.5 -1.5z",
     Bianco},
    {"M11 20h10M11 24h7", Nessuna, Accento},
};

constexpr Strato chiudi[] = {
    {"M6 3h13a2 2 0 0 1 2 2v22a2 2 0 0 1 -2 2h-13a2 2 0 0 1 -2 -2v-22a2 2 0 0 1 2 -2z", Bianco, Primario},
    {"M4 4.5l10 3.5v21.5l-9-1.5z", Primario},
    {"M9.6 18a1.4 1.4 0 1 1 2.8 0a1.4 1.4 0 1 1 -2.8 0z", Evidenza},
    {"M18 16h11M24.5 11l5 5l-5 5", Nessuna, Pericolo, 3},
};

constexpr Strato youTube[] = {
    {"M3 6h26M3 13h12M3 20h8", Nessuna, Primario, 3},
    {"M12 20.5a9.5 9.5 0 1 1 19 0a9.5 9.5 0 1 1 -19 0z", Accento, Bianco, 1.5},
    {"M18.35 16.3L25.7 20.5L18.35 24.7z", Bianco},
};

constexpr Strato tgOnline[] = {
    {"M5 3h22a3 3 0 0 1 3 3v14a3 3 0 0 1 -3 3h-22a3 3 0 0 1 -3 -3v-14a3 3 0 0 1 3 -3z", PrimarioChiaro, Primario},
    {"M10 11a6 6 0 1 1 12 0a6 6 0 1 1 -12 0z", Bianco, Accento},
    {"M10 11h12M16 5v12M16 5q-4 6 0 12M16 5q4 6 0 12", Nessuna, Accento, 1.5},
    {"M3 17.5h26v2.5a2 2 0 0 1 -2 2h-22a2 2 0 0 1 -2 -2z", Pericolo},
    {"M7 19.7h13", Nessuna, Bianco, 1.8},
    {"M16 24v4M10 29h12", Nessuna, Primario, 2.5},
};

constexpr Strato news[] = {
    {"M22 10h8v15a3.5 3.5 0 0 1-7 0z", PrimarioChiaro, Primario},
    {"M4 4h20v21q0 3.5 3 3.5h-20q-4 0-4-4v-19.5q0-1 1-1z", Bianco, Primario},
    {"M8 9h11", Nessuna, Pericolo, 3},
    {"M7.8 14h4.9a0.8 0.8 0 0 1 0.8 0.8v4.9a0.8 0.8 0 0 1 -0.8 0.8h-4.9a0.8 0.8 0 0 1 -0.8 -0.8v-4.9a0.8 0.8 0 0 1 0.8 "
     "-0.8z",
     Accento},
    {"M16.5 15h4M16.5 19.5h4M7.5 24.5h13", Nessuna, Bordo},
};

constexpr std::array strumenti{
    Figura{Disegno::TestoScorrevole, 32, 32, testoScorrevole},
    Figura{Disegno::Servizio, 32, 32, servizio},
    Figura{Disegno::Titolo, 32, 32, titolo},
    Figura{Disegno::Sottotitolo, 32, 32, sottotitolo},
    Figura{Disegno::Data, 32, 32, data},
    Figura{Disegno::Ora, 32, 32, ora},
    Figura{Disegno::Sfondo, 32, 32, sfondo},
    Figura{Disegno::ColoreSfondo, 32, 32, coloreSfondo},
    Figura{Disegno::Decorazioni, 32, 32, decorazioni},
    Figura{Disegno::Immagini, 32, 32, immagini},
    Figura{Disegno::Video, 32, 32, video},
    Figura{Disegno::Meteo, 32, 32, meteo},
    Figura{Disegno::SecondoSchermo, 32, 32, secondoSchermo},
    Figura{Disegno::PosizioneFinestra, 32, 32, posizioneFinestra},
    Figura{Disegno::Salva, 32, 32, salva},
    Figura{Disegno::Chiudi, 32, 32, chiudi},
    Figura{Disegno::YouTube, 32, 32, youTube},
    Figura{Disegno::TgOnline, 32, 32, tgOnline},
    Figura{Disegno::News, 32, 32, news},
};

} // namespace

std::span<const Figura> figureStrumenti() {
    return strumenti;
}

} // namespace zuvora
