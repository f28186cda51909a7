#pragma once

#include "content/forms/AscoltoRadio.h"
#include "shell/host/Browser.h"
#include "shell/host/Form.h"
#include "shell/host/Piattaforma.h"

namespace zuvora {

// Plays a station until it is closed. An address that answers with a page shows that page.
class AnteprimaRadio : public Form {
public:
    AnteprimaRadio(const Ambiente &ambiente, const VoceRadio &voce, QWidget *padre);

private:
    static constexpr Posto tutta{0, 0, 11175, 8175};
    Browser wb1{this, "wb1", tutta, ambiente().piattaforma};
    AscoltoRadio Ascolto{this, "Ascolto", tutta, ambiente().piattaforma.cartellaEseguibile()};
};

} // namespace zuvora
