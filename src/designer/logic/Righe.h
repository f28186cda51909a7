#pragma once

#include "designer/logic/DisplayLayout.h"
#include "shell/store/Valore.h"

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

// The value that a save writes for a column of an element: booleans, whole numbers, single-precision numbers or text.
Valore valoreDi(const DisplayLayout &layout, int posto, ColonnaLayout c);

// What became of a value read into an element.
enum class EsitoValore { Letto, Assente, NonValido };
// Gives a column's value to an element. Null leaves the element as it is (Assente), but empties the caption of Text1
// and Text2, turns booleans off and makes the canvas black (Letto). A value of the wrong type or out of range changes
// nothing. FontBold of a decoration sets its plane. PercorsoImmagine isn't read here, since it needs the file.
EsitoValore impostaValore(DisplayLayout &layout, int posto, ColonnaLayout c, const Valore &v);

} // namespace zuvora
