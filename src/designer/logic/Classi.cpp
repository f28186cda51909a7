#include "designer/logic/Classi.h"

#include "shell/logic/Numeri.h"

#include <algorithm>
#include <cmath>

namespace zuvora {

namespace {

constexpr int altezzaTesti = 4770;
constexpr int altezzaTitoli = 5415;

constexpr std::array<QStringView, 5> senzaAllineamento{u"Label2(3)", u"RB1(0)", u"RB1(1)", u"RB1(2)", u"CB2"};
constexpr std::array<QStringView, 11> soloColore{u"PB1(0)",    u"CP2",       u"CB2",       u"RB1(0)",
                                                 u"RB1(1)",    u"RB1(2)",    u"Label2(0)", u"Label2(1)",
                                                 u"Label2(2)", u"Label2(3)", u"Label2(6)"};

// In the order of the enumeration.
constexpr std::array pagine{
    PaginaClasse{Classe::Numeri, u"Numeri", altezzaTesti, {}, -1},
    PaginaClasse{Classe::Postazione, u"Postazione", altezzaTesti, {}, -1},
    PaginaClasse{Classe::Servizio, u"Servizio", altezzaTesti, {}, -1},
    PaginaClasse{Classe::Titolo, u"Titolo", altezzaTitoli, {}, 0},
    PaginaClasse{Classe::SottoTitolo, u"SottoTitolo", altezzaTitoli, {}, 1},
    PaginaClasse{Classe::Data, u"Data", altezzaTitoli, {}, 2},
    PaginaClasse{Classe::Orario, u"Orario", altezzaTitoli, {}, 3},
    PaginaClasse{Classe::TestoScorrevole, u"Testo Scorrevole", altezzaTesti, senzaAllineamento, -1},
    PaginaClasse{Classe::Pannello, u"Pannello", 0, soloColore, -1},
    PaginaClasse{Classe::ColoreSfondoSchermata, u"Colore Sfondo Schermata", 0, soloColore, -1},
};

// The alignment of each radio button.
constexpr std::array allineamenti{Allineamento::Sinistra, Allineamento::Centro, Allineamento::Destra};

bool soloSfondo(Classe classe) {
    return classe == Classe::Pannello || classe == Classe::ColoreSfondoSchermata;
}

bool appartiene(const LayoutElement &e, Classe classe) {
    return classeDi(e) == classe;
}

std::optional<Colore> coloreDa(const QString &testo) {
    const auto numero = singoloDi(testo);
    if (!numero || *numero < 0 || *numero > coloreMassimo)
        return std::nullopt;
    return static_cast<Colore>(std::lround(*numero));
}

// The values of the fields, checked.
struct Stile {
    QString font;
    double dimensione;
    Colore sfondo;
    Colore testo;
};

std::optional<Stile> stileDa(const CampiForm2 &campi) {
    const auto dimensione = singoloDi(campi.FE1[1]);
    const auto sfondo = coloreDa(campi.FE1[2]);
    const auto testo = coloreDa(campi.FE1[3]);
    const bool valida = dimensione && *dimensione >= fontMinimo && *dimensione <= fontMassimo;
    if (campi.FE1[0].isEmpty() || !valida || !sfondo || !testo)
        return std::nullopt;
    return Stile{campi.FE1[0], *dimensione, *sfondo, *testo};
}

void applicaStile(LayoutElement &e, const Stile &stile, const CampiForm2 &campi) {
    e.font = {stile.font, stile.dimensione, campi.grassetto, campi.corsivo};
    e.coloreSfondo = stile.sfondo;
    e.coloreTesto = stile.testo;
    if (campi.RB1 >= 0)
        e.allineamento = allineamentoDa(campi.RB1);
    e.trasparente = campi.trasparente;
}

bool applicaSfondo(DisplayLayout &layout, Classe classe, const CampiForm2 &campi) {
    const auto sfondo = coloreDa(campi.FE1[2]);
    if (!sfondo)
        return false;
    for (LayoutElement &e : layout) {
        if (appartiene(e, classe))
            e.coloreSfondo = *sfondo;
    }
    return true;
}

} // namespace

const PaginaClasse &paginaClasse(Classe classe) {
    return pagine[static_cast<std::size_t>(classe)];
}

std::optional<Classe> classeDi(const LayoutElement &e) {
    switch (e.tipo) {
    case TipoElemento::Text1:
        return static_cast<Classe>(static_cast<int>(Classe::Numeri) + e.indice % 3);
    case TipoElemento::Text9:
        return static_cast<Classe>(static_cast<int>(Classe::Titolo) + e.indice);
    case TipoElemento::Text2:
        return Classe::TestoScorrevole;
    case TipoElemento::Pannello1:
        return Classe::Pannello;
    case TipoElemento::Tela:
        return Classe::ColoreSfondoSchermata;
    default:
        return std::nullopt;
    }
}

Allineamento allineamentoDa(int RB1) {
    return allineamenti[static_cast<std::size_t>(RB1)];
}

int bottoneDi(Allineamento a) {
    return static_cast<int>(std::ranges::find(allineamenti, a) - allineamenti.begin());
}

CampiForm2 riempiCampi(const DisplayLayout &layout, int posto) {
    const LayoutElement &e = layout[posto];
    CampiForm2 campi;
    campi.FE1[2] = QString::number(e.coloreSfondo);
    const auto classe = classeDi(e);
    if (!classe || soloSfondo(*classe))
        return campi;
    campi.FE1[0] = e.font.nome;
    campi.FE1[1] = testoNumero(e.font.dimensione);
    campi.FE1[3] = QString::number(e.coloreTesto);
    campi.grassetto = e.font.grassetto;
    campi.corsivo = e.font.corsivo;
    campi.RB1 = bottoneDi(e.allineamento);
    campi.trasparente = e.trasparente;
    if (paginaClasse(*classe).haTesto())
        campi.Testo999 = e.didascalia;
    campi.Label4 = e.tipo == TipoElemento::Text1 ? e.area.left : 0;
    return campi;
}

bool applicaClasse(DisplayLayout &layout, Classe classe, const CampiForm2 &campi) {
    if (soloSfondo(classe))
        return applicaSfondo(layout, classe, campi);
    const auto stile = stileDa(campi);
    if (!stile)
        return false;
    for (LayoutElement &e : layout) {
        if (!appartiene(e, classe))
            continue;
        applicaStile(e, *stile, campi);
        if (classe == Classe::Servizio)
            e.area.left = campi.Label4;
        if (paginaClasse(classe).haTesto())
            e.didascalia = campi.Testo999;
    }
    return true;
}

} // namespace zuvora
