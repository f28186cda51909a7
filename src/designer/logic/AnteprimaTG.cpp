#include "designer/logic/AnteprimaTG.h"

#include "designer/logic/NumeriSingoli.h"

#include <algorithm>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

AnteprimaTG::AnteprimaTG(const DisplayLayout &layout) {
    const Area &area = layout.elemento(TipoElemento::WB2).area;
    m_dimensione = {area.width, area.height};
}

QString AnteprimaTG::A1() const {
    return testoNumero(m_dimensione.width);
}

QString AnteprimaTG::A2() const {
    return testoNumero(m_dimensione.height);
}

QString AnteprimaTG::Accetta(DisplayLayout &layout, const QString &A1, const QString &A2) {
    const auto larghezza = numeroDa(A1);
    const auto altezza = numeroDa(A2);
    const auto valida = [](const std::optional<double> &misura) { return misura && *misura > 0 && *misura <= massimo; };
    if (!valida(larghezza) || !valida(altezza))
        return u"Larghezza e altezza devono essere numeri maggiori di 0 e non oltre %1."_s.arg(testoNumero(massimo));
    Area &area = layout.elemento(TipoElemento::WB2).area;
    area.height = *altezza;
    area.width = *larghezza;
    return {};
}

void AnteprimaTG::cambia(double &misura, double di) {
    // A box that is already beyond a limit may come back from it, but a step never takes it further out.
    if (di < 0)
        misura = std::min(misura, std::max(misura + di, passo));
    else
        misura = std::max(misura, std::min(misura + di, massimo));
}

} // namespace zuvora
