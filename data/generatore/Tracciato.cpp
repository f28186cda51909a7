#include "Tracciato.h"

#include <array>
#include <span>
#include <stdexcept>
#include <vector>

namespace zuvora::disegna {

namespace {

using Numeri = std::span<const double>;

struct Comando {
    QChar lettera;
    std::size_t numeri;
    void (*esegui)(QPainterPath &, Numeri);
};

constexpr std::array<Comando, 8> comandi{{
    {u'M', 2, [](QPainterPath &p, Numeri n) { p.moveTo(n[0], n[1]); }},
    {u'L', 2, [](QPainterPath &p, Numeri n) { p.lineTo(n[0], n[1]); }},
    {u'C', 6, [](QPainterPath &p, Numeri n) { p.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]); }},
    {u'Q', 4, [](QPainterPath &p, Numeri n) { p.quadTo(n[0], n[1], n[2], n[3]); }},
    {u'Z', 0, [](QPainterPath &p, Numeri) { p.closeSubpath(); }},
    {u'O', 3,
     [](QPainterPath &p, Numeri n) {
         p.addEllipse(QPointF{n[0], n[1]}, n[2], n[2]);
     }},
    {u'R', 5, [](QPainterPath &p, Numeri n) { p.addRoundedRect(n[0], n[1], n[2], n[3], n[4], n[4]); }},
    {u'A', 5,
     [](QPainterPath &p, Numeri n) {
         const QRectF cerchio{n[0] - n[2], n[1] - n[2], 2 * n[2], 2 * n[2]};
         p.arcMoveTo(cerchio, n[3]);
         p.arcTo(cerchio, n[3], n[4]);
     }},
}};

const Comando &comando(QStringView parola) {
    for (const Comando &c : comandi)
        if (parola == c.lettera)
            return c;
    throw std::invalid_argument("comando sconosciuto nel tracciato: " + parola.toString().toStdString());
}

double numero(QStringView parola) {
    bool valido = false;
    const double esito = parola.toDouble(&valido);
    if (!valido)
        throw std::invalid_argument("numero non valido nel tracciato: " + parola.toString().toStdString());
    return esito;
}

} // namespace

QPainterPath tracciato(QStringView testo) {
    QPainterPath esito;
    esito.setFillRule(Qt::WindingFill);
    const QList<QStringView> parole = testo.split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < parole.size();) {
        const Comando &c = comando(parole[i++]);
        std::vector<double> numeri;
        while (numeri.size() < c.numeri)
            numeri.push_back(numero(i < parole.size() ? parole[i++] : QStringView{}));
        c.esegui(esito, numeri);
    }
    return esito;
}

} // namespace zuvora::disegna
