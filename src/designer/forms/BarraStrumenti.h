#pragma once

#include "designer/forms/Bersaglio.h"
#include "designer/logic/Strumenti.h"
#include "shell/host/Controlli.h"
#include "shell/host/Schiera.h"

namespace zuvora {

// The toolbox SSPanel1 that floats over the canvas: its buttons, the strip Image2 that drags it and the grip Image3
// that moves the whole form. Beside it stands the form's caption, which has no frame to stand in.
class BarraStrumenti : public Bersaglio {
    GroupBox GroupBox2;

public:
    // The handlers of the strip and of the grip get the mouse events there, `altrove` those that no button takes.
    BarraStrumenti(QWidget *form, Gestore striscia, Gestore presa, Gestore altrove);

    Schiera<Button> Btn;

    PuntoTwips posto() const { return m_posto; } // twips
    void sposta(PuntoTwips posto);
    // Marks a button whose elements stand on the canvas, by how many.
    void segna(int indice, int quanti);
    void mostraDidascalia(const QString &testo);
    // Puts the toolbox and the caption right below another control of the form.
    void impila(QWidget *sopra);

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    void disponiDidascalia();

    PuntoTwips m_posto;
    QLabel *m_didascalia;
};

} // namespace zuvora
