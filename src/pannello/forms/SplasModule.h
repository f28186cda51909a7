#pragma once

#include "pannello/forms/VoceMenu.h"
#include "pannello/logic/Configurazione.h"
#include "shell/host/Form.h"
#include "shell/host/PictureBox.h"

#include <QUrl>
#include <map>
#include <memory>

namespace zuvora {

// The main panel: the start of the program and the only way into it.
class SplasModule : public Form {
public:
    // Reads version and settings; throws EngineError when they can't be read.
    SplasModule(const Ambiente &ambiente, std::vector<VoceMenu> voci, const QUrl &sito);
    ~SplasModule() override;

    // Sends an older database to the upgrade; true when that ran, and the program must end.
    bool ControllaVersione();
    void NascondiPagine();
    void ChiudiAltreForm();

    int risoluzione() const { return m_risoluzione; } // 1 to 4, 0 while no resolution button is on
    void setComando(const QString &titolo) { Comando.setCaption(titolo); }

protected:
    bool puoScaricarsi() override;

private:
    void disponi();
    void premi(const VoceMenu &voce);
    void apri(const VoceMenu &voce);
    void apriPagina(const char *nome, const ApriPagina &crea);
    Apertura apertura();
    void apriNomeServer();
    void apriSito();
    void salvaAvvioAutomatico();
    void mostraNominativo(const QString &nominativo);
    void applicaNominativo();
    void keyPressEvent(QKeyEvent *e) override;

    const std::vector<VoceMenu> m_voci;
    QUrl m_sito;
    int m_risoluzione = 0;

    GroupBox GroupBox3{this, "GroupBox3", "", {120, 120, 2565, 7335}};
    Button IlMenu{&GroupBox3, "IlMenu", "Menù", {120, 180, 2295, 300}};
    std::vector<std::unique_ptr<Button>> m_menu; // one each of m_voci
    GroupBox GroupBox4{this, "GroupBox4", "", {2760, 120, 5775, 6080}};
    PictureBox Image9{&GroupBox4, "Image9", {1687, 1680, 2400, 3130}, Disegno::SalaAttesa};
    Label Comando{&GroupBox4, "Comando", "", {1080, 360, 4575, 495}};
    Schiera<PictureBox> Image1;
    Label Label5{this, "Label5", "", {2880, 7200, 1230, 255}};
    Label Label6{this, "Label6", "", {4110, 7200, 1800, 255}};
    Label Label9_0{this, "Label9(0)", "Server di riferimento ", {5280, 6330, 1560, 255}};
    Label Label9_1{this, "Label9(1)", "", {6840, 6330, 1695, 255}};
    LabelLink Label1_0{this, "Label1(0)", "", {5280, 6600, 3255, 255}};
    CheckBox cbAutoaccensioneFE{this, "cbAutoaccensioneFE", " Auto-Start Front-End", {5400, 6840, 2205, 255}};
    Button PB1_0{this, "PB1(0)", "C&hudi", {7920, 6840, 615, 330}};
    Label Label8{this, "Label8", "", {120, 12000, 2565, 255}}; // the machine's name, below the client area
    std::map<QByteArray, std::unique_ptr<Pagina>> m_pagine;
};

} // namespace zuvora
