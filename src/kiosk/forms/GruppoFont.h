#pragma once

#include "shell/host/ColorPicker.h"
#include "shell/host/Controlli.h"

#include <optional>

namespace zuvora {

struct FontScelto;

// The boxes that describe the font of one kind of text: name, size, bold, italic, colour, with the buttons that open
// the dialogs of font and colour.
class GruppoFont {
public:
    // Names of the controls.
    struct Nomi {
        const char *nome;
        const char *misura;
        const char *grassetto;
        const char *italico;
        const char *colore;
        const char *tavolozza;
        const char *scegli;
    };

    // `di` ends the accessible names: "del titolo". The boxes stand on one line of `cornice`, at `top` twips.
    GruppoFont(QWidget *cornice, const Nomi &nomi, const QString &di, int top, Dialoghi &dialoghi);

    FontScelto font() const; // as the boxes have it; a size that is no number counts as 10
    void setFont(const FontScelto &scelto);
    void mostraColore(); // the palette's button shows the colour of the box, black where that is no number

    Edit nome;
    Edit misura;
    Button scegli;
    CheckBox grassetto;
    CheckBox italico;
    Edit colore;
    ColorPicker tavolozza;
};

} // namespace zuvora
