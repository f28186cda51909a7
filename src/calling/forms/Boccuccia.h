#pragma once

#include "calling/forms/TestoFormattato.h"
#include "shell/host/Form.h"
#include "shell/host/Voce.h"

namespace zuvora {

// The sentence that calls a patient, and the voice that says it.
class Boccuccia : public Form {
public:
    Boccuccia(const Ambiente &ambiente, QWidget *padre);

protected:
    void attivata() override;

private:
    void disponi();
    void leggi();
    void leggiGuida();
    void inserisci(int variabile);
    void salva();
    void EspandiFrase();
    void prova();
    void parlaProgramma();
    void mostraStato(const Voce &voce);
    void mostraVoci();
    void cambiaGuida();

    QString m_avviso; // to be told once the form stands
    std::unique_ptr<Voce> m_voce;
    std::unique_ptr<Voce> VoceSistema;

    GroupBox GroupBox1{this, "GroupBox1", "Frase da pronunciare da parte del modulo vocale", {120, 120, 9120, 1695}};
    EditMultilinea Frase{&GroupBox1, "Frase", {120, 300, 8880, 1275}};
    Schiera<Button> PB1{this,
                        "PB1",
                        {{0, "Variabile Numero", {120, 1920, 1755, 330}},
                         {1, "Variabile Postazione", {1920, 1920, 1755, 330}},
                         {2, "Variabile Servizio", {3720, 1920, 1755, 330}}}};
    Schiera<Label> Label2{this,
                          "Label2",
                          {{0, "152", {120, 2280, 1755, 255}},
                           {1, "Postazione 5", {1920, 2280, 1755, 255}},
                           {2, "Servizio", {3720, 2280, 1755, 255}}}};
    CheckBox Check1{this, "Check1", " Utilizza la frase nel Modulo Server", {5640, 1950, 3600, 255}};
    GroupBox GroupBox2{this, "GroupBox2", "", {120, 2580, 4500, 645}};
    Schiera<RadioButton> VociPS{
        &GroupBox2,
        "VociPS",
        {{0, "Voci programma", {180, 255, 2040, 255}}, {1, "Voce sistema", {2340, 255, 2040, 255}}}};
    GroupBox GroupBox3{this, "GroupBox3", "", {4740, 2580, 4500, 645}};
    Schiera<RadioButton> RB1{
        &GroupBox3,
        "RB1",
        {{0, "Voce Femminile", {180, 255, 2040, 255}}, {1, "Voce Maschile", {2340, 255, 2040, 255}}}};
    GruppoRadio m_sorgente{VociPS};
    GruppoRadio m_timbro{RB1};
    Button PushButton1{this, "PushButton1", "Prova lettura", {120, 3390, 1455, 330}};
    Schiera<Button> ctButton2{this,
                              "ctButton2",
                              {{1, "&Salva ", {5400, 3390, 1215, 330}},
                               {2, "Apri Info", {6600, 3390, 1455, 330}},
                               {0, "C&hiudi", {8040, 3390, 1200, 330}}}};
    Label Stato{this, "Stato", "", {120, 3840, 9120, 375}}; // what the voice is doing
    GroupBox GroupBox4{this, "GroupBox4", "", {120, 4320, 9120, 3135}};
    TestoFormattato RT2{&GroupBox4, "RT2", {120, 180, 8880, 2835}};
    // Working copies of the trial, not shown.
    EditMultilinea Testo{this, "Testo", {120, 12000, 1215, 285}};
    EditMultilinea FE1{this, "FE1", {1440, 12000, 1215, 285}};
};

} // namespace zuvora
