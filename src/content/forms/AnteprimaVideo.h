#pragma once

#include "content/forms/Riproduttore.h"
#include "shell/host/Form.h"
#include "shell/host/Piattaforma.h"

namespace zuvora {

// Shows one film until it is closed.
class AnteprimaVideo : public Form {
public:
    AnteprimaVideo(const Ambiente &ambiente, const QString &percorso, QWidget *padre);

private:
    Riproduttore MP1{this, "MP1", {120, 120, 9495, 7005}, ambiente().piattaforma.cartellaEseguibile()};
};

} // namespace zuvora
