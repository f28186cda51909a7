#pragma once

#include "designer/logic/TrascinamentoVivo.h"

#include <QString>

namespace zuvora {

// Size of the canvas by the resolution button that is on (0 to 3), in twips. Any other number gives the form's stored
// size.
Dimensione dimensioneTela(int risoluzione);

// What the designer reads at its first activation. Missing rows, Null and bad values give 0 and "".
struct PrimaAttivazione {
    PuntoTwips posizione;
    QString PercorsoTG;
};
// Throws EngineError.
PrimaAttivazione leggiPrimaAttivazione(const QString &cartella);

// Stores the form's position, twips. Throws EngineError; 3021 when Configurazione has no row.
void SalvaPosizioneFinestra(const QString &cartella, PuntoTwips posizione);
// Where the form goes for the second screen: just right of the first. Screen width in twips.
PuntoTwips VaiSecondoSchermo(double larghezzaSchermo);

// The toolbox at start, its drag strip and its grip, twips.
inline constexpr Area postoStrumenti{360, 360, 2895, 5175};
inline constexpr Area strisciaStrumenti{0, 0, 2900, 420}; // Image2, within the toolbox
inline constexpr Area presaForm{1920, 240, 480, 480};     // Image3, within the toolbox

} // namespace zuvora
