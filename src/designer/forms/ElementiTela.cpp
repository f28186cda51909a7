#include "designer/forms/ElementiTela.h"

#include "designer/forms/PittoreElementi.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int EtichettePannello = 3;

int primaEtichetta(const LayoutElement &pannello) {
    return DisplayLayout::postoDi(TipoElemento::Text1, EtichettePannello * pannello.indice);
}

// What a screen reader says of an element.
QString nomeParlato(const LayoutElement &e) {
    static constexpr std::array<QStringView, 4> titoli{u"Titolo", u"Sottotitolo", u"Data", u"Ora"};
    static constexpr std::array<QStringView, EtichettePannello> ruoli{u"Numero", u"Postazione", u"Servizio"};
    switch (e.tipo) {
    case TipoElemento::Text1:
        return u"%1 del pannello %2"_s.arg(ruoli[std::size_t(e.indice % EtichettePannello)])
            .arg(e.indice / EtichettePannello + 1);
    case TipoElemento::Text9:
        return titoli[std::size_t(e.indice)].toString();
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
        return u"Decorazione %1"_s.arg(e.indice);
    case TipoElemento::Pannello1:
        return u"Pannello %1"_s.arg(e.indice + 1);
    case TipoElemento::Label2:
    case TipoElemento::Tela:
        break;
    }
    return {};
}

} // namespace

ElementiTela::ElementiTela(QWidget *form, const DisplayLayout &layout, const Gestore &gestore) : m_layout(layout) {
    for (const int posto : layout.ordine()) {
        crea(form, posto, gestore);
        if (layout[posto].tipo != TipoElemento::Pannello1)
            continue;
        const int prima = primaEtichetta(layout[posto]);
        for (int etichetta = prima; etichetta < prima + EtichettePannello; ++etichetta)
            crea(m_bersagli[std::size_t(posto)], etichetta, gestore);
    }
    allineaTutti();
}

void ElementiTela::crea(QWidget *padre, int posto, const Gestore &gestore) {
    const LayoutElement &e = m_layout[posto];
    auto *bersaglio = new Bersaglio(padre, e.nome(),
                                    [gestore, posto](Fase fase, QMouseEvent &evento) { gestore(posto, fase, evento); });
    bersaglio->setAccessibleName(nomeParlato(e));
    m_bersagli[std::size_t(posto)] = bersaglio;
}

void ElementiTela::allinea(int posto) {
    const LayoutElement &e = m_layout[posto];
    Bersaglio *bersaglio = m_bersagli[std::size_t(posto)];
    if (bersaglio == nullptr)
        return;
    QRect r = rettangoloTela(m_layout.areaSullaTela(posto));
    if (e.tipo == TipoElemento::Text1)
        r.translate(
            -rettangoloTela(m_layout.elemento(TipoElemento::Pannello1, e.indice / EtichettePannello).area).topLeft());
    bersaglio->setGeometry(r);
    bersaglio->setVisible(e.visibile);
    if (e.tipo == TipoElemento::Pannello1)
        for (int etichetta = primaEtichetta(e), n = 0; n < EtichettePannello; ++n)
            allinea(etichetta + n);
}

void ElementiTela::allineaTutti() {
    for (const int posto : m_layout.ordine())
        allinea(posto);
}

void ElementiTela::impila(int posto, QWidget *tetto) {
    const auto &ordine = m_layout.ordine();
    const auto dopo = ordine.indexOf(posto) + 1;
    m_bersagli[std::size_t(posto)]->stackUnder(dopo < ordine.size() ? m_bersagli[std::size_t(ordine.at(dopo))] : tetto);
}

} // namespace zuvora
