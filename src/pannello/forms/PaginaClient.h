#pragma once

#include "shell/host/Pagina.h"

namespace zuvora {

// Where the system's server is, and how calls are made. Address and name always propose this machine.
class PaginaClient : public Pagina {
public:
    explicit PaginaClient(const Apertura &apertura);
    // A secondary installation sees the values and can't change them.
    void applicaPrincipale(bool principale) override;

private:
    void riempi() override;
    void salva();

    GroupBox Gruppo{this, "GroupBox2", "IP Server ", {120, 120, 3855, 615}};
    Edit ipS1{&Gruppo, "ipS1", {60, 240, 1455, 255}};
    Edit LaPorta{&Gruppo, "LaPorta", {1500, 240, 920, 255}};
    Edit NameS1{&Gruppo, "NameS1", {2400, 240, 1365, 255}};
    GroupBox GroupBox1{this, "GroupBox1", "Tipo Chiamata", {4080, 120, 1335, 855}};
    RadioButton XZ_1{&GroupBox1, "XZ(1)", " Selettiva", {120, 240, 1005, 255}};
    RadioButton XZ_0{&GroupBox1, "XZ(0)", "Automatica ", {120, 480, 1095, 255}};
    Button SaveIP{this, "SaveIP", "Salva dati", {3840, 1080, 1455, 345}};
};

} // namespace zuvora
