#pragma once

#include "shell/host/Apertura.h"
#include "shell/host/Controlli.h"
#include "shell/host/Schermata.h"

namespace zuvora {

// A page of the main panel: a group box that is moved into the page area when opened and parked below the form's client
// area otherwise.
class Pagina : public GroupBox, public Schermata {
    Q_OBJECT
public:
    Pagina(const Apertura &apertura, const char *nome, int altezza = 4815, int topAperta = 1200);

    void nascondi();
    void apri(); // fills the page anew, then shows it
    bool aperta() const { return Visible(); }
    // What only the principal installation may do is shown or hidden; told again each time the name changes.
    virtual void applicaPrincipale(bool /*principale*/) {}

protected:
    virtual void riempi() = 0;
    // What has the focus when the page opens: the first field, else the main action. A page to choose from a list gives
    // it to that.
    virtual QWidget *fuocoIniziale();

private:
    int m_topAperta;
};

} // namespace zuvora
