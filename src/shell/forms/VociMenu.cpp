#include "shell/forms/VociMenu.h"

#include <array>

namespace zuvora {
namespace {

constexpr std::array<VoceMenu, 17> Voci = {{
    {"PB1(2)", 720, "  Gestione Servizi", std::nullopt},
    {"PB1(9)", 1080, "  &Risoluzione Video (monitor/TV)", u"Risoluzione Video (Monitor/TV)"},
    {"PB1(10)", 1440, "  Impostazione Clie&nt", u"Modalità Client"},
    {"PB1(7)", 1800, "  Gestione Layout FrontEnd", std::nullopt},
    {"PushButton1", 2160, "  DinDon", u"Gestione Din Don"},
    {"Position", 2520, "  Posizione", u"Posizione Schermi"},
    {"PB1(5)", 2880, "  &Musica cartella (MP3)", u"Musica -MP3"},
    {"Command0", 3240, "  Testo Scorrevole", u"Testo Scorrevole"},
    {"PB1(4)", 3600, "   Imposta &Immagini", u"Impostazione Immagini"},
    {"PB1(3)", 3960, "  Imposta &Video", u"Impostazione Video"},
    {"PushButton2", 4320, "  Decorazioni", u"Gestione Decorazioni"},
    {"Command1", 4680, "  Imposta Meteo", u"Impostazione Meteo"},
    {"PB1(1)", 5040, "  Modulo Vocale (TTS)", u"Modulo Vocale"},
    {"PB1(6)", 5400, "  Gestione &Radio", u"Gestione Radio"},
    {"PB1(11)", 6120, "  PlayList di &YouTube", u"Playlist YouTube"},
    {"PB1(12)", 6480, "  Imposta schermata Totem", std::nullopt},
    {"PB1(13)", 6840, "  Varie impostazioni Totem", std::nullopt},
}};

} // namespace

std::span<const VoceMenu> vociMenu() {
    return Voci;
}

} // namespace zuvora
