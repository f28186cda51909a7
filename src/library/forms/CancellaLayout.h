#pragma once

#include "shell/host/Form.h"
#include "shell/host/PictureBox.h"

namespace zuvora {

// Clears one layout: it becomes a copy of the base with every element hidden.
class CancellaLayout : public Form {
public:
    // `numero` is "1" to "10".
    CancellaLayout(const Ambiente &ambiente, const QString &numero, QWidget *padre);

private:
    void conferma();

    Label Label2{this, "Label2", "Layout nr", {480, 1320, 1335, 255}};
    Label Label3{this, "Label3", "1", {480, 1640, 735, 255}};
    Label Label1{this, "Label1", "Intendi realmente annullare il Layout selezionato ?", {360, 3000, 3975, 855}};
    PictureBox Image1{this, "Image1", {5040, 1200, 2400, 2400}, Disegno::Pulisci};
    Schiera<Button> PB1{
        this, "PB1", {{1, "&Conferma", {5280, 4560, 1215, 330}}, {0, "C&hiudi", {6480, 4560, 1095, 330}}}};
};

} // namespace zuvora
