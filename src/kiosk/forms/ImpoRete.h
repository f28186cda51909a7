#pragma once

#include "shell/host/Form.h"

#include <optional>

namespace zuvora {

// Picks the kiosk's folder. It stores nothing: the caller takes what was confirmed.
class ImpoRete : public Form {
public:
    ImpoRete(const Ambiente &ambiente, QWidget *padre);
    const std::optional<QString> &confermato() const { return m_confermato; } // nothing when it was closed otherwise

protected:
    void attivata() override;

private:
    void ScegliCartellaTotem();
    void confermaPercorso();

    std::optional<QString> m_confermato;

    Label Label1{this, "Label1", "Percorso archivi", {120, 240, 6975, 255}};
    Label txtshortcutdir{this, "txtshortcutdir", "Percorso da impostare!", {120, 600, 6975, 615}};
    Schiera<Button> cbt{this,
                        "cbt",
                        {{1, "&Impostazione percorso Server del Totem", {120, 1440, 3735, 330}},
                         {2, "Conferma", {4800, 1440, 1215, 330}},
                         {0, "C&hiudi", {6120, 1440, 975, 330}}}};
};

// Shows it; what was confirmed, or nothing.
std::optional<QString> chiediPercorsoTotem(const Ambiente &ambiente, QWidget *padre);

} // namespace zuvora
