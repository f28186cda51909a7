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

QString LayoutElement::nomeParlato() const {
    static constexpr std::array<QStringView, 4> titoli{u"Titolo", u"Sottotitolo", u"Data", u"Ora"};
    static constexpr std::array<QStringView, 3> ruoli{u"Numero", u"Postazione", u"Servizio"};
    switch (tipo) {
    case TipoElemento::Text1:
        return u"%1 del pannello %2"_s.arg(ruoli[static_cast<std::size_t>(indice % 3)]).arg(indice / 3 + 1);
    case TipoElemento::Text9:
        return titoli[static_cast<std::size_t>(indice)].toString();
    case TipoElemento::Text2:
        return u"Testo scorrevole"_s;
    case TipoElemento::IM1:
        return u"Riquadro immagini"_s;
    case TipoElemento::MP1:
        return u"Riquadro video"_s;
    case TipoElemento::WB1:
        return u"Riquadro meteo"_s;
    case TipoElemento::WB2:
        return u"Riquadro TG online"_s;
    case TipoElemento::LeNews:
        return u"Striscia delle news"_s;
    case TipoElemento::YT:
        return u"Riquadro YouTube"_s;
    case TipoElemento::Image1:
        return u"Decorazione %1"_s.arg(indice);
    case TipoElemento::Pannello1:
        return u"Pannello %1"_s.arg(indice + 1);
    case TipoElemento::Label2:
        return u"Sfondo"_s;
    case TipoElemento::Tela:
        break;
    }
    return u"Colore dello schermo"_s;
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
