#pragma once

#include "content/forms/FormPlaylist.h"

namespace zuvora {

// Playlists of films.
class ImpostaVideo : public FormPlaylist {
public:
    ImpostaVideo(const Ambiente &ambiente, QWidget *padre);

private:
    void anteprimaCartella();
    void anteprimaPlaylist();

    Button PushButton1{this, "PushButton1", "Anteprima file cartella selezionata", {6600, 3360, 3135, 345}};
    Button PushButton2{this, "PushButton2", "Anteprima file in playlist", {6600, 3720, 3135, 345}};
};

} // namespace zuvora
