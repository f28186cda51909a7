#include "etichette/logic/Driver.h"

#include <algorithm>
#include <cmath>

namespace zuvora {
namespace {

struct Opzione {
    QByteArray nome;
    QByteArrayList valori;
};

// The word up to a colon, slash or blank.
QByteArray parola(const QByteArray &testo) {
    const auto fine = std::find_if(testo.begin(), testo.end(), [](char c) { return c == ':' || c == '/' || c == ' '; });
    return testo.left(fine - testo.begin());
}

QList<Opzione> opzioniIn(const QByteArray &ppd) {
    QList<Opzione> opzioni;
    for (const QByteArray &grezza : ppd.split('\n')) {
        const QByteArray riga = grezza.simplified();
        if (riga.startsWith("*OpenUI *"))
            opzioni << Opzione{parola(riga.mid(9)), {}};
        else if (!opzioni.isEmpty() && riga.startsWith('*' + opzioni.last().nome + ' '))
            opzioni.last().valori << parola(riga.mid(opzioni.last().nome.size() + 2));
    }
    return opzioni;
}

bool nega(const QByteArray &valore) {
    const QByteArray v = valore.toLower();
    return v.startsWith("no") || v.startsWith('0') || v == "off" || v == "false";
}

// A cut after each page comes before one after the whole job.
std::pair<QByteArray, QByteArray> taglio(const QList<Opzione> &opzioni) {
    std::pair<QByteArray, QByteArray> scelto;
    for (const bool ogniPagina : {true, false})
        for (const Opzione &o : opzioni)
            for (const QByteArray &valore : o.valori)
                if (scelto.first.isEmpty() && o.nome.toLower().contains("cut") && !nega(valore) &&
                    (!ogniPagina || (o.nome + valore).toLower().contains("page")))
                    scelto = {o.nome, valore};
    return scelto;
}

// The five degrees over all that the driver has; its -1 stands for the printer's own setting.
std::pair<QByteArray, QByteArray> scurezza(const QList<Opzione> &opzioni, int grado) {
    for (const Opzione &o : opzioni) {
        const QByteArray nome = o.nome.toLower();
        QByteArrayList numeri;
        for (const QByteArray &valore : o.valori) {
            bool riuscito = false;
            if (valore.toInt(&riuscito) != -1 && riuscito)
                numeri << valore;
        }
        if (numeri.isEmpty() || !(nome.contains("darkness") || nome.contains("density")))
            continue;
        std::sort(numeri.begin(), numeri.end(), [](auto &a, auto &b) { return a.toInt() < b.toInt(); });
        return {o.nome, numeri[std::lround((grado - 1) / 4.0 * double(numeri.size() - 1))]};
    }
    return {};
}

QByteArray millimetri(int decimi) {
    return QByteArray::number(decimi / 10.0, 'g', 6);
}

} // namespace

QList<std::pair<QByteArray, QByteArray>> opzioniDriver(const QByteArray &ppd, const Stampa &stampa,
                                                       const QSize &carta) {
    const QList<Opzione> opzioni = opzioniIn(ppd);
    QList<std::pair<QByteArray, QByteArray>> scelte;
    if (ppd.contains("*CustomPageSize True"))
        scelte.append({"media", "Custom." + millimetri(carta.width()) + 'x' + millimetri(carta.height()) + "mm"});
    if (stampa.taglia)
        scelte << taglio(opzioni);
    if (stampa.scurezza > 0)
        scelte << scurezza(opzioni, stampa.scurezza);
    scelte.removeIf([](const auto &scelta) { return scelta.first.isEmpty(); });
    return scelte;
}

} // namespace zuvora
