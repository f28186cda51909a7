#include "calling/forms/GruppoPostazioni.h"

#include "calling/logic/Postazioni.h"

#include <QShowEvent>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr Posto postoGruppo{120, 1800, 5295, 2295}; // below the button that saves the server's data
constexpr int linee = 5;                            // in each of the two blocks
constexpr int larghezzaBlocco = 2580;
constexpr int primaLinea = 300;
constexpr int passoLinea = 375;

Posto nelBlocco(int postazione, int left, int width) {
    return {120 + postazione / linee * larghezzaBlocco + left, primaLinea + postazione % linee * passoLinea, width,
            255};
}

// A label's text stands at the top of its place, a radio button's in the middle.
Posto accanto(Posto posto) {
    posto.top += 45;
    return posto;
}

} // namespace

// A workstation: its name and its two types, of which one or none is on.
struct GruppoPostazioni::Linea {
    Linea(QWidget *padre, int postazione)
        : nome(u"Postazione %1"_s.arg(postazione + 1)),
          etichetta(padre, u"Label3(%1)"_s.arg(postazione).toLatin1().constData(), nome.toLatin1().constData(),
                    accanto(nelBlocco(postazione, 0, 1200))),
          tipi("PosSS", 2 * postazione, 2 * postazione + 1, [&](int Index, const char *nomeTipo) {
              const bool primo = Index % 2 == 0;
              auto bottone = std::make_unique<RadioButton>(padre, nomeTipo, primo ? "SG" : "ST",
                                                           nelBlocco(postazione, primo ? 1260 : 1860, 570));
              bottone->setAccessibleName(nome + u", "_s + bottone->text());
              return bottone;
          }) {}

    QString nome;
    Label etichetta;
    Schiera<RadioButton> tipi;
    GruppoRadio gruppo{tipi};
    int scelto = -1; // as it is stored
};

GruppoPostazioni::GruppoPostazioni(Pagina &pagina)
    : GroupBox(&pagina, "GruppoPostazioni", "Tipo di postazione", postoGruppo), m_pagina(pagina) {
    for (int i = 0; i < numeroPostazioni; ++i) {
        const Linea &linea = *m_linee.emplace_back(std::make_unique<Linea>(this, i));
        m_pagina.quando(linea.gruppo, &GruppoRadio::cambiato, [this](int Index) { imposta(Index); });
    }
}

GruppoPostazioni::~GruppoPostazioni() = default;

void GruppoPostazioni::showEvent(QShowEvent *e) {
    GroupBox::showEvent(e);
    if (!e->spontaneous())
        m_pagina.proteggi([this] { riempi(); });
}

void GruppoPostazioni::riempi() {
    const auto scelte = leggiPostazioni(m_pagina.cartella());
    for (std::size_t i = 0; i < scelte.size(); ++i) {
        m_linee[i]->scelto = scelte[i];
        m_linee[i]->gruppo.setScelto(scelte[i]);
    }
}

void GruppoPostazioni::imposta(int Index) {
    Linea &linea = *m_linee[std::size_t(Index / 2)];
    try {
        ImpostaPostazione(m_pagina.cartella(), Index);
    } catch (...) {
        linea.gruppo.setScelto(linea.scelto);
        throw;
    }
    linea.scelto = Index;
    linea.tipi(Index).spunta();
}

} // namespace zuvora
