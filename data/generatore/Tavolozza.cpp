#include "Tavolozza.h"

#include <array>

namespace zuvora::disegna {

namespace {

// In the order of Tinta.
constexpr std::array<Tono, 16> toni{{
    {u"blu", u"blu", 0xff1e5f9e, 0xff154472, 0xffd6e6f4},
    {u"azzurro", u"azzurra", 0xff3189c3, 0xff23648f, 0xffddf0fa},
    {u"petrolio", u"petrolio", 0xff1a7f86, 0xff115a60, 0xffd5ecec},
    {u"verde", u"verde", 0xff3c8f56, 0xff29663d, 0xffdbeedf},
    {u"salvia", u"salvia", 0xff7fa68a, 0xff587a62, 0xffe6f0e8},
    {u"sabbia", u"sabbia", 0xffc6ae82, 0xff8f7a52, 0xfff5eedf},
    {u"arancio", u"arancio", 0xffcd7526, 0xff98541a, 0xfffbe9d6},
    {u"rosso", u"rossa", 0xffc2413b, 0xff8c2b27, 0xfff8dedc},
    {u"bordeaux", u"bordeaux", 0xff843448, 0xff5d2231, 0xfff0dde2},
    {u"viola", u"viola", 0xff705a9e, 0xff4f3f73, 0xffe6e0f1},
    {u"grigio", u"grigia", 0xff7a858f, 0xff56606a, 0xffe7eaed},
    {u"antracite", u"antracite", 0xff3a444e, 0xff262e36, 0xffdde1e5},
    {u"argento", u"argento", 0xffb4bec7, 0xff8c969f, 0xfff2f4f6},
    {u"oro", u"oro", 0xffbe9a48, 0xff8d6f2c, 0xfff6edd6},
    {u"bianco", u"bianca", 0xffffffff, 0xffd3dae0, 0xffffffff},
    {u"noce", u"noce", 0xff7a5438, 0xff573a25, 0xffeadcd0},
}};

} // namespace

const Tono &tono(Tinta tinta) {
    return toni[static_cast<std::size_t>(tinta)];
}

QColor velato(QRgb colore, double opacita) {
    QColor esito{colore};
    esito.setAlphaF(static_cast<float>(opacita));
    return esito;
}

QColor misto(QRgb a, QRgb b, double quota) {
    const auto canale = [quota](int da, int verso) { return qRound(da + (verso - da) * quota); };
    return {canale(qRed(a), qRed(b)), canale(qGreen(a), qGreen(b)), canale(qBlue(a), qBlue(b))};
}

} // namespace zuvora::disegna
