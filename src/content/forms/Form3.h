#pragma once

#include "content/logic/Meteo.h"
#include "shell/host/Browser.h"
#include "shell/host/Edit.h"
#include "shell/host/Form.h"
#include "shell/host/Grid.h"
#include "shell/store/Data.h"

namespace zuvora {

// Chooses the town of the weather box.
class Form3 : public Form {
public:
    // `host`: scheme and host of the weather service.
    Form3(const Ambiente &ambiente, const QString &host, QWidget *padre);

private:
    void riempi();
    void elenca(const QString &sorgente);
    void prova();
    void salva();

    IndirizzoMeteo m_indirizzo;
    Data Data2;
    bool m_elencoGuasto = false; // the towns could not be read, and the user knows

    Browser wb1{this, "wb1", {120, 120, 6760, 5055}, ambiente().piattaforma};
    GroupBox Codice{this, "GroupBox2", "Codice Comune", {120, 5400, 1455, 735}};
    Edit FE1{&Codice, "FE1", {120, 360, 1095, 285}, "0000"};
    GroupBox Trova{this, "GroupBox1", "Trova Comune", {1605, 5400, 2295, 735}};
    Edit Text4{&Trova, "Text4", {120, 360, 2055, 285}};
    Grid grid{this,
              "grid",
              {6960, 120, 4500, 5340},
              {{"Codice", "Codice", 720},
               {"Comune", "Comune", 0},
               {"Provincia", "Provincia", 820},
               {"Regione", "Regione", 1100}}};
    Button CBT_3{this, "CBT(3)", "Prova Comune Tabella", {6960, 5760, 1935, 330}};
    Button CBT_2{this, "CBT(2)", "&Salva Comune", {8880, 5760, 1215, 330}};
    Button CBT_0{this, "CBT(0)", "C&hiudi", {10080, 5760, 1095, 330}};
};

} // namespace zuvora
