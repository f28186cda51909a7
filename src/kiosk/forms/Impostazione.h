#pragma once

#include "kiosk/logic/Numerazione.h"
#include "shell/host/Form.h"

namespace zuvora {

// Corrects the number that a service stands at, one at a time, and sets the first numbers of all services at once.
class Impostazione : public Form {
public:
    // `cartellaTotem` is the kiosk's folder as the row has it.
    Impostazione(const Ambiente &ambiente, const QString &cartellaTotem, QWidget *padre);

protected:
    void correggiFuochi() override;
    bool puoScaricarsi() override { return !m_occupata; }

private:
    template <class F> void conTotem(F lavoro);
    void leggi();
    void modificaNumero(int servizio);
    void impostaIniziali();

    QString m_cartellaTotem;
    bool m_occupata = false; // the kiosk is being asked

    Label Label1_0{this, "Label1(0)", "Servizio", {120, 120, 2655, 255}};
    Label Label1_1{this, "Label1(1)", "Modifica il Numero", {2880, 120, 1935, 255}};
    Label Label1_2{this, "Label1(2)", " Numero iniziale", {5040, 120, 1695, 255}};
    Schiera<Label> Label2;
    Schiera<Edit> Modifnr;
    Schiera<Button> Na1;
    Schiera<Edit> NumIniz;
    Button Salvain{this, "Salvain", "Esegui", {6000, 480, 855, 7125}};
    Button PB1_0{this, "PB1(0)", " C&hudi", {6000, 7725, 855, 330}};
};

} // namespace zuvora
