#pragma once

#include "content/forms/EditCodice.h"
#include "content/forms/GuidaYouTube.h"
#include "shell/host/Form.h"
#include "shell/host/Grid.h"
#include "shell/store/Data.h"

#include <QUrl>

namespace zuvora {

// Keeps the playlists of YouTube: takes the address out of an embed code and stores it under a title.
class youtube : public Form {
public:
    // `sito`: where the previews are told they are shown.
    youtube(const Ambiente &ambiente, const QUrl &sito, QWidget *padre);

private:
    void nuova();
    void ok();
    void azzera(); // the panel as it was before the entry
    void cancella();
    void anteprima();
    void predefinita();
    void mostraGuida(bool aperta);
    Valore urlCorrente(); // Null without rows

    QUrl m_sito;
    Data Data1;

    GroupBox GB1{this, "GB1", "", {120, 0, 3855, 3615}};
    Label Label1_1{&GB1, "Label1(1)", "Inserire qui codice di incorporamento YouTube", {120, 160, 3495, 255}};
    EditCodice Codice{&GB1, "Codice", {120, 400, 3495, 1815}, 1000};
    Label Label1_0{&GB1, "Label1(0)", "Inserire qui titolo della Playlist YouTube", {120, 2400, 3495, 255}};
    Edit Titolo{&GB1, "Titolo", {120, 2640, 3495, 255}};
    Label Label2{&GB1, "Label2", "", {120, 3120, 1455, 255}};
    Schiera<Button> Confermaannulla{
        &GB1, "Confermaannulla", {{0, "&Ok", {1680, 3120, 975, 330}}, {1, "&Annulla", {2640, 3120, 975, 330}}}};
    Grid grid{this, "grid", {4080, 120, 5130, 5385}, {{"Titolo", "Titolo", 2000}, {"Url", "Url", 0}}};
    Schiera<Button> BTN{this,
                        "BTN",
                        {{2, "&Informazione di incorporamento", {120, 4440, 3735, 330}},
                         {5, "Anteprima filmato", {120, 4800, 1695, 330}}}};
    Button Predefinito{this, "Predefinito", "&Imposta come predefinita", {1800, 4800, 2055, 330}};
    Schiera<Button> BTN01{
        this, "BTN", {{0, "&Nuova Playlist", {120, 5160, 1455, 330}}, {1, "&Cancella", {1560, 5160, 1215, 330}}}};
    Button chiudibtn{this, "chiudibtn", "C&hiudi", {2760, 5160, 1095, 330}};
    GuidaYouTube GB2{this};
};

} // namespace zuvora
