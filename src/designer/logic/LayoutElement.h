#pragma once

#include <QString>
#include <optional>

namespace zuvora {

// A colour as the tables hold it: 0x00BBGGRR, 0 to 0x00FFFFFF.
using Colore = int;

inline constexpr Colore coloreMassimo = 0x00FFFFFF;
constexpr Colore coloreDa(int rosso, int verde, int blu) {
    return (blu << 16) | (verde << 8) | rosso;
}
constexpr int rossoDi(Colore c) {
    return c & 0xFF;
}
constexpr int verdeDi(Colore c) {
    return (c >> 8) & 0xFF;
}
constexpr int bluDi(Colore c) {
    return (c >> 16) & 0xFF;
}

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
    QString immagine;              // Image1 and Tela: path of the picture shown, empty for none
    bool immagineMancante = false; // the picture can't be loaded: show that it is missing

    // The name that selection uses: "Text1(5)", "Image1(12)", "WB1", ...
    QString nome() const;

    friend bool operator==(const LayoutElement &, const LayoutElement &) = default;
};

// The kind's name: "Text1", "Pannello1", ..., "Label2" and "Form1" for the canvas.
QStringView nomeTipo(TipoElemento tipo);
// True for kinds whose elements form an array, so that the name carries an index.
bool haIndice(TipoElemento tipo);
QString nomeElemento(TipoElemento tipo, int indice);
// True for what stands on the canvas with a place of its own (all but the Text1 labels, Label2 and the canvas).
bool staSullaTela(TipoElemento tipo);

} // namespace zuvora
