#pragma once

#include "designer/logic/DisplayLayout.h"
#include "designer/logic/Righe.h"
#include "shell/store/Valore.h"

namespace zuvora {

// The value that a save writes for a column of an element: booleans, whole numbers, single-precision numbers or text.
Valore valoreDi(const DisplayLayout &layout, int posto, ColonnaLayout c);

// What became of a value read into an element.
enum class EsitoValore { Letto, Assente, NonValido };
// Gives a column's value to an element. Null leaves the element as it is (Assente), but empties the caption of Text1
// and Text2, turns booleans off and makes the canvas black (Letto). A value of the wrong type or out of range changes
// nothing. FontBold of a decoration sets its plane. PercorsoImmagine isn't read here, since it needs the file.
EsitoValore impostaValore(DisplayLayout &layout, int posto, ColonnaLayout c, const Valore &v);

} // namespace zuvora
