#include "designer/logic/AnteprimaTG.h"

#include "shell/logic/Numeri.h"

#include <algorithm>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

QString AnteprimaTG::A1() const {
    return testoNumero(m_dimensione.width);
}

QString AnteprimaTG::A2() const {
    return testoNumero(m_dimensione.height);
}

std::optional<Dimensione> AnteprimaTG::leggi(const QString &A1, const QString &A2) {
    const auto larghezza = singoloDi(A1);
    const auto altezza = singoloDi(A2);
    const auto valida = [](const std::optional<double> &m) { return m && *m >= minimo && *m <= massimo; };
    if (!valida(larghezza) || !valida(altezza))
        return std::nullopt;
    return Dimensione{*larghezza, *altezza};
}

Messaggio AnteprimaTG::rifiuto() {
    return {u"Larghezza e altezza devono essere numeri"_s,
            u"compresi fra %1 e %2."_s.arg(testoNumero(minimo), testoNumero(massimo))};
}

void AnteprimaTG::cambia(double &misura, double di) {
    // A box that is already beyond a limit may come back from it, but a step never takes it further out.
    if (di < 0)
        misura = std::min(misura, std::max(misura + di, passo));
    else
        misura = std::max(misura, std::min(misura + di, massimo));
}

} // namespace zuvora
