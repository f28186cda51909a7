#include "designer/logic/TrascinamentoVivo.h"

namespace zuvora {

namespace {

// The sides on which a target counts as out of bounds: above or below the form, or left or right of it.
struct Regola {
    bool verticale;
    bool orizzontale;
};

constexpr Regola regola(int bersaglio) {
    if (bersaglio == TrascinamentoVivo::strumenti)
        return {true, true};
    return bersaglio == 0 ? Regola{true, false} : Regola{false, true};
}

} // namespace

void TrascinamentoVivo::inizia(int bersaglio, QPoint presa, PuntoTwips inizio) {
    m_attivo = true;
    m_bersaglio = bersaglio;
    m_presa = presa;
    m_inizio = inizio;
}

std::optional<PuntoTwips> TrascinamentoVivo::muovi(QPoint cursore, double twipsPerPixelX, double twipsPerPixelY) const {
    if (!m_attivo)
        return std::nullopt;
    const QPoint distanza = cursore - m_presa;
    return PuntoTwips{m_inizio.left + distanza.x() * twipsPerPixelX, m_inizio.top + distanza.y() * twipsPerPixelY};
}

PuntoTwips postoDopoRilascio(int bersaglio, PuntoTwips posto, Dimensione form) {
    const Regola r = regola(bersaglio);
    const bool fuori = (r.verticale && (posto.top < 0 || posto.top > form.height)) ||
                       (r.orizzontale && (posto.left < 0 || posto.left > form.width));
    return fuori ? PuntoTwips{} : posto;
}

bool muoviPannello(DisplayLayout &layout, const TrascinamentoVivo &vivo, int etichetta, QPoint cursore,
                   double twipsPerPixelX, double twipsPerPixelY) {
    const int pannello = etichetta / 3;
    const auto posto = vivo.muovi(cursore, twipsPerPixelX, twipsPerPixelY);
    if (!posto || vivo.bersaglio() != pannello)
        return false;
    Area &area = layout.elemento(TipoElemento::Pannello1, pannello).area;
    const bool mosso = posto->left != area.left || posto->top != area.top;
    area.left = posto->left;
    area.top = posto->top;
    return mosso;
}

bool rilasciaPannello(DisplayLayout &layout, TrascinamentoVivo &vivo, int etichetta, Dimensione form) {
    if (layout.eBase())
        return false;
    const int pannello = etichetta / 3;
    Area &area = layout.elemento(TipoElemento::Pannello1, pannello).area;
    const PuntoTwips prima{area.left, area.top};
    const PuntoTwips dopo = postoDopoRilascio(pannello, prima, form);
    area.left = dopo.left;
    area.top = dopo.top;
    vivo.finisci();
    return dopo != prima;
}

} // namespace zuvora
