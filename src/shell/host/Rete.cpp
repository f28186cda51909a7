#include "shell/host/Rete.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QString interfacciaPredefinita(QByteArrayView rotte) {
    QString migliore;
    qulonglong metricaMigliore = 0;
    for (const QByteArray &riga : rotte.toByteArray().split('\n')) {
        const QList<QByteArray> campi = riga.simplified().split(' ');
        // Interface, destination, gateway, flags, three counters of which the last is the metric, mask.
        if (campi.size() < 8 || campi[1] != "00000000" || campi[7] != "00000000")
            continue;
        bool numero = false;
        const qulonglong metrica = campi[6].toULongLong(&numero);
        const bool attiva = (campi[3].toUInt(nullptr, 16) & 1U) != 0;
        if (numero && attiva && (migliore.isEmpty() || metrica < metricaMigliore)) {
            migliore = QString::fromUtf8(campi[0]);
            metricaMigliore = metrica;
        }
    }
    return migliore;
}

QString indirizzoProposto(const QList<Interfaccia> &interfacce, const QString &predefinita) {
    const auto prima = [&](auto va) {
        const auto trovata = std::find_if(interfacce.begin(), interfacce.end(), va);
        return trovata == interfacce.end() ? QString() : trovata->indirizzo;
    };
    for (const QString &indirizzo :
         {prima([&](const Interfaccia &i) { return i.nome == predefinita; }),
          prima([](const Interfaccia &i) { return !i.ponte; }), prima([](const Interfaccia &) { return true; })})
        if (!indirizzo.isEmpty())
            return indirizzo;
    return u"127.0.0.1"_s;
}

} // namespace zuvora
