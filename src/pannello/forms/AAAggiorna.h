#pragma once

#include "shell/host/Form.h"

namespace zuvora {

// Offers to bring an older database to the current version. Whichever way it is left, the program ends.
class AAAggiorna : public Form {
public:
    // `versione` is the short form of the version found, as "3.1.8".
    AAAggiorna(const Ambiente &ambiente, const QString &versione, QWidget *padre);

private:
    void aggiorna();
    bool copiaConservata();

    Schiera<Label> Label3{this, "Label3", {{0, "Installazione aggiornamenti", {240, 180, 5295, 345}}}};
    Schiera<Label> Label1{
        this,
        "Label1",
        {{0, "Il Sistema ha rilevato la versione archivi", {240, 840, 2895, 255}},
         {1, "alla Verione 3.1.11", {240, 1200, 2895, 255}},
         {2, "Premi Aggiorna per proseguire con l'aggiornamento ", {240, 1740, 5295, 255}},
         {3, "Premi Uscita per non effettuare l'aggiornamento e chiudere l'applicazione.", {240, 2040, 5295, 255}}}};
    Schiera<Edit> text1;
    Schiera<Button> command1{
        this, "command1", {{0, "&Aggiorna", {3120, 2640, 1215, 330}}, {5, "C&hiudi", {4320, 2640, 1215, 330}}}};
};

} // namespace zuvora
