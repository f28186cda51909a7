#pragma once

#include "shell/host/Form.h"

namespace zuvora {

// Asks whether the program is to end. The answer is left in RispostaUscita; closing the form otherwise means staying.
class FormUscita : public Form {
public:
    FormUscita(const Ambiente &ambiente, QWidget *padre);

private:
    Label Label1;
    Schiera<Button> cbt;
};

} // namespace zuvora
