#pragma once

#include "designer/forms/ApritoriTela.h"
#include "shell/host/AnteprimaImmagine.h"
#include "shell/host/Form.h"
#include "shell/host/SceltaFile.h"

#include <optional>

namespace zuvora {

enum class ModoSfondo { Layout, SfondoTotem };

// Picks a picture file from the disks of the machine. It stores nothing: the caller stores what it got.
class ImpostaSfondo : public Form {
public:
    // Layout: `uso` acts on the canvas. SfondoTotem: `uso.imposta` gets the network path of the picked file; there is
    // no layout to take a background from, and `uso.elimina` is empty.
    ImpostaSfondo(const Ambiente &ambiente, ModoSfondo modo, UsoSfondo uso, QWidget *padre);

protected:
    void attivata() override;

private:
    void clicFile();
    void imposta();
    void elimina();

    ModoSfondo m_modo;
    UsoSfondo m_uso;
    QString SfondoScelto; // full path of the file last clicked

    Label Label4{this, "Label4", "Selezione File", {120, 165, 1095, 255}};
    DriveListBox Drive1{this, "Drive1", {1440, 120, 1695, 315}};
    DirListBox Dir1{this, "Dir1", {120, 495, 3015, 2340}};
    FileListBox File1{this, "File1", {3160, 120, 2895, 2760}};
    SceltaFile m_scelta{Drive1, Dir1, File1, QStringLiteral("*.jpg;*.bmp")};
    Label Label3{this, "Label3", "Misure Immagine", {6240, 120, 1815, 255}};
    Schiera<Label> Label2{
        this, "Label2", {{0, "Larghezza", {6480, 600, 735, 255}}, {1, "Altezza", {6480, 840, 735, 255}}}};
    Edit F1{this, "F1", {7320, 600, 615, 255}, "0"};
    Edit F2{this, "F2", {7320, 840, 615, 255}, "0"};
    Label Label5{this, "Label5", "", {6120, 1200, 1935, 255}};
    Button PushButton1{this, "PushButton1", "Imposta", {6360, 1560, 1575, 330}};
    Button PushButton3{this, "PushButton3", "Elimina", {6360, 1920, 1575, 330}};
    Button Command5{this, "Command5", "C&hiudi", {6360, 2280, 1575, 330}};
    // The heading stands where the picture comes, until there is one.
    Label Label1{this, "Label1", "Anteprima Foto", {3840, 5880, 3015, 495}};
    AnteprimaImmagine Image1{this, "Image1", {120, 2940, 7935, 5895}, ambiente().percorsi};
};

// The form for the background of the open layout.
void apriSfondoLayout(const Ambiente &ambiente, const UsoSfondo &uso, QWidget *padre);
// The form for the kiosk's background. Gives the network path of the picture last set, when the form has closed;
// nothing when none was.
std::optional<QString> apriSfondoTotem(const Ambiente &ambiente, QWidget *padre);

} // namespace zuvora
