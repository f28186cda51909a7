#pragma once

#include "content/logic/Radio.h"
#include "shell/host/Grid.h"
#include "shell/host/Pagina.h"
#include "shell/store/Data.h"

namespace zuvora {

// The list of radio stations.
class PaginaRadio : public Pagina {
public:
    explicit PaginaRadio(const Apertura &apertura);

protected:
    void riempi() override;

private:
    std::optional<VoceRadio> scelta(); // the selected station; nothing when the list is empty
    void gestisci(const std::optional<VoceRadio> &daModificare);
    void modifica();
    void cancella();
    void prova();

    Data Data4;
    Grid GridRadio{this,
                   "GridRadio",
                   {120, 240, 5265, 3780},
                   {{"Nome Radio", "NomeRadio", 1900}, {"Percorso URL", "PercorsoURL", 0}}};
    Schiera<Button> btnRadio{this,
                             "btnRadio",
                             {{3, "Nuovo", {960, 4320, 1095, 330}},
                              {1, " Modifica", {2040, 4320, 1095, 330}},
                              {2, "Cancella", {3120, 4320, 1095, 330}},
                              {4, "Prova Radio", {4200, 4320, 1095, 330}}}};
};

} // namespace zuvora
