#pragma once

#include "content/logic/Radio.h"
#include "shell/host/Edit.h"
#include "shell/host/Form.h"
#include "shell/store/Data.h"

namespace zuvora {

// Takes in one station: a new one, or changes to the current record of the list.
class GestioneRadio : public Form {
public:
    // `Data4` is the list of the page; `daModificare` the station to change, nothing for a new one.
    GestioneRadio(const Ambiente &ambiente, Data &Data4, const std::optional<VoceRadio> &daModificare, QWidget *padre);
    // The name under which the entry was saved; nothing when it was not.
    const std::optional<QString> &salvata() const { return m_salvata; }

private:
    void salva();

    Data &m_data4;
    std::optional<QString> m_propria; // the name before the change
    std::optional<QString> m_salvata;

    GroupBox Gruppo{this, "GroupBox1", "Aggiunge / Modifica", {120, 120, 7575, 3120}};
    Label Label1_0{&Gruppo, "Label1(0)", "Nome della Radio", {360, 690, 6975, 255}};
    Edit text1_0{&Gruppo, "text1(0)", {360, 960, 6975, 285}};
    Label Label1_1{&Gruppo, "Label1(1)", "URL della Radio", {360, 1410, 6975, 255}};
    Edit text1_1{&Gruppo, "text1(1)", {360, 1680, 6975, 1125}};
    Button CBT_1{this, "CBT(1)", "&Conferma", {5040, 3480, 975, 330}};
    Button ctButton2_0{this, "ctButton2(0)", "C&hiudi", {6000, 3480, 990, 330}};
    Edit Text3{this, "Text3", {120, 4200, 975, 285}}; // the mode, below the inner area
};

} // namespace zuvora
