#pragma once

#include "shell/host/AnteprimaImmagine.h"
#include "shell/host/Form.h"
#include "shell/host/Grid.h"
#include "shell/logic/CopiaFile.h"
#include "shell/store/Data.h"

#include <memory>

namespace zuvora {

// Manages the catalogue of decorations: adds pictures to it and removes rows.
class Elementi : public Form {
public:
    Elementi(const Ambiente &ambiente, QWidget *padre);

private:
    void scegliCategoria(int indice);
    void mostraRiga();
    QString percorsoRiga(); // picture of the current row; empty without rows
    void elimina();
    void aggiungi();
    QString scegliFile();
    std::shared_ptr<CopiaPreparata> preparaCopia(const QString &origine);
    void mostraAggiunta(const Valore &ID);
    void anteprima();

    Data Data1;
    int m_categoria = 0;
    int TipoCategoria = 1;
    QString CartellaDestinazione; // with its trailing separator

    GroupBox Gruppo{this, "GroupBox1", "Categoria Decorazioni", {120, 0, 3615, 615}};
    Schiera<RadioButton> RB1{&Gruppo,
                             "RB1",
                             {{0, " Cornici", {120, 240, 975, 255}},
                              {1, " Banner", {1200, 240, 1095, 255}},
                              {2, "Elementi", {2400, 240, 1095, 255}}}};
    GruppoRadio m_gruppo{RB1};
    Grid grid{this, "grid", {3840, 120, 3660, 5460}, {{"File", "File", 0}}};
    AnteprimaImmagine Image1{this, "Image1", {120, 2040, 3615, 3495}, ambiente().percorsi};
    Button PushButton2{this,
                       "PushButton2",
                       "&Aggiungi in archivio e copia il file nella cartella di destinazione",
                       {120, 5760, 4695, 330}};
    Button PushButton1{this, "PushButton1", "&Elimina", {4800, 5760, 975, 330}};
    Button PushButton3{this, "PushButton3", "Anteprima", {5760, 5760, 975, 330}};
    Button Command5{this, "Command5", "C&hiudi", {6720, 5760, 735, 330}};
    Edit IlFileX{this, "IlFileX", {120, 6720, 7335, 405}}; // the picked file, below the inner area
};

} // namespace zuvora
