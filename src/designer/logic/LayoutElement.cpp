#include "designer/logic/LayoutElement.h"

#include <array>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Genere {
    TipoElemento tipo;
    QStringView nome;
    bool indice;
    bool sullaTela;
};

// In the order of the enumeration.
constexpr std::array generi{
    Genere{TipoElemento::Text1, u"Text1", true, false},
    Genere{TipoElemento::Text9, u"Text9", true, true},
    Genere{TipoElemento::IM1, u"IM1", false, true},
    Genere{TipoElemento::WB1, u"WB1", false, true},
    Genere{TipoElemento::MP1, u"MP1", false, true},
    Genere{TipoElemento::Label2, u"Label2", false, false},
    Genere{TipoElemento::Text2, u"Text2", false, true},
    Genere{TipoElemento::Tela, u"Form1", false, false},
    Genere{TipoElemento::Image1, u"Image1", true, true},
    Genere{TipoElemento::WB2, u"WB2", false, true},
    Genere{TipoElemento::LeNews, u"LeNews", false, true},
    Genere{TipoElemento::YT, u"YT", false, true},
    Genere{TipoElemento::Pannello1, u"Pannello1", true, true},
};

constexpr const Genere &genere(TipoElemento tipo) {
    return generi[static_cast<std::size_t>(tipo)];
}

} // namespace

QString LayoutElement::nome() const {
    return nomeElemento(tipo, indice);
}

QStringView nomeTipo(TipoElemento tipo) {
    return genere(tipo).nome;
}

bool haIndice(TipoElemento tipo) {
    return genere(tipo).indice;
}

QString nomeElemento(TipoElemento tipo, int indice) {
    const QString nome = genere(tipo).nome.toString();
    return haIndice(tipo) ? u"%1(%2)"_s.arg(nome).arg(indice) : nome;
}

bool staSullaTela(TipoElemento tipo) {
    return genere(tipo).sullaTela;
}

} // namespace zuvora
