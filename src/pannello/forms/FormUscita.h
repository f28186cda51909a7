#pragma once

#include "shell/host/Form.h"

namespace zuvora {

enum class RispostaUscita { Resta = 7, Esci = 36 };

// Asks whether the program is to end; closing the form otherwise means staying.
class FormUscita : public Form {
public:
    FormUscita(const Ambiente &ambiente, QWidget *padre);
    RispostaUscita risposta() const { return m_risposta; }

private:
    RispostaUscita m_risposta = RispostaUscita::Resta;
    Label Label1;
    Schiera<Button> cbt;
};

} // namespace zuvora
