#include "shell/disegni/Percorso.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <numbers>
#include <optional>
#include <span>

namespace zuvora {
namespace {

constexpr double limite = 100000;

// Splits the data into letters, numbers and the one-character flags of an arc.
class Lettore {
public:
    explicit Lettore(std::string_view dati) : resto(dati) {}

    // 0 at the end of the data.
    char prossimo() {
        const auto inizio = resto.find_first_not_of(" ,\t\r\n");
        resto.remove_prefix(std::min(inizio, resto.size()));
        return resto.empty() ? '\0' : resto.front();
    }

    bool numeroDavanti() {
        const char c = prossimo();
        return c == '-' || c == '+' || c == '.' || std::isdigit(static_cast<unsigned char>(c)) != 0;
    }

    void salta() { resto.remove_prefix(1); }

    std::optional<double> numero() {
        if (!numeroDavanti())
            return {};
        if (resto.front() == '+')
            salta();
        double n = 0;
        const auto [fine, esito] = std::from_chars(resto.data(), resto.data() + resto.size(), n);
        // Refuses infinity and not-a-number too, which the conversion accepts by name.
        if (esito != std::errc{} || !(std::abs(n) <= limite))
            return {};
        resto.remove_prefix(static_cast<size_t>(fine - resto.data()));
        return n;
    }

    std::optional<double> bandiera() {
        const char c = prossimo();
        if (c != '0' && c != '1')
            return {};
        salta();
        return c - '0';
    }

private:
    std::string_view resto;
};

struct Tracciato {
    QPainterPath linea;
    QPointF qui;
    QPointF inizio;

    void vaiA(QPointF p) {
        linea.lineTo(p);
        qui = p;
    }
};

// One quarter circle at most, from angle a over angle d on the unit circle, as a cubic.
std::array<QPointF, 3> quarto(double a, double d) {
    const double k = 4.0 / 3.0 * std::tan(d / 4);
    const QPointF da{std::cos(a), std::sin(a)};
    const QPointF fino{std::cos(a + d), std::sin(a + d)};
    return {da + k * QPointF{-da.y(), da.x()}, fino - k * QPointF{-fino.y(), fino.x()}, fino};
}

// Elliptical arc by its end points: brought onto the unit circle, where its centre and angles are found.
void arco(Tracciato &t, std::span<const double> n, QPointF base) {
    const QPointF fine = base + QPointF{n[5], n[6]};
    const QPointF partenza = t.qui;
    const double rx = std::abs(n[0]);
    const double ry = std::abs(n[1]);
    constexpr double piatto = 1e-4;
    if (rx < piatto || ry < piatto)
        return t.vaiA(fine);

    const QTransform dritto = QTransform{}.rotate(n[2]).scale(rx, ry);
    const QTransform inverso = dritto.inverted();
    const QPointF a = inverso.map(partenza);
    const QPointF b = inverso.map(fine);
    const QPointF mezzo = (a + b) / 2;
    const QPointF corda = b - a;
    const double lunghezza = std::hypot(corda.x(), corda.y());
    if (lunghezza < 1e-9)
        return t.vaiA(fine);
    // Radii too small for the distance grow until they just reach.
    const double crescita = std::max(1.0, lunghezza / 2);
    const double altezza = std::sqrt(std::max(0.0, crescita * crescita - lunghezza * lunghezza / 4));
    const double lato = (n[3] != 0) == (n[4] != 0) ? 1 : -1;
    const QPointF centro = mezzo + lato * altezza / lunghezza * QPointF{corda.y(), -corda.x()};

    const double inizio = std::atan2(a.y() - centro.y(), a.x() - centro.x());
    double giro = std::atan2(b.y() - centro.y(), b.x() - centro.x()) - inizio;
    constexpr double pieno = 2 * std::numbers::pi;
    if (n[4] != 0 && giro < 0)
        giro += pieno;
    if (n[4] == 0 && giro > 0)
        giro -= pieno;

    const int pezzi = static_cast<int>(std::ceil(std::abs(giro) / (std::numbers::pi / 2) - 1e-9));
    for (int i = 0; i < pezzi; ++i) {
        const auto punti = quarto(inizio + giro * i / pezzi, giro / pezzi);
        const auto posto = [&](QPointF p) { return dritto.map(centro + crescita * p); };
        t.linea.cubicTo(posto(punti[0]), posto(punti[1]), i + 1 == pezzi ? fine : posto(punti[2]));
    }
    t.qui = fine;
}

struct Comando {
    char lettera;
    size_t quanti;
    // base: the current point for the relative form, the origin for the absolute one.
    void (*esegui)(Tracciato &t, std::span<const double> n, QPointF base);
};

constexpr std::array comandi{
    Comando{'M', 2,
            [](Tracciato &t, std::span<const double> n, QPointF base) {
                t.qui = t.inizio = base + QPointF{n[0], n[1]};
                t.linea.moveTo(t.qui);
            }},
    Comando{'L', 2,
            [](Tracciato &t, std::span<const double> n, QPointF base) {
                t.vaiA(base + QPointF{n[0], n[1]});
            }},
    Comando{'H', 1,
            [](Tracciato &t, std::span<const double> n, QPointF base) {
                t.vaiA({base.x() + n[0], t.qui.y()});
            }},
    Comando{'V', 1,
            [](Tracciato &t, std::span<const double> n, QPointF base) {
                t.vaiA({t.qui.x(), base.y() + n[0]});
            }},
    Comando{'C', 6,
            [](Tracciato &t, std::span<const double> n, QPointF base) {
                t.qui = base + QPointF{n[4], n[5]};
                t.linea.cubicTo(base + QPointF{n[0], n[1]}, base + QPointF{n[2], n[3]}, t.qui);
            }},
    Comando{'Q', 4,
            [](Tracciato &t, std::span<const double> n, QPointF base) {
                t.qui = base + QPointF{n[2], n[3]};
                t.linea.quadTo(base + QPointF{n[0], n[1]}, t.qui);
            }},
    Comando{'A', 7, arco},
    Comando{'Z', 0,
            [](Tracciato &t, std::span<const double>, QPointF) {
                t.linea.closeSubpath();
                t.qui = t.inizio;
            }},
};

// Reads a letter and all its coordinates. False when something is missing or unknown.
bool passo(Lettore &l, Tracciato &t) {
    const char lettera = l.prossimo();
    const char maiuscola = static_cast<char>(std::toupper(static_cast<unsigned char>(lettera)));
    const auto *comando = std::ranges::find(comandi, maiuscola, &Comando::lettera);
    if (comando == comandi.end() || (maiuscola != 'M' && t.linea.elementCount() == 0))
        return false;
    l.salta();
    const bool relativo = lettera != maiuscola;
    do {
        std::array<double, 7> n{};
        for (size_t i = 0; i < comando->quanti; ++i) {
            const auto letto = comando->lettera == 'A' && (i == 3 || i == 4) ? l.bandiera() : l.numero();
            if (!letto)
                return false;
            n[i] = *letto;
        }
        comando->esegui(t, n, relativo ? t.qui : QPointF{});
        if (comando->lettera == 'M')
            ++comando; // further pairs after a move are lines
    } while (comando->quanti > 0 && l.numeroDavanti());
    return true;
}

} // namespace

QPainterPath leggiPercorso(std::string_view dati) {
    Lettore lettore{dati};
    Tracciato tracciato;
    while (lettore.prossimo() != '\0') {
        if (!passo(lettore, tracciato))
            return {};
    }
    return tracciato.linea;
}

} // namespace zuvora
