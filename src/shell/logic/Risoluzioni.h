#pragma once

#include <QStringView>
#include <array>

namespace zuvora {

// Resolutions of the call display, in the order of their radio buttons; `MisuraFormWH` is the index plus 1.
struct Risoluzione {
    QStringView didascalia;
    int altezza;   // canvas height in twips
    int larghezza; // canvas width in twips
};
inline constexpr std::array<Risoluzione, 4> risoluzioni = {{
    {u" Risoluzione 1024 x 768 (TV plasma)", 11520, 15360},
    {u" Risoluzione 1366 x 768 (TV LCD)", 11520, 20490},
    {u" Risoluzione 1920x 1080 (TV Full-HD)", 16200, 28800},
    {u" Risoluzione 1080 x 1920 (TV Full-HD-V)", 28800, 16200},
}};

} // namespace zuvora
