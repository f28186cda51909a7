#pragma once

#include "designer/logic/LayoutElement.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>

namespace zuvora {

// Size of the canvas by the resolution button that is on (0 to 3), in twips. Any other number gives the form's stored
// size.
Dimensione dimensioneTela(int risoluzione);

// Where the designer opens, as stored; missing, Null and bad values give 0. Throws EngineError.
PuntoTwips leggiPosizioneFinestra(const QString &cartella);
// The address of the news source, empty when there is none. Throws EngineError.
QString leggiPercorsoTG(const QString &cartella);

// Stores the form's position, twips. Throws EngineError; 3021 when Configurazione has no row.
void SalvaPosizioneFinestra(const QString &cartella, PuntoTwips posizione);
// Where the form goes for the second screen: just right of the first. Screen width in twips.
PuntoTwips VaiSecondoSchermo(double larghezzaSchermo);

// The toolbox at start, its drag strip and its grip, twips.
inline constexpr Area postoStrumenti{360, 360, 2895, 5175};
inline constexpr Area strisciaStrumenti{0, 0, 2900, 420}; // Image2, within the toolbox
inline constexpr Area presaForm{1920, 240, 480, 480};     // Image3, within the toolbox

// The form among the screens, pixels of the desktop.

// The top that a form needs so that its strip or its grip can be reached; its own top when one of them already can, or
// when it is only beside the screens.
int topRaggiungibile(const QRect &form, const QList<QRect> &prese, const QList<QRect> &schermi);
// Where a form goes that is shifted over a screen smaller than itself: no further than its edges are on the screen's,
// and not at all along a side that fits.
QPoint scorri(const QRect &form, const QRect &schermo, QPoint passo);

} // namespace zuvora
