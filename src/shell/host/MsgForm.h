#pragma once

#include "shell/host/Form.h"
#include "shell/host/PictureBox.h"

namespace zuvora {

// What a message is: something done, something not done, something asked.
enum class Tono { Riuscita, Rifiuto, Domanda };

// The tone of a message that only tells, by its first line: the program's texts for what is done all carry one of a few
// participles, without a "non".
Tono tonoDi(const QString &riga0);

enum class RispostaMessaggio { Chiudi = 7, Conferma = 8 };

// The form of all short messages and yes-no questions.
class MsgForm : public Form {
public:
    MsgForm(const Ambiente &ambiente, const QString &riga0, const QString &riga1, bool domanda, QWidget *padre);
    RispostaMessaggio risposta() const { return m_risposta; } // Chiudi when closed by its frame

private:
    RispostaMessaggio m_risposta = RispostaMessaggio::Chiudi;
    PictureBox Image1;
    PictureBox Segno;
    Label Label1;
    Schiera<Label> Label2;
    Schiera<Button> PB1;
};

// Shows a message of one or two lines.
void mostraMessaggio(const Ambiente &ambiente, QWidget *padre, const QString &riga0, const QString &riga1 = {});
// Asks a question; true when the user confirmed.
bool chiediConferma(const Ambiente &ambiente, QWidget *padre, const QString &riga0, const QString &riga1 = {});

} // namespace zuvora
