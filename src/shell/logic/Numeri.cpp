#include "shell/logic/Numeri.h"

#include <cmath>

namespace zuvora {

QString SostituisciApice(const QString &testo) {
    QString sostituito = testo;
    return sostituito.replace(QLatin1Char('\''), QLatin1Char('?'));
}

std::optional<double> numeroDi(QStringView testo) {
    QString pulito = testo.trimmed().toString();
    pulito.replace(QLatin1Char(','), QLatin1Char('.'));
    // toDouble would take "inf" and "nan" too: they are words here.
    for (const QChar c : std::as_const(pulito))
        if (c.isLetter() && c.toLower() != QLatin1Char('e'))
            return std::nullopt;
    bool riuscito = false;
    const double valore = pulito.toDouble(&riuscito);
    if (!riuscito || !std::isfinite(valore))
        return std::nullopt;
    return valore;
}

bool eNumerico(QStringView testo) {
    return numeroDi(testo).has_value();
}

} // namespace zuvora
