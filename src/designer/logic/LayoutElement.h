#pragma once

#include <QString>
#include <optional>

namespace zuvora {

// A colour as the tables hold it: 0x00BBGGRR, 0 to 0x00FFFFFF.
using Colore = int;

inline constexpr Colore coloreMassimo = 0x00FFFFFF;

// The kinds of row of a layout. Label2 is the hidden label that holds the background's path, Tela the canvas itself.
enum class TipoElemento { Text1, Text9, IM1, WB1, MP1, Label2, Text2, Tela, Image1, WB2, LeNews, YT, Pannello1 };

enum class Allineamento { Sinistra = 0, Destra = 1, Centro = 2 };

// A place in twips from the top left of the canvas; for a Text1 label from the top left of its panel.
struct Area {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const Area &, const Area &) = default;
};

// A point and a size in twips.
struct PuntoTwips {
    double left = 0;
    double top = 0;

    friend bool operator==(const PuntoTwips &, const PuntoTwips &) = default;
};
struct Dimensione {
    double width = 0;
    double height = 0;

    friend bool operator==(const Dimensione &, const Dimensione &) = default;
};

// Sizes that a font can have, points.
inline constexpr double fontMinimo = 0.25;
inline constexpr double fontMassimo = 2160;

struct Carattere {
    QString nome;
    double dimensione = 0; // points, with fractions
    bool grassetto = false;
    bool corsivo = false;

    friend bool operator==(const Carattere &, const Carattere &) = default;
};

// One element of a layout. Which members mean anything is set by its kind.
struct LayoutElement {
    TipoElemento tipo = TipoElemento::Tela;
    int indice = 0; // within its kind; Image1 counts from 1
    Area area;
    bool visibile = true; // false on a panel, decoration or single element makes it a free slot
    QString didascalia;   // of Label2: the path that a save writes
    Carattere font;
    Colore coloreSfondo = 0;
    Colore coloreTesto = 0;
    Allineamento allineamento = Allineamento::Sinistra;
    bool trasparente = false;
    // Path of a picture, empty for none. Tela: the background shown. Image1: what a save writes, and shown unless
    // `cornice` is set.
    QString immagine;
    bool cornice = false;          // Image1: the frame of a free slot is shown instead
    bool avanti = false;           // Image1: in front of the other elements, not behind them
    bool immagineMancante = false; // what should be shown can't be loaded

    // The name that selection uses: "Text1(5)", "Image1(12)", "WB1", ...
    QString nome() const;
    // The name that is told to a user: "Numero del pannello 2", "Riquadro meteo", ...
    QString nomeParlato() const;

    friend bool operator==(const LayoutElement &, const LayoutElement &) = default;
};

// The kind's name: "Text1", "Pannello1", ..., "Label2" and "Form1" for the canvas.
QStringView nomeTipo(TipoElemento tipo);
// True for kinds whose elements form an array, so that the name carries an index.
bool haIndice(TipoElemento tipo);
QString nomeElemento(TipoElemento tipo, int indice);
// True for what stands on the canvas with a place of its own (all but the Text1 labels, Label2 and the canvas).
bool staSullaTela(TipoElemento tipo);

// The element as the form's definition holds it, which stands until a row replaces it. `indice` as in its name.
LayoutElement valoreIniziale(TipoElemento tipo, int indice);

} // namespace zuvora
