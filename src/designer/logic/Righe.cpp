#include "designer/logic/Righe.h"

namespace zuvora {

namespace {

using enum ColonnaLayout;

// What each kind of row reads and writes, in this order.
constexpr std::array letteText1{
    SfondoTestoTrasparente,      Testo,   NomeFont, DimFont, FontBold, FontItalic, ColoreSfondo, ColoreTesto,
    ColonnaLayout::Allineamento, Visibile};
constexpr std::array scritteText1{Testo,       NomeFont,
                                  DimFont,     FontBold,
                                  FontItalic,  ColoreSfondo,
                                  ColoreTesto, ColonnaLayout::Allineamento,
                                  Visibile,    SfondoTestoTrasparente};
constexpr std::array letteText9{SfondoTestoTrasparente,
                                Top,
                                Left,
                                Testo,
                                NomeFont,
                                DimFont,
                                FontBold,
                                FontItalic,
                                ColoreSfondo,
                                ColoreTesto,
                                ColonnaLayout::Allineamento,
                                Altezza,
                                Larghezza,
                                Visibile};
constexpr std::array scritteText9{Top,         Left,
                                  Testo,       NomeFont,
                                  DimFont,     FontBold,
                                  FontItalic,  ColoreSfondo,
                                  ColoreTesto, ColonnaLayout::Allineamento,
                                  Visibile,    SfondoTestoTrasparente,
                                  Altezza,     Larghezza};
constexpr std::array letteText2{Top,      Left,       Testo,        NomeFont,    DimFont,
                                FontBold, FontItalic, ColoreSfondo, ColoreTesto, ColonnaLayout::Allineamento,
                                Altezza,  Larghezza,  Visibile};
constexpr std::array scritteText2{Top,          Left,        NomeFont, DimFont,   FontBold, FontItalic,
                                  ColoreSfondo, ColoreTesto, Altezza,  Larghezza, Visibile, SfondoTestoTrasparente};
constexpr std::array riquadro{Top, Left, Altezza, Larghezza, Visibile};
constexpr std::array riquadroFisso{Top, Left, Visibile};
constexpr std::array sfondo{PercorsoImmagine};
constexpr std::array coloreTela{ColoreSfondo};
constexpr std::array letteDecorazione{Top, Left, Altezza, Larghezza, Visibile, FontBold, PercorsoImmagine};
constexpr std::array scritteDecorazione{Top, Left, Altezza, Larghezza, Visibile, PercorsoImmagine, FontBold};
constexpr std::array lettePannello{ColoreSfondo, Top, Left, Visibile};
constexpr std::array scrittePannello{Top, Left, ColoreSfondo, Visibile};

struct Gruppo {
    TipoElemento tipo;
    int primo; // index of the first row's element
    int quante;
    std::span<const ColonnaLayout> lette;
    std::span<const ColonnaLayout> scritte;
};

constexpr std::array gruppi{
    Gruppo{TipoElemento::Text1, 0, 24, letteText1, scritteText1},
    Gruppo{TipoElemento::Text9, 0, 4, letteText9, scritteText9},
    Gruppo{TipoElemento::IM1, 0, 1, riquadro, riquadro},
    Gruppo{TipoElemento::WB1, 0, 1, riquadroFisso, riquadroFisso},
    Gruppo{TipoElemento::MP1, 0, 1, riquadro, riquadro},
    Gruppo{TipoElemento::Label2, 0, 1, sfondo, sfondo},
    Gruppo{TipoElemento::Text2, 0, 1, letteText2, scritteText2},
    Gruppo{TipoElemento::Tela, 0, 1, coloreTela, coloreTela},
    Gruppo{TipoElemento::Image1, 1, numeroDecorazioni, letteDecorazione, scritteDecorazione},
    Gruppo{TipoElemento::WB2, 0, 1, riquadro, riquadro},
    Gruppo{TipoElemento::LeNews, 0, 1, riquadroFisso, riquadroFisso},
    Gruppo{TipoElemento::YT, 0, 1, riquadro, riquadro},
    Gruppo{TipoElemento::Pannello1, 0, numeroPannelli, lettePannello, scrittePannello},
};

constexpr auto stese = [] {
    std::array<RigaLayout, righeLayout> tutte{};
    std::size_t n = 0;
    for (const Gruppo &g : gruppi) {
        for (int i = 0; i < g.quante; ++i)
            tutte[n++] = {g.tipo, g.primo + i, g.lette, g.scritte};
    }
    return tutte;
}();

constexpr std::array<QStringView, colonneLayout> nomi{u"DescCampo",
                                                      u"Top",
                                                      u"Left",
                                                      u"Testo",
                                                      u"NomeFont",
                                                      u"DimFont",
                                                      u"FontBold",
                                                      u"FontItalic",
                                                      u"ColoreSfondo",
                                                      u"ColoreTesto",
                                                      u"Allineamento",
                                                      u"Altezza",
                                                      u"Larghezza",
                                                      u"Visibile",
                                                      u"PercorsoImmagine",
                                                      u"SfondoTestoTrasparente"};

} // namespace

QStringView nomeColonna(ColonnaLayout c) {
    return nomi[static_cast<std::size_t>(c)];
}

const std::array<RigaLayout, righeLayout> &righe() {
    return stese;
}

} // namespace zuvora
