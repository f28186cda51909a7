#pragma once

#include "content/forms/FormPlaylist.h"
#include "shell/host/AnteprimaImmagine.h"

namespace zuvora {

// Playlists of images, with the time that each stays on the screen.
class ImpostaFoto : public FormPlaylist {
public:
    ImpostaFoto(const Ambiente &ambiente, QWidget *padre);

protected:
    void clicFile(const QString &percorso) override;
    void clicVoce(const QString &percorso) override;
    bool chiediTempo(std::optional<double> &tempo) override;

private:
    void mostra(const QString &percorso, bool tace);

    bool m_tace = false; // a picture that can't be shown leaves the preview empty

    AnteprimaImmagine Image1{this, "Image1", {6480, 1920, 3255, 2175}, ambiente().percorsi};
    Label Label1_2{this, "Label1(2)", "Tempo scorrimento immagine (secondi-circa)", {120, 3600, 2055, 495}};
    Edit text1{this, "text1", {2160, 3660, 855, 285}, "20"};
};

} // namespace zuvora
