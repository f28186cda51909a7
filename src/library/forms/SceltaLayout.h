#pragma once

#include "library/logic/SceltaLogica.h"
#include "shell/host/Form.h"
#include "shell/store/Data.h"

namespace zuvora {

// The gate to the eleven layouts: one line a layout, with its name, its description and a button that clears it.
class SceltaLayout : public Form {
public:
    // Reads the lines and the default; throws EngineError when they can't be read. `risoluzione` is that of the call
    // display, 1 to 4, 0 while none is chosen.
    SceltaLayout(const Ambiente &ambiente, int risoluzione, QWidget *padre);

protected:
    void attivata() override;
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void disponiLinee();
    void riempi();
    LineeLayout linee() const; // as the fields hold them
    std::optional<int> lineaScelta() const;
    void salvaDati();
    void rendiPredefinita();
    void CaricaLayout();
    void mostra(const Messaggio &messaggio);

    Data Data1;
    Data Data2;
    int m_risoluzione;
    LineeLayout m_lette;
    QString m_avviso; // shown once, over the form

    GroupBox GroupBox1{this, "GroupBox1", "", {120, 0, 4935, 4695}};
    Label Label4{&GroupBox1, "Label4", "Tipo Layout", {600, 240, 1095, 255}};
    Label Label5{&GroupBox1, "Label5", "Descrizione Layout", {1680, 240, 3135, 255}};
    Schiera<RadioButton> RB1;
    GruppoRadio m_gruppo{RB1};
    Schiera<Edit> text1;
    Schiera<Button> PPBB1;
    Label Label1{this, "Label1", "Layout Predefinito", {240, 5205, 1455, 255}};
    Edit Label2{this, "Label2", {1680, 5200, 1455, 285}};
    Schiera<Button> PB1{this,
                        "PB1",
                        {{3, "Carica &Layout selezionato", {120, 4800, 2055, 330}},
                         {2, "&Imposta predefinito", {2160, 4800, 1575, 330}},
                         {4, "&Copia Layout", {3720, 4800, 1215, 330}},
                         {1, "&Salva dati", {3240, 5160, 975, 330}},
                         {0, "C&hudi", {4200, 5160, 735, 330}}}};
};

} // namespace zuvora
