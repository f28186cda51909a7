#include "shell/store/Valore.h"

#include "shell/store/Tipi.h"

#include <QLocale>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

bool intero(const Valore &v) {
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}

bool reale(const Valore &v) {
    return v.typeId() == QMetaType::Double || v.typeId() == QMetaType::Float;
}

// The decimal number that a single-precision value stands for: 8.1 stays 8.1.
double decimale(float f) {
    std::array<char, 64> cifre{};
    const auto scritto = std::to_chars(cifre.data(), cifre.data() + cifre.size(), f);
    double d = f;
    std::from_chars(cifre.data(), scritto.ptr, d);
    return d;
}

double realeDi(const Valore &v) {
    return v.typeId() == QMetaType::Float ? decimale(v.toFloat()) : v.toDouble();
}

std::optional<Valore> comeIntero(const Valore &v) {
    if (intero(v))
        return Valore(v.toLongLong());
    if (v.typeId() == QMetaType::Bool)
        return Valore(qlonglong{v.toBool() ? -1 : 0}); // True is -1 in a number, as the sibling programs count it
    std::optional<double> d;
    if (reale(v)) {
        d = v.toDouble();
    } else {
        bool riuscito = false;
        const qlonglong n = v.toString().trimmed().toLongLong(&riuscito);
        if (riuscito)
            return Valore(n);
        d = numeroDi(v.toString());
    }
    constexpr double limite = 9.2e18;
    if (!d || !(std::abs(*d) < limite))
        return std::nullopt;
    return Valore(static_cast<qlonglong>(std::nearbyint(*d))); // halves go to the even neighbour
}

std::optional<Valore> comeReale(const Valore &v) {
    if (v.typeId() == QMetaType::Bool)
        return Valore(v.toBool() ? -1.0 : 0.0);
    const auto d = intero(v) || reale(v) ? numeroDi(v) : numeroDi(v.toString());
    return d ? std::optional<Valore>(*d) : std::nullopt;
}

std::optional<Valore> comeBooleano(const Valore &v) {
    if (v.typeId() == QMetaType::Bool)
        return v;
    if (intero(v) || reale(v))
        return Valore(v.toDouble() != 0.0);
    const QString netto = v.toString().trimmed();
    for (const auto &[parola, valore] : {std::pair(u"true"_s, true), std::pair(u"false"_s, false),
                                         std::pair(u"vero"_s, true), std::pair(u"falso"_s, false)})
        if (netto.compare(parola, Qt::CaseInsensitive) == 0)
            return Valore(valore);
    if (const auto d = numeroDi(netto))
        return Valore(*d != 0.0);
    return std::nullopt;
}

} // namespace

std::optional<double> numeroDi(const QString &testo) {
    QString netto = testo.trimmed();
    netto.replace(u',', u'.');
    // toDouble would take "inf" and "nan" too: they are words here.
    const bool parole = std::ranges::any_of(netto, [](QChar c) { return c.isLetter() && c.toLower() != u'e'; });
    bool riuscito = false;
    const double d = parole ? 0 : netto.toDouble(&riuscito);
    return riuscito && std::isfinite(d) ? std::optional(d) : std::nullopt;
}

std::optional<double> numeroDi(const Valore &v) {
    if (intero(v) || reale(v)) {
        const double d = realeDi(v);
        return std::isfinite(d) ? std::optional(d) : std::nullopt;
    }
    return v.typeId() == QMetaType::QString ? numeroDi(v.toString()) : std::nullopt;
}

bool eNull(const Valore &v) {
    return !v.isValid() || v.typeId() == QMetaType::Nullptr;
}

bool eVero(const Valore &v) {
    if (v.typeId() == QMetaType::Bool)
        return v.toBool();
    return (intero(v) || reale(v)) && v.toDouble() != 0.0;
}

QString testoDi(const Valore &v, const QString &seNull) {
    if (eNull(v))
        return seNull;
    if (v.typeId() == QMetaType::Bool)
        return v.toBool() ? u"True"_s : u"False"_s;
    if (reale(v))
        return QString::number(realeDi(v), 'f', QLocale::FloatingPointShortest);
    return v.toString();
}

TipoColonna tipoColonna(const QByteArray &dichiarato) {
    struct Voce {
        const char *parte;
        TipoColonna tipo;
    };
    constexpr std::array tipi{
        Voce{"BOOL", TipoColonna::Booleano}, Voce{"BIT", TipoColonna::Booleano},   Voce{"YESNO", TipoColonna::Booleano},
        Voce{"INT", TipoColonna::Intero},    Voce{"LONG", TipoColonna::Intero},    Voce{"SHORT", TipoColonna::Intero},
        Voce{"BYTE", TipoColonna::Intero},   Voce{"COUNTER", TipoColonna::Intero}, Voce{"REAL", TipoColonna::Reale},
        Voce{"FLOA", TipoColonna::Reale},    Voce{"DOUB", TipoColonna::Reale},     Voce{"SINGLE", TipoColonna::Reale},
        Voce{"NUM", TipoColonna::Reale},     Voce{"DEC", TipoColonna::Reale},      Voce{"CURR", TipoColonna::Reale}};
    const QByteArray nome = dichiarato.toUpper();
    if (nome.isEmpty())
        return TipoColonna::Libero;
    for (const Voce &voce : tipi)
        if (nome.contains(voce.parte))
            return voce.tipo;
    return TipoColonna::Testo;
}

std::optional<Valore> perColonna(const Valore &v, TipoColonna tipo) {
    if (eNull(v))
        return Valore();
    if (!intero(v) && !reale(v) && !v.canConvert<QString>())
        return std::nullopt;
    switch (tipo) {
    case TipoColonna::Booleano:
        return comeBooleano(v);
    case TipoColonna::Intero:
        return comeIntero(v);
    case TipoColonna::Reale:
        return comeReale(v);
    case TipoColonna::Testo:
        return Valore(testoDi(v, {}));
    case TipoColonna::Libero:
        break;
    }
    return v;
}

} // namespace zuvora
