#pragma once

#include "designer/logic/AnteprimaTG.h"
#include "shell/host/Browser.h"
#include "shell/host/Form.h"

#include <QScrollArea>
#include <functional>

namespace zuvora {

// Shows the news page at the size of the news box, lets the user find the size that fits, and gives it back. The window
// grows with the box up to the screen's edge; beyond it the box is scrolled.
class AnteprimaTGOnline : public Form {
public:
    using Accettata = std::function<void(const Dimensione &)>;

    // `wb2`: the box's size now, twips. `accettata` gets each size that the user accepts; the form stays open.
    AnteprimaTGOnline(const Ambiente &ambiente, const Dimensione &wb2, const QString &indirizzo, Accettata accettata,
                      QWidget *padre);

protected:
    void attivata() override;
    void resizeEvent(QResizeEvent *e) override;

private:
    void passo(void (AnteprimaTG::*cambia)());
    void disponi();
    void adattaFinestra();
    void mostraMisura();
    void accetta();

    AnteprimaTG m_misura;
    Accettata m_accettata;
    Button Allarga{this, "Allarga", "Allarga", {120, 120, 1095, 330}};
    Button Stringi{this, "Stringi", "Stringe", {1200, 120, 1095, 330}};
    Button Alza{this, "Alza", "Alza", {2280, 120, 1095, 330}};
    Button Abbassa{this, "Abbassa", "Abbassa", {3360, 120, 1095, 330}};
    Button Accetta{this, "Accetta", "Accetta Impostazioni", {4440, 120, 1695, 330}};
    Button Chiudi{this, "Chiudi", "C&hiudi", {6120, 120, 855, 330}};
    Label Label1{this, "Label1", "Larghezza/Altezza", {9360, 165, 1455, 255}};
    Edit A1{this, "A1", {10800, 165, 855, 255}, "0"};
    Edit A2{this, "A2", {11640, 165, 855, 255}, "0"};
    // The rest of the form, from the frame's top on, is a window on a plane that may be larger.
    QScrollArea *m_finestra = new QScrollArea(this);
    QWidget *m_piano = new QWidget(m_finestra);
    GroupBox GB1{m_piano, "GB1", "", {120, 0, 6735, 4815}};
    Browser WB22{&GB1, "WB22", {120, 240, 6495, 4455}, ambiente().piattaforma};
};

} // namespace zuvora
