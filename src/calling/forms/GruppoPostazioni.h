#pragma once

#include "shell/host/Controlli.h"
#include "shell/host/Pagina.h"
#include "shell/host/Schiera.h"

namespace zuvora {

// The types of the ten workstations, on a page of the panel. Shows what is stored each time the page is opened; a click
// stores one type.
class GruppoPostazioni : public GroupBox {
public:
    explicit GruppoPostazioni(Pagina &pagina);
    ~GruppoPostazioni() override;

protected:
    void showEvent(QShowEvent *e) override;

private:
    void riempi();
    void imposta(int Index);

    struct Linea;
    Pagina &m_pagina;
    std::vector<std::unique_ptr<Linea>> m_linee;
};

} // namespace zuvora
