#pragma once

#include "shell/host/Form.h"
#include "shell/host/Grid.h"
#include "shell/store/Data.h"

namespace zuvora {

// The list of the services: which are in use, and the way to their names.
class UtentiServizi : public Form {
public:
    UtentiServizi(const Ambiente &ambiente, QWidget *padre);

    void ContaAttivi(); // shows anew how many are active

private:
    bool vuoto(); // of a list that could not be read again, tries once more
    void rileggi();
    void scambia();
    void modifica();
    void cancella();

    Data Data8; // the list
    Data Data1; // the count
    GroupBox GroupBox1{this, "GroupBox1", "", {120, 120, 7095, 6255}};
    Grid grid{&GroupBox1,
              "grid",
              {120, 240, 6840, 5280},
              {{"ID", "ID", 800}, {"Attivo", "ServizioAttivo", 1000}, {"Servizio", "Servizio", 0}}};
    Label Label1{&GroupBox1, "Label1", "Servizi Attivi nr:", {240, 5760, 1695, 255}};
    Edit NrServizi{&GroupBox1, "NrServizi", {2040, 5760, 615, 285}};
    Schiera<Button> ctButton2{&GroupBox1,
                              "ctButton2",
                              {{1, "&Modifica Servizio", {3000, 5760, 1455, 330}},
                               {2, "&Cancella Servizio", {4440, 5760, 1455, 330}},
                               {0, "C&hiudi", {5880, 5760, 975, 330}}}};
};

} // namespace zuvora
