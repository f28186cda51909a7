#pragma once

#include "content/logic/TipiPlaylist.h"
#include "shell/host/Twips.h"

namespace zuvora {

// Where the two playlist forms differ in what is seen.
struct AspettoPlaylist {
    const TipoPlaylist *tipo;
    const char *nome; // of the form
    const char *didascalia;
    Misura interno;
    const char *attiva; // caption over the active file
    const char *aggiungi;
    const char *aggiungiTutti;
    const char *nomeElimina; // the button that deletes the file
    const char *elimina;
    Posto Label1_0;
    Posto Label1_1;
    Posto Dir1;
    Posto File1;
    Posto Command6;
    Posto SalvaNuovo;
    Posto command1;
    Posto Command10;
    Posto File2;
};

inline constexpr AspettoPlaylist aspettoFoto{
    .tipo = &PlaylistFoto,
    .nome = "ImpostaFoto",
    .didascalia = "Impostazione Foto",
    .interno = {9825, 7530},
    .attiva = "File playlist immagini attiva :",
    .aggiungi = "&Aggiungi singola immagine",
    .aggiungiTutti = "&Inserisci tutte le immagini della lista",
    .nomeElimina = "PushButton1",
    .elimina = "Elimina .zvi",
    .Label1_0 = {120, 120, 2175, 255},
    .Label1_1 = {120, 360, 9615, 255},
    .Dir1 = {120, 1050, 3135, 2340},
    .File1 = {3285, 720, 3135, 3345},
    .Command6 = {6480, 720, 1095, 330},
    .SalvaNuovo = {7560, 720, 2175, 330},
    .command1 = {6480, 1080, 3255, 330},
    .Command10 = {6480, 1440, 3255, 330},
    .File2 = {6480, 4545, 3255, 2370},
};

inline constexpr AspettoPlaylist aspettoVideo{
    .tipo = &PlaylistVideo,
    .nome = "ImpostaVideo",
    .didascalia = "Impostazione Video",
    .interno = {9825, 7500},
    .attiva = "File playlist video attiva :",
    .aggiungi = "&Aggiungi singolo video",
    .aggiungiTutti = "&Inserisci tutti i video della lista",
    .nomeElimina = "PushButton3",
    .elimina = "Elimina .zvv",
    .Label1_0 = {240, 120, 2175, 255},
    .Label1_1 = {240, 360, 12255, 330},
    .Dir1 = {120, 1080, 3135, 2790},
    .File1 = {3360, 720, 3135, 3345},
    .Command6 = {6600, 720, 1095, 330},
    .SalvaNuovo = {7680, 720, 2055, 330},
    .command1 = {6600, 1080, 3135, 330},
    .Command10 = {6600, 1440, 3135, 330},
    .File2 = {6480, 4560, 3255, 2370},
};

} // namespace zuvora
