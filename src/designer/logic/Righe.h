#pragma once

#include "designer/logic/DisplayLayout.h"

#include <array>
#include <span>

namespace zuvora {

// The columns of a layout table, in the order in which a copy carries them.
enum class ColonnaLayout {
    DescCampo,
    Top,
    Left,
    Testo,
    NomeFont,
    DimFont,
    FontBold,
    FontItalic,
    ColoreSfondo,
    ColoreTesto,
    Allineamento,
    Altezza,
    Larghezza,
    Visibile,
    PercorsoImmagine,
    SfondoTestoTrasparente
};
inline constexpr int colonneLayout = 16;

QStringView nomeColonna(ColonnaLayout c);

// One row of a layout table: the element it stands for, and the columns that the designer reads and writes, each in the
// order in which it does.
struct RigaLayout {
    TipoElemento tipo;
    int indice;
    std::span<const ColonnaLayout> lette;
    std::span<const ColonnaLayout> scritte;
};

// The definition of the 70 rows: reading, writing, copying and clearing all walk it.
const std::array<RigaLayout, righeLayout> &righe();

} // namespace zuvora
