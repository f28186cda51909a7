#include "shell/disegni/Figure.h"

#include <array>

namespace zuvora {
namespace {

// Larger pictures, shown near the size of their grid.
using enum Tinta;

constexpr Strato zuvora[] = {
    {"M15 1h34a14 14 0 0 1 14 14v34a14 14 0 0 1 -14 14h-34a14 14 0 0 1 -14 -14v-34a14 14 0 0 1 14 -14z", Primario},
    {"M12 8h40a3 3 0 0 1 3 3v7a5 5 0 0 0 0 10v7a3 3 0 0 1-3 3h-40a3 3 0 0 1-3-3v-7a5 5 0 0 0 0-10v-7a3 3 0 0 1 3-3z",
     Bianco},
    {"M19.500 17.500l6-3.500v17.500M33 18.500q1-4.500 6-4.500q6 0 6 5q0 3.500-4.500 7.500l-7 5h11", Nessuna, Accento,
     5.5},
    {"M11.16 46.75a4.34 4.34 0 1 1 8.68 0a4.34 4.34 0 1 1 -8.68 0zM8.5 59v-0.7a7 6.65 0 0 1 14 0v0.7z", Accento},
    {"M27.35 45.88a4.65 4.65 0 1 1 9.3 0a4.65 4.65 0 1 1 -9.3 0zM24.5 59v-0.75a7.5 7.12 0 0 1 15 0v0.75z", Evidenza},
    {"M44.16 46.75a4.34 4.34 0 1 1 8.68 0a4.34 4.34 0 1 1 -8.68 0zM41.5 59v-0.7a7 6.65 0 0 1 14 0v0.7z", Accento},
};

constexpr Strato salaAttesa[] = {
    {"M15 1h200a14 14 0 0 1 14 14v270a14 14 0 0 1 -14 14h-200a14 14 0 0 1 -14 -14v-270a14 14 0 0 1 14 -14z",
     PrimarioChiaro},
    {"M11 150a104 104 0 1 1 208 0a104 104 0 1 1 -208 0z", Sfondo},
    {"M1 262h228v23a14 14 0 0 1 -14 14h-200a14 14 0 0 1 -14 -14z", AccentoChiaro},
    {"M78 1h4v18h-4zM148 1h4v18h-4z", Primario},
    {"M43 18h144a9 9 0 0 1 9 9v82a9 9 0 0 1 -9 9h-144a9 9 0 0 1 -9 -9v-82a9 9 0 0 1 9 -9z", Primario},
    {"M42 48h146v58a4 4 0 0 1 -4 4h-138a4 4 0 0 1 -4 -4z", Bianco},
    {"M58 37h70", Nessuna, Bianco, 4},
    {"M170 37a4 4 0 1 1 8 0a4 4 0 1 1 -8 0z", Evidenza},
    {"M76 66q2-9 12-9q11 0 11 10q0 7-8 14l-15 13h25M138 95v-38l-22 26h30", Nessuna, Accento, 10},
    {"M160 69q5 7 0 14M168 62q9 14 0 28", Nessuna, Evidenza, 4},
    {"M34 180h28a12 12 0 0 1 12 12v34a12 12 0 0 1 -12 12h-28a12 12 0 0 1 -12 -12v-34a12 12 0 0 1 12 -12z", Bordo},
    {"M28 240v36M68 240v36", Nessuna, TestoTenue, 4},
    {"M39 236v34M57 236v34", Nessuna, Primario, 14},
    {"M36 277h4M56 277h4", Nessuna, Testo, 7},
    {"M24.5 232h47a5.5 5.5 0 0 1 5.5 5.5v0a5.5 5.5 0 0 1 -5.5 5.5h-47a5.5 5.5 0 0 1 -5.5 -5.5v0a5.5 5.5 0 0 1 5.5 "
     "-5.5z",
     TestoTenue},
    {"M38.5 234v4M57.5 234v4", Nessuna, Primario, 15},
    {"M47 168h2a4 4 0 0 1 4 4v8a4 4 0 0 1 -4 4h-2a4 4 0 0 1 -4 -4v-8a4 4 0 0 1 4 -4z", EvidenzaChiara},
    {"M26 232v-32a18 18 0 0 1 18-18h8a18 18 0 0 1 18 18v32z", Accento},
    {"M42 181h12q-1 7-6 7q-5 0-6-7z", EvidenzaChiara},
    {"M32 158a16 16 0 1 1 32 0a16 16 0 1 1 -32 0z", EvidenzaChiara},
    {"M31 157a17 17 0 0 1 34 0q-3-6-7-8q-12 2-20 0q-4 2-7 8z", Primario},
    {"M40.8 159a1.7 1.7 0 1 1 3.4 0a1.7 1.7 0 1 1 -3.4 0zM51.8 159a1.7 1.7 0 1 1 3.4 0a1.7 1.7 0 1 1 -3.4 0z",
     Primario},
    {"M43 165.500q5 4.500 10 0", Nessuna, Pericolo, 1.8},
    {"M168 180h28a12 12 0 0 1 12 12v34a12 12 0 0 1 -12 12h-28a12 12 0 0 1 -12 -12v-34a12 12 0 0 1 12 -12z", Bordo},
    {"M162 240v36M202 240v36", Nessuna, TestoTenue, 4},
    {"M173 236v34M191 236v34", Nessuna, TestoTenue, 14},
    {"M170 277h4M190 277h4", Nessuna, Testo, 7},
    {"M158.5 232h47a5.5 5.5 0 0 1 5.5 5.5v0a5.5 5.5 0 0 1 -5.5 5.5h-47a5.5 5.5 0 0 1 -5.5 -5.5v0a5.5 5.5 0 0 1 5.5 "
     "-5.5z",
     TestoTenue},
    {"M172.5 234v4M191.5 234v4", Nessuna, TestoTenue, 15},
    {"M181 168h2a4 4 0 0 1 4 4v8a4 4 0 0 1 -4 4h-2a4 4 0 0 1 -4 -4v-8a4 4 0 0 1 4 -4z", EvidenzaChiara},
    {"M160 232v-32a18 18 0 0 1 18-18h8a18 18 0 0 1 18 18v32z", Primario},
    {"M176 181h12q-1 7-6 7q-5 0-6-7z", EvidenzaChiara},
    {"M166 158a16 16 0 1 1 32 0a16 16 0 1 1 -32 0z", EvidenzaChiara},
    {"M165 160q-3-19 11-20q6-6 14 0q11 2 9 20q-3-6-5-10q-12 3-22-2q-5 4-7 12z", Bordo},
    {"M174.8 159a1.7 1.7 0 1 1 3.4 0a1.7 1.7 0 1 1 -3.4 0zM185.8 159a1.7 1.7 0 1 1 3.4 0a1.7 1.7 0 1 1 -3.4 0z",
     Primario},
    {"M177 165.500q5 4.500 10 0", Nessuna, Pericolo, 1.8},
    {"M101 180h28a12 12 0 0 1 12 12v34a12 12 0 0 1 -12 12h-28a12 12 0 0 1 -12 -12v-34a12 12 0 0 1 12 -12z", Bordo},
    {"M95 240v36M135 240v36", Nessuna, TestoTenue, 4},
    {"M106 236v34M124 236v34", Nessuna, Testo, 14},
    {"M103 277h4M123 277h4", Nessuna, Testo, 7},
    {"M91.5 232h47a5.5 5.5 0 0 1 5.5 5.5v0a5.5 5.5 0 0 1 -5.5 5.5h-47a5.5 5.5 0 0 1 -5.5 -5.5v0a5.5 5.5 0 0 1 5.5 "
     "-5.5z",
     TestoTenue},
    {"M105.5 234v4M124.5 234v4", Nessuna, Testo, 15},
    {"M96 158a19 19 0 0 1 38 0v20q0 6-6 6h-26q-6 0-6-6z", Pericolo},
    {"M114 168h2a4 4 0 0 1 4 4v8a4 4 0 0 1 -4 4h-2a4 4 0 0 1 -4 -4v-8a4 4 0 0 1 4 -4z", EvidenzaChiara},
    {"M93 232v-32a18 18 0 0 1 18-18h8a18 18 0 0 1 18 18v32z", Evidenza},
    {"M109 181h12q-1 7-6 7q-5 0-6-7z", EvidenzaChiara},
    {"M99 158a16 16 0 1 1 32 0a16 16 0 1 1 -32 0z", EvidenzaChiara},
    {"M98 158a17 17 0 0 1 34 0q-14-2-20-10q-3 8-14 10z", Pericolo},
    {"M107.8 159a1.7 1.7 0 1 1 3.4 0a1.7 1.7 0 1 1 -3.4 0zM118.8 159a1.7 1.7 0 1 1 3.4 0a1.7 1.7 0 1 1 -3.4 0z",
     Primario},
    {"M110 165.500q5 4.500 10 0", Nessuna, Pericolo, 1.8},
    {"M97 202l-1 18l10 4M133 202l1 18l-10 4", Nessuna, Evidenza, 11},
    {"M104.5 205h21a2.5 2.5 0 0 1 2.5 2.5v15a2.5 2.5 0 0 1 -2.5 2.5h-21a2.5 2.5 0 0 1 -2.5 -2.5v-15a2.5 2.5 0 0 1 2.5 "
     "-2.5z",
     Bianco},
    {"M108 212h14", Nessuna, Accento, 3},
    {"M108 218h14", Nessuna, Bordo, 2.5},
    {"M96.5 222a5.5 5.5 0 1 1 11 0a5.5 5.5 0 1 1 -11 0zM122.5 222a5.5 5.5 0 1 1 11 0a5.5 5.5 0 1 1 -11 0z",
     EvidenzaChiara},
    {"M36 228a6 6 0 1 1 12 0a6 6 0 1 1 -12 0zM48 228a6 6 0 1 1 12 0a6 6 0 1 1 -12 0z", EvidenzaChiara},
    {"M170 228a6 6 0 1 1 12 0a6 6 0 1 1 -12 0zM182 228a6 6 0 1 1 12 0a6 6 0 1 1 -12 0z", EvidenzaChiara},
};

constexpr Strato schermo1[] = {
    {"M28 112a44 4 0 1 1 88 0a44 4 0 1 1-88 0z", Velo},
    {"M62 92h20l3 18h-26z", Primario},
    {"M51 107h42a3 3 0 0 1 3 3v0a3 3 0 0 1 -3 3h-42a3 3 0 0 1 -3 -3v0a3 3 0 0 1 3 -3z", Primario},
    {"M11 6h122a7 7 0 0 1 7 7v74a7 7 0 0 1 -7 7h-122a7 7 0 0 1 -7 -7v-74a7 7 0 0 1 7 -7z", Primario},
    {"M13 12h118a3 3 0 0 1 3 3v70a3 3 0 0 1 -3 3h-118a3 3 0 0 1 -3 -3v-70a3 3 0 0 1 3 -3z", PrimarioChiaro},
    {"M16 31h52v34a3 3 0 0 1 -3 3h-46a3 3 0 0 1 -3 -3z", Bianco},
    {"M16 31v-10a3 3 0 0 1 3 -3h46a3 3 0 0 1 3 3v10z", Primario},
    {"M23 24.5h38", Nessuna, Bianco, 2.5},
    {"M30 43l6-4v21M46 44q1-5 6.500-5q6.500 0 6.500 6q0 4-5 8.500l-8 6.500h14", Nessuna, Accento, 5},
    {"M77 18h48a3 3 0 0 1 3 3v44a3 3 0 0 1 -3 3h-48a3 3 0 0 1 -3 -3v-44a3 3 0 0 1 3 -3z", AccentoChiaro},
    {"M82.5 31a5.5 5.5 0 1 1 11 0a5.5 5.5 0 1 1 -11 0z", Evidenza},
    {"M76 66v-6l14-13l9 8l13-17l14 14v12q0 2-2 2z", Accento},
    {"M19 73h106a3 3 0 0 1 3 3v4a3 3 0 0 1 -3 3h-106a3 3 0 0 1 -3 -3v-4a3 3 0 0 1 3 -3z", Primario},
    {"M23 78h30M61 78h42", Nessuna, Bianco, 2.5},
};

constexpr Strato schermo2[] = {
    {"M28 112a44 4 0 1 1 88 0a44 4 0 1 1-88 0z", Velo},
    {"M62 92h20l3 18h-26z", Primario},
    {"M51 107h42a3 3 0 0 1 3 3v0a3 3 0 0 1 -3 3h-42a3 3 0 0 1 -3 -3v0a3 3 0 0 1 3 -3z", Primario},
    {"M11 6h122a7 7 0 0 1 7 7v74a7 7 0 0 1 -7 7h-122a7 7 0 0 1 -7 -7v-74a7 7 0 0 1 7 -7z", Primario},
    {"M13 12h118a3 3 0 0 1 3 3v70a3 3 0 0 1 -3 3h-118a3 3 0 0 1 -3 -3v-70a3 3 0 0 1 3 -3z", PrimarioChiaro},
    {"M16 28h36v25a3 3 0 0 1 -3 3h-30a3 3 0 0 1 -3 -3z", Bianco},
    {"M16 28v-7a3 3 0 0 1 3 -3h30a3 3 0 0 1 3 3v7z", Accento},
    {"M23 34h22", Nessuna, Bordo, 2.5},
    {"M26 45h16", Nessuna, Accento, 4},
    {"M54 28h36v25a3 3 0 0 1 -3 3h-30a3 3 0 0 1 -3 -3z", Bianco},
    {"M54 28v-7a3 3 0 0 1 3 -3h30a3 3 0 0 1 3 3v7z", Primario},
    {"M61 34h22", Nessuna, Bordo, 2.5},
    {"M64 45h16", Nessuna, Primario, 4},
    {"M92 28h36v25a3 3 0 0 1 -3 3h-30a3 3 0 0 1 -3 -3z", Bianco},
    {"M92 28v-7a3 3 0 0 1 3 -3h30a3 3 0 0 1 3 3v7z", Evidenza},
    {"M99 34h22", Nessuna, Bordo, 2.5},
    {"M102 45h16", Nessuna, Evidenza, 4},
    {"M19 62h64a3 3 0 0 1 3 3v15a3 3 0 0 1 -3 3h-64a3 3 0 0 1 -3 -3v-15a3 3 0 0 1 3 -3z", Primario},
    {"M45.05 65.9L56.6 72.5L45.05 79.1z", Bianco},
    {"M95 62h30a3 3 0 0 1 3 3v15a3 3 0 0 1 -3 3h-30a3 3 0 0 1 -3 -3v-15a3 3 0 0 1 3 -3z", AccentoChiaro},
    {"M104 72.5a6 6 0 1 1 12 0a6 6 0 1 1 -12 0z", Evidenza},
};

constexpr Strato dueSchermi[] = {
    {"M32 141a44 4 0 1 1 88 0a44 4 0 1 1-88 0z", Velo},
    {"M66 112h20l3 24h-26z", Primario},
    {"M53 134h46a3 3 0 0 1 3 3v0a3 3 0 0 1 -3 3h-46a3 3 0 0 1 -3 -3v0a3 3 0 0 1 3 -3z", Primario},
    {"M12 10h128a8 8 0 0 1 8 8v90a8 8 0 0 1 -8 8h-128a8 8 0 0 1 -8 -8v-90a8 8 0 0 1 8 -8z", Primario},
    {"M15 17h122a4 4 0 0 1 4 4v84a4 4 0 0 1 -4 4h-122a4 4 0 0 1 -4 -4v-84a4 4 0 0 1 4 -4z", PrimarioChiaro},
    {"M11 17v60l72-60z", Bianco},
    {"M216 141a44 4 0 1 1 88 0a44 4 0 1 1-88 0z", Velo},
    {"M250 112h20l3 24h-26z", Primario},
    {"M237 134h46a3 3 0 0 1 3 3v0a3 3 0 0 1 -3 3h-46a3 3 0 0 1 -3 -3v0a3 3 0 0 1 3 -3z", Primario},
    {"M196 10h128a8 8 0 0 1 8 8v90a8 8 0 0 1 -8 8h-128a8 8 0 0 1 -8 -8v-90a8 8 0 0 1 8 -8z", Primario},
    {"M199 17h122a4 4 0 0 1 4 4v84a4 4 0 0 1 -4 4h-122a4 4 0 0 1 -4 -4v-84a4 4 0 0 1 4 -4z", PrimarioChiaro},
    {"M195 17v60l72-60z", Bianco},
};

constexpr Strato marcatore[] = {
    {"M14 44a10 2.500 0 1 1 20 0a10 2.500 0 1 1-20 0z", Velo},
    {"M24 44q-15-15-15-26a15 15 0 0 1 30 0q0 11-15 26z", Pericolo, Bianco},
    {"M18 18a6 6 0 1 1 12 0a6 6 0 1 1 -12 0z", Bianco},
};

constexpr std::array illustrazioni{
    Figura{Disegno::Zuvora, 64, 64, zuvora},           Figura{Disegno::SalaAttesa, 230, 300, salaAttesa},
    Figura{Disegno::Schermo1, 144, 120, schermo1},     Figura{Disegno::Schermo2, 144, 120, schermo2},
    Figura{Disegno::DueSchermi, 336, 150, dueSchermi}, Figura{Disegno::Marcatore, 48, 48, marcatore},
};

} // namespace

std::span<const Figura> figureIllustrazioni() {
    return illustrazioni;
}

} // namespace zuvora
