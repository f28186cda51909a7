#include "designer/logic/NumeriSingoli.h"

#include "shell/logic/Numeri.h"

#include <cmath>
#include <limits>

namespace zuvora {

namespace {

constexpr double massimoSingolo = std::numeric_limits<float>::max();

std::optional<double> seSingolo(double valore) {
    if (!std::isfinite(valore) || std::abs(valore) > massimoSingolo)
        return std::nullopt;
    return valore;
}

} // namespace

std::optional<double> numeroDa(const QString &testo) {
    const auto valore = numeroDi(testo);
    return valore ? seSingolo(*valore) : std::nullopt;
}

std::optional<double> numeroDa(const Valore &v) {
    switch (v.typeId()) {
    case QMetaType::QString:
        return numeroDa(v.toString());
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return seSingolo(v.toDouble());
    default:
        return std::nullopt;
    }
}

QString testoNumero(double valore) {
    return testoDi(singolo(valore), {});
}

Valore singolo(double valore) {
    return static_cast<float>(valore);
}

} // namespace zuvora
