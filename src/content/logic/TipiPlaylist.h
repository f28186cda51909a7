#pragma once

#include "shell/store/NomiFile.h"

#include <QStringView>

namespace zuvora {

// The two kinds of playlist, as far as files and rows tell them apart.
struct TipoPlaylist {
    QStringView estensione; // with its point
    QStringView parola;
    QStringView modello;   // of the playlist files
    QStringView contenuti; // patterns of what a playlist lists
    QStringView colonna;   // of Configurazione, for the default
    QStringView rapporto;  // file that names what is missing
    bool primaLunghezza;   // the length of a default's path is looked at before its ending
};

inline constexpr TipoPlaylist PlaylistFoto{
    u".zvi", u"Foto", u"*.zvi", u"*.jpg", u"playlistFoto", nomi::immaginiMancanti, true};
inline constexpr TipoPlaylist PlaylistVideo{
    u".zvv", u"Video", u"*.zvv", u"*.wmv;*.avi;*.flv;*.mpg;*.mp4", u"playlistVideo", nomi::videoMancanti, false};

} // namespace zuvora
