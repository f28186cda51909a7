#include "designer/logic/Numeri.h"

#include <array>
#include <charconv>
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

// Whole numbers that single precision holds exactly.
bool interoEsatto(double valore) {
    return std::abs(valore) < 0x1p24 && valore == std::trunc(valore);
}

} // namespace

std::optional<double> numeroDa(const QString &testo) {
    QString pulito = testo.trimmed();
    pulito.replace(u',', u'.');
    bool ok = false;
    const double valore = pulito.toDouble(&ok);
    return ok ? seSingolo(valore) : std::nullopt;
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
    // In fixed notation single precision fills at most 39 digits before the point and 149 behind it.
    std::array<char, 256> testo{};
    const auto fine =
        std::to_chars(testo.data(), testo.data() + testo.size(), static_cast<float>(valore), std::chars_format::fixed);
    return QString::fromLatin1(testo.data(), fine.ptr - testo.data());
}

double singolo(double valore) {
    if (interoEsatto(valore))
        return valore;
    std::array<char, 32> testo{};
    const auto fine = std::to_chars(testo.data(), testo.data() + testo.size(), static_cast<float>(valore));
    double corto = valore;
    std::from_chars(testo.data(), fine.ptr, corto);
    return corto;
}

} // namespace zuvora
