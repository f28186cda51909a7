#pragma once

#include "kiosk/forms/GruppoFont.h"
#include "kiosk/logic/Disposizione.h"
#include "kiosk/logic/RigaTotem.h"
#include "shell/host/Form.h"
#include "shell/host/ListBox.h"
#include "shell/host/PictureBox.h"

namespace zuvora {

// Edits what the kiosk's screen shows, and the folder of the kiosk. Nothing is stored before the save.
class Impostatotem : public Form {
public:
    // `anteprima` is the size of the last preview since the program started, 0 x 0 before the first; kept by the
    // opener.
    Impostatotem(const Ambiente &ambiente, Misura &anteprima, QWidget *padre);

protected:
    void attivata() override;

private:
    // One column and the box that shows it.
    struct Legame {
        CampoTotem campo;
        Edit *casella = nullptr;
        CheckBox *spunta = nullptr;
    };
    std::vector<Legame> legami();
    void nomina();
    void collega();
    void mostra();
    ContenutoTotem contenuto();
    void scegliSchermo(int indice);
    void salva();
    void apriAnteprima();
    void scegliPercorso();
    void scegliSfondo();
    void ScegliFont(const QString &bersaglio);
    GruppoFont &gruppo();

    RigaTotem m_riga;
    bool m_guastoDetto = false;
    QString BersaglioFont; // "Titolo", "LaData" or "Pulsante": the group that the font dialog serves
    Misura &m_anteprima;   // AnteprimaLarghezza, AnteprimaAltezza

    GroupBox GroupBox1{this, "GroupBox1", "Percorso Rete del TOTEM", {120, 120, 6975, 975}};
    Edit PRT{&GroupBox1, "PRT", {120, 420, 5820, 315}};
    Button PercorsoTotem{&GroupBox1, "PercorsoTotem", "...", {6000, 420, 375, 315}};
    PictureBox elimina{&GroupBox1, "elimina", {6465, 390, 375, 375}, Disegno::Pulisci};
    GroupBox GroupBox2{this, "GroupBox2", "Imposta Sfondo Totem", {120, 1120, 6975, 975}};
    Edit FF1{&GroupBox2, "FF1", {120, 420, 5820, 315}};
    Button ImpostaSfondototem{&GroupBox2, "ImpostaSfondototem", "...", {6000, 420, 375, 315}};
    PictureBox EliminaSfondo{&GroupBox2, "EliminaSfondo", {6465, 390, 375, 375}, Disegno::Pulisci};
    GroupBox GroupBox3{this, "GroupBox3", "Imposta Titolo Totem", {120, 2160, 6975, 945}};
    Edit TitTot{&GroupBox3, "TitTot", {120, 240, 5130, 285}};
    CheckBox TestoVisibile{&GroupBox3, "TestoVisibile", "Testo visibile", {5400, 240, 1455, 285}};
    GruppoFont m_titolo;
    GroupBox GroupBox4{this, "GroupBox4", "Imposta Data Totem", {120, 3120, 6975, 945}};
    Label Esempio{&GroupBox4, "Esempio", "", {120, 270, 5130, 255}}; // the date as the kiosk writes it
    CheckBox DataVisibile{&GroupBox4, "DataVisibile", "Data visibile", {5400, 240, 1455, 285}};
    GruppoFont m_data;
    GroupBox GroupBox5{this, "GroupBox5", "Seleziona Font Pulsanti", {120, 4080, 6975, 825}};
    GruppoFont m_pulsanti;
    GroupBox GroupBox6{this, "GroupBox6", "Risoluzione  Schermo Totem", {120, 5040, 2415, 2415}};
    Schiera<RadioButton> RT;
    GruppoRadio m_schermo{RT};
    Label Label1{this, "Label1", "Servizi Attivi nr:", {2640, 5085, 1800, 255}};
    Edit NrServizi{this, "NrServizi", {4560, 5040, 615, 285}, "0"};
    ListBox Combo1{this, "Combo1", {2640, 5400, 4455, 1500}};
    Label Avviso{this, "Avviso", "", {2760, 5490, 4215, 810}};      // why there is less to see than was saved
    Label Label2{this, "Label2", "Label2", {5280, 5085, 615, 255}}; // hidden: the chosen screen's index
    Label Label3{this, "Label3", "Label3", {6000, 5085, 615, 255}}; // hidden: who opened the preview
    Button SiSalva{this, "SiSalva", "&Salva impostazioni", {2640, 7080, 1575, 330}};
    Button Crea{this, "Crea", "Anteprima schermo Totem", {4200, 7080, 2175, 330}};
    Button Command5{this, "Command5", "C&hiudi", {6360, 7080, 735, 330}};
};

} // namespace zuvora
