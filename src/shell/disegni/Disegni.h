#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace zuvora {

// The interface's own drawings.
enum class Disegno : unsigned char {
    // Toolbox of the designer and placeholder symbols, 32 x 32
    TestoScorrevole,
    Servizio,
    Titolo,
    Sottotitolo,
    Data,
    Ora,
    Sfondo,
    ColoreSfondo,
    Decorazioni,
    Immagini,
    Video,
    Meteo,
    SecondoSchermo,
    PosizioneFinestra,
    Salva,
    Chiudi,
    YouTube,
    TgOnline,
    News,
    // Marks for small buttons, lists and messages, 32 x 32
    Pulisci,
    Cartella,
    Unita,
    FileImmagine,
    Domanda,
    Avviso,
    Riuscita,
    SpostaFinestra, // grip that moves the whole designer
    Presa,          // dots of a drag strip
    // Entries of the main panel's menu that no tool stands for, 32 x 32
    Rete,
    Riquadri,
    Campana,
    Nota,
    Parlato,
    Radio,
    Totem,
    Ingranaggio,
    // Illustrations, each with its own shape
    Zuvora,     // application icon and logo, 64 x 64
    SalaAttesa, // waiting room beside a message, 230 x 300
    Schermo1,   // landscape monitors, 144 x 120, same outline: one covers the other
    Schermo2,   //
    DueSchermi, // two blank screens, 336 x 150, their middles at x 76 and 260
    Marcatore,  // pin pointing down, 48 x 48
};
inline constexpr Disegno ultimoDisegno = Disegno::Marcatore;

// Boxes of a layout whose real content the designer does not show.
enum class Segnaposto : unsigned char { IM1, MP1, WB1, WB2, LeNews, YT };

enum class Aspetto : unsigned char { Normale, Spento };

// Own size of a drawing; it scales to any other, only the proportions matter.
QSizeF misura(Disegno d);

// Paints as large as fits into the area, proportions kept, centred. An empty area paints nothing.
void dipingi(QPainter &p, Disegno d, const QRectF &area, Aspetto aspetto = Aspetto::Normale);

// Fills the whole area: calm ground, symbol, caption. Any size; the caption goes where it cannot be read.
void dipingiSegnaposto(QPainter &p, Segnaposto s, const QRectF &area);
QString didascalia(Segnaposto s);

// Drawn anew for every size and pixel ratio; greyed when disabled.
QIcon icona(Disegno d);

// Transparent ground, sized logica x dpr device pixels with the ratio set. dpr > 0.
QPixmap immagine(Disegno d, QSize logica, qreal dpr = 1.0);
QImage immagineRaster(Disegno d, QSize logica, qreal dpr = 1.0);

} // namespace zuvora
