#pragma once

#include "shell/host/Controlli.h"

namespace zuvora {

// The help panel of the form youtube: it is moved over the form, and out of its sight again.
class GuidaYouTube : public GroupBox {
public:
    explicit GuidaYouTube(QWidget *form);

    void setAperta(bool aperta);
    bool aperta() const { return Top() == 0; }

private:
    Label Label3{this,
                 "Label3",
                 "Per visualizzare video di youtube attraverso Zuvora è necessario creare una playlist di video da "
                 "youtube, incorporare il codice all'interno del software Zuvora assegando un nome, selezionando il "
                 "quale verrà riprodotta la sequenza  di video corripondenti in fase di output.",
                 {240, 240, 8625, 780}};
    Label Label4_0{this, "Label4(0)", "CREARE PLAYLIST DA YOUTUBE:", {240, 1140, 8625, 255}};
    Label Label5_0{this, "Label5(0)", "- Accedere al proprio account Youtube", {480, 1440, 8385, 255}};
    Label Label5_1{this, "Label5(1)", "- selezionare il video", {480, 1740, 8385, 255}};
    Label Label5_2{this,
                   "Label5(2)",
                   "- fare clic su tasto \"+Aggiungi\" e creare una playlist oppure aggiungere ad una esistente",
                   {480, 2040, 8385, 255}};
    Label Label4_1{this, "Label4(1)", "SELEZIONARE CODICE INCORPORAMENTO PLAYLIST", {240, 2580, 8625, 255}};
    Label Label5_3{this, "Label5(3)", "- Accedere al proprio account Youtube", {480, 2880, 8385, 255}};
    Label Label5_4{this,
                   "Label5(4)",
                   "-Selezionare fra Playlist presenti nella barra in alto facendo clic sul NOME della Playlist.",
                   {480, 3180, 8385, 255}};
    Label Label5_5{this, "Label5(5)", "-Clic su \"condividi\"", {480, 3480, 8385, 255}};
    Label Label5_6{this, "Label5(6)", "-Clic su tasto \"codice da incorporare\"", {480, 3780, 8385, 255}};
    Label Label5_7{this,
                   "Label5(7)",
                   "-Una volta effettuata la selezione, copia e incolla il codice nel riquadro apposito del software "
                   "Zuvora.",
                   {480, 4080, 8385, 255}};

public:
    Button PushButton1{this, "PushButton1", "Ok ", {7680, 4800, 1095, 300}};
};

} // namespace zuvora
