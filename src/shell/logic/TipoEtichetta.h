#pragma once

namespace zuvora {

// What the ticket designer is told about the contents of a variable.
enum class TipoEtichetta : int {
    Logico = 0x02000000, // "True" or "False"
    Data = 0x04000002,   // a count of days, with a fraction for the time; day 0 is 30 December 1899
    Numero = 0x08000000, // plain decimal, with a point
    Testo = 0x10000000
};

} // namespace zuvora
