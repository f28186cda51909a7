#pragma once

#include "shell/host/Form.h"

#include <optional>

namespace zuvora {

// Edits the installation's name. `salvato` gets the name once it stands in the database.
class NomeServer : public Form {
public:
    NomeServer(const Ambiente &ambiente, QWidget *padre, std::function<void(const QString &)> salvato);

private:
    void salva();

    std::function<void(const QString &)> m_salvato;
    Label Label1{this, "Label1", "Nome Server (relativo al software Zuvora)", {240, 1020, 4455, 255}};
    Edit text1_1{this, "text1(1)", {240, 1320, 4215, 285}};
    Button Btn_1{this, "Btn(1)", "&Salva Nominativo Server", {1320, 2160, 2415, 330}};
    Button Btn_0{this, "Btn(0)", "C&hiudi", {3720, 2160, 1095, 330}};
};

} // namespace zuvora
