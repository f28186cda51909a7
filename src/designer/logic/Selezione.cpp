#include "designer/logic/Selezione.h"

#include <algorithm>
#include <array>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

using enum AzionePressione;

constexpr std::array trascinaPannello{RipristinaDidascalia, Seleziona, TrascinaPannello};
constexpr std::array trascina{RipristinaDidascalia, Seleziona, Trascina};
constexpr std::array trascinaTicker{Seleziona, Trascina};
constexpr std::array trascinaDecorazione{TestoDecorazione, Seleziona, Trascina};
constexpr std::array proprieta{RipristinaDidascalia, Lampo, ApriForm2};
constexpr std::array proprietaTicker{Lampo, ApriForm2};
constexpr std::array proprietaPannello{ApriForm2, RipristinaDidascalia};
constexpr std::array proprietaPannelloBase{ApriForm2};
constexpr std::array decorazione{TestoDecorazione, Lampo, ApriDecorazione};
constexpr std::array soloDidascalia{RipristinaDidascalia};
constexpr std::array lampo{RipristinaDidascalia, Lampo};
constexpr std::array anteprima{RipristinaDidascalia, ApriAnteprimaTG};
constexpr std::array nascondi{NascondiManiglie};
constexpr std::array menu{MenuChiudi};
constexpr std::array scorri{ScorriSchermata};

enum class Layout { Altro, Base, Tutti };

struct Voce {
    TipoElemento tipo;
    Layout layout;
    Qt::MouseButtons bottoni;
    std::span<const AzionePressione> azioni;
};

// Presses that are not listed do nothing.
constexpr std::array voci{
    Voce{TipoElemento::Text1, Layout::Altro, Qt::LeftButton, trascinaPannello},
    Voce{TipoElemento::Text1, Layout::Altro, Qt::RightButton, proprieta},
    Voce{TipoElemento::Text2, Layout::Altro, Qt::LeftButton, trascinaTicker},
    Voce{TipoElemento::Text2, Layout::Altro, Qt::RightButton, proprietaTicker},
    Voce{TipoElemento::Text9, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::Text9, Layout::Altro, Qt::RightButton, proprieta},
    Voce{TipoElemento::Pannello1, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::Pannello1, Layout::Altro, Qt::RightButton, proprietaPannello},
    Voce{TipoElemento::Pannello1, Layout::Base, Qt::RightButton, proprietaPannelloBase},
    Voce{TipoElemento::Image1, Layout::Tutti, Qt::LeftButton, trascinaDecorazione},
    Voce{TipoElemento::Image1, Layout::Tutti, Qt::RightButton, decorazione},
    Voce{TipoElemento::IM1, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::IM1, Layout::Altro, Qt::RightButton, soloDidascalia},
    Voce{TipoElemento::MP1, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::MP1, Layout::Altro, Qt::RightButton, soloDidascalia},
    Voce{TipoElemento::LeNews, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::LeNews, Layout::Altro, Qt::RightButton, soloDidascalia},
    Voce{TipoElemento::YT, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::YT, Layout::Altro, Qt::RightButton, soloDidascalia},
    Voce{TipoElemento::WB1, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::WB1, Layout::Altro, Qt::RightButton, lampo},
    Voce{TipoElemento::WB2, Layout::Altro, Qt::LeftButton, trascina},
    Voce{TipoElemento::WB2, Layout::Altro, Qt::RightButton, anteprima},
    Voce{TipoElemento::Tela, Layout::Altro, Qt::LeftButton, nascondi},
    Voce{TipoElemento::Tela, Layout::Base, Qt::AllButtons, menu},
};

// Where Delete parks an element, below every canvas but the portrait one.
constexpr PuntoTwips parcheggio(TipoElemento tipo) {
    switch (tipo) {
    case TipoElemento::Pannello1:
        return {1000, 23000};
    case TipoElemento::Image1:
        return {0, 17000};
    default:
        return {0, 18000};
    }
}

} // namespace

std::span<const AzionePressione> azioniPressione(TipoElemento tipo, Qt::MouseButton bottone, bool layoutBase) {
    const Layout escluso = layoutBase ? Layout::Altro : Layout::Base;
    const auto voce = std::ranges::find_if(
        voci, [=](const Voce &v) { return v.tipo == tipo && v.layout != escluso && v.bottoni.testFlag(bottone); });
    if (voce != voci.end())
        return voce->azioni;
    // The middle button has no meaning of its own.
    return bottone == Qt::MiddleButton ? std::span<const AzionePressione>(scorri) : std::span<const AzionePressione>{};
}

QString didascaliaForm(QStringView tabella) {
    return u"Impostazione Modulo : "_s.append(tabella);
}

QString testoStato(const QString &didascaliaBase, int decorazione) {
    return didascaliaBase + u"  Controllo : Decorazione "_s + QString::number(decorazione);
}

bool parcheggia(DisplayLayout &layout, QStringView elementoSelezionato) {
    int posto = DisplayLayout::postoDi(elementoSelezionato);
    if (posto >= 0 && layout[posto].tipo == TipoElemento::Text1)
        posto = DisplayLayout::postoDi(TipoElemento::Pannello1, layout[posto].indice / 3);
    if (posto < 0 || !staSullaTela(layout[posto].tipo))
        return false;
    LayoutElement &e = layout[posto];
    const PuntoTwips dove = parcheggio(e.tipo);
    e.area.left = dove.left;
    e.area.top = dove.top;
    e.visibile = false;
    return true;
}

} // namespace zuvora
