// The one palette of the whole catalogue.
#pragma once

#include <QColor>
#include <QString>

namespace zuvora::disegna {

enum class Tinta {
    Blu,
    Azzurro,
    Petrolio,
    Verde,
    Salvia,
    Sabbia,
    Arancio,
    Rosso,
    Bordeaux,
    Viola,
    Grigio,
    Antracite,
    Argento,
    Oro,
    Bianco,
    Noce
};

struct Tono {
    QStringView maschile; // colour word in a file name after a masculine noun
    QStringView femminile;
    QRgb base;
    QRgb scuro;
    QRgb chiaro;
};

const Tono &tono(Tinta tinta);

// The colour with another opacity, 0 to 1.
QColor velato(QRgb colore, double opacita);

// Between a (quota 0) and b (quota 1).
QColor misto(QRgb a, QRgb b, double quota);

} // namespace zuvora::disegna
