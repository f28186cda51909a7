#pragma once

#include <QColor>

#include <array>

namespace zuvora {

// The colours of the product. Drawings name them by role; the program's style uses the same ones.
// White text reads on Primario, Pericolo and TestoTenue; on Accento only from 14 points bold.
enum class Tinta : unsigned char {
    Nessuna,
    Primario,       // outlines, headings, filled buttons
    PrimarioChiaro, // screens, selected lines
    Accento,        // what is active or chosen
    AccentoChiaro,
    Evidenza, // warm highlight, never for text
    EvidenzaChiara,
    Pericolo, // errors, closing, deleting
    Testo,
    TestoTenue, // secondary text, disabled marks
    Bordo,      // lines between surfaces
    Velo,       // grey surfaces, shadows
    Sfondo,     // windows
    SfondoChiaro,
    Bianco, // fields, lists
};

namespace tavolozza {

inline constexpr QColor primario{0x1F, 0x4E, 0x5F};
inline constexpr QColor primarioChiaro{0xCF, 0xE3, 0xE8};
inline constexpr QColor accento{0x2A, 0x9D, 0x8F};
inline constexpr QColor accentoChiaro{0xBF, 0xE3, 0xDD};
inline constexpr QColor evidenza{0xE9, 0xA2, 0x3B};
inline constexpr QColor evidenzaChiara{0xF8, 0xE3, 0xBF};
inline constexpr QColor pericolo{0xC8, 0x55, 0x3D};
inline constexpr QColor testo{0x22, 0x30, 0x38};
inline constexpr QColor testoTenue{0x5B, 0x67, 0x70};
inline constexpr QColor bordo{0xB9, 0xC4, 0xCA};
inline constexpr QColor velo{0xDD, 0xE3, 0xE6};
inline constexpr QColor sfondo{0xEE, 0xF2, 0xF4};
inline constexpr QColor sfondoChiaro{0xF7, 0xF9, 0xFA};
inline constexpr QColor bianco{0xFF, 0xFF, 0xFF};

// For controls alone: texts reach 4.5:1 on windows and on white fields, edges 3:1.
inline constexpr QColor bordoControllo{0x76, 0x82, 0x89};
inline constexpr QColor pericoloScuro{0xA8, 0x3F, 0x29};
inline constexpr QColor riuscita{0x1E, 0x7A, 0x5A};
inline constexpr QColor testoSpento{0x5F, 0x6B, 0x74};

// The colour of a role; Nessuna is the invalid colour.
constexpr QColor colore(Tinta t) {
    constexpr std::array tutte{QColor{}, primario,       primarioChiaro, accento,      accentoChiaro,
                               evidenza, evidenzaChiara, pericolo,       testo,        testoTenue,
                               bordo,    velo,           sfondo,         sfondoChiaro, bianco};
    static_assert(tutte.size() == static_cast<size_t>(Tinta::Bianco) + 1);
    return tutte[static_cast<size_t>(t)];
}

} // namespace tavolozza
} // namespace zuvora
