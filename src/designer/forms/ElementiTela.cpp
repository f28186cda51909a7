#include "designer/forms/ElementiTela.h"

#include "designer/forms/PittoreElementi.h"

namespace zuvora {
namespace {

constexpr int etichettePannello = 3;

int primaEtichetta(const LayoutElement &pannello) {
    return DisplayLayout::postoDi(TipoElemento::Text1, etichettePannello * pannello.indice);
}

} // namespace

ElementiTela::ElementiTela(QWidget *form, const DisplayLayout &layout, const Gestore &gestore) : m_layout(layout) {
    for (const int posto : layout.ordine()) {
        crea(form, posto, gestore);
        if (layout[posto].tipo != TipoElemento::Pannello1)
            continue;
        const int prima = primaEtichetta(layout[posto]);
        for (int etichetta = prima; etichetta < prima + etichettePannello; ++etichetta)
            crea(m_bersagli[std::size_t(posto)], etichetta, gestore);
    }
    allineaTutti();
}

void ElementiTela::crea(QWidget *padre, int posto, const Gestore &gestore) {
    const LayoutElement &e = m_layout[posto];
    auto *bersaglio = new Bersaglio(padre, e.nome(),
                                    [gestore, posto](Fase fase, QMouseEvent &evento) { gestore(posto, fase, evento); });
    bersaglio->setAccessibleName(e.nomeParlato());
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
            -rettangoloTela(m_layout.elemento(TipoElemento::Pannello1, e.indice / etichettePannello).area).topLeft());
    bersaglio->setGeometry(r);
    bersaglio->setVisible(e.visibile);
    if (e.tipo == TipoElemento::Pannello1)
        for (int etichetta = primaEtichetta(e), n = 0; n < etichettePannello; ++n)
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
