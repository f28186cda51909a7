#pragma once

#include <QRect>
#include <QStringView>
#include <array>
#include <vector>

namespace zuvora {

// The kiosk's screens in the order of their radio buttons; the index is the value stored in `RisoluzioneTotem`.
struct SchermoTotem {
    QStringView didascalia;
    int larghezza; // twips; 0 where the preview has no arrangement
    int altezza;
};
inline constexpr std::array<SchermoTotem, 4> schermiTotem = {{
    {u" 1280 x 1024", 19200, 15360},
    {u" 1920 x 1080", 28800, 16200},
    {u" 1440 x 900", 21600, 13500},
    {u" 800 x 600 (12 btn)", 0, 0},
}};

inline constexpr int serviziMassimi = 20;

// Places in twips of the buttons of so many active services, in the order of the services. Empty where there is no
// arrangement: for another screen than the first three, and for less than 1 or more than 20 services.
std::vector<QRect> disposizionePulsanti(int schermo, int servizi);

// How far the lowest of the buttons reaches below the screen, twips; 0 when all of them are on it.
int fuoriSchermo(int schermo, int servizi);

} // namespace zuvora
