#include "shell/logic/Numeri.h"

#include <QRegularExpression>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QString SostituisciApice(const QString &testo) {
    QString sostituito = testo;
    return sostituito.replace(u'\'', u'?');
}

bool eNumerico(QStringView testo) {
    return numeroDi(testo.toString()).has_value();
}

double Val(const QString &testo) {
    static const QRegularExpression numero(uR"(^\s*([+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?))"_s);
    const QRegularExpressionMatch inizio = numero.match(testo);
    return inizio.hasMatch() ? numeroDi(inizio.captured(1)).value_or(0) : 0;
}

std::optional<double> singoloDi(const Valore &v) {
    const auto numero = numeroDi(v);
    return numero && std::abs(*numero) <= std::numeric_limits<float>::max() ? numero : std::nullopt;
}

Valore singolo(double valore) {
    return static_cast<float>(valore);
}

QString testoNumero(double valore) {
    return testoDi(singolo(valore), {});
}

} // namespace zuvora
