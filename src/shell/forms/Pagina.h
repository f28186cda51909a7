#pragma once

#include "shell/host/Controlli.h"

namespace zuvora {

// A page of the main panel: a group box that is moved into the page area when opened and parked below the form's client
// area otherwise.
class Pagina : public GroupBox {
    Q_OBJECT
public:
    Pagina(QWidget *padre, const char *nome, int altezza = 4815, int topAperta = 1200);

    void nascondi();
    void apri(); // fills the page anew, then shows it
    bool aperta() const { return Visible(); }

protected:
    virtual void riempi() = 0;

private:
    int m_topAperta;
};

} // namespace zuvora
