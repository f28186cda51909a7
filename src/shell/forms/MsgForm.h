#pragma once

#include "shell/host/Form.h"
#include "shell/host/PictureBox.h"

namespace zuvora {

// The form of all short messages and yes-no questions. The answer is left in RispostaMessaggio.
class MsgForm : public Form {
public:
    MsgForm(const Ambiente &ambiente, const QString &riga0, const QString &riga1, bool domanda, QWidget *padre);

private:
    void rispondi(int risposta);

    PictureBox Image1;
    Label Label1;
    Schiera<Label> Label2;
    Schiera<Button> PB1;
};

// Shows a message of one or two lines.
void mostraMessaggio(const Ambiente &ambiente, QWidget *padre, const QString &riga0, const QString &riga1 = {});
// Asks a question; true when the user confirmed.
bool chiediConferma(const Ambiente &ambiente, QWidget *padre, const QString &riga0, const QString &riga1 = {});

} // namespace zuvora
