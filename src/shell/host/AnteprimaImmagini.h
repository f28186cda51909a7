#pragma once

#include "shell/host/AnteprimaImmagine.h"
#include "shell/host/Form.h"

namespace zuvora {

// One picture, large.
class AnteprimaImmagini : public Form {
public:
    AnteprimaImmagini(const Ambiente &ambiente, const QString &percorso, QWidget *padre);

private:
    AnteprimaImmagine Image1{this, "Image1", {0, 0, 9615, 6615}, ambiente().percorsi};
};

} // namespace zuvora
