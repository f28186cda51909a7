#pragma once

#include <QString>
#include <array>

namespace zuvora {

// Ten workstations, each of type "SG" or "ST". A choice is an index of 0 to 19: even ones are "SG", odd ones "ST", and
// the workstation is the index divided by two.
inline constexpr int numeroPostazioni = 10;

// Stores one choice. std::out_of_range for another index; EngineError when it can't be written.
void ImpostaPostazione(const QString &cartella, int Index);

// The index stored for each workstation; -1 for Null or another text.
std::array<int, numeroPostazioni> leggiPostazioni(const QString &cartella);

} // namespace zuvora
