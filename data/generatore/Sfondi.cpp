#include "Catalogo.h"
#include "SfondiMotivi.h"

#include <array>
#include <span>

namespace zuvora::disegna {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRgb bianco = 0xffffffff;
constexpr QRgb nero = 0xff000000;
constexpr QSizeF pannello{467, 433}; // the fixed size of a call panel

// Where a background leaves room; pixels. README.md tells the same places in twips.
struct Pianta {
    QStringView nome;
    QSize misura;
    int testata; // height of the header band
    int piede;   // top of the footer band
    std::span<const QPointF> pannelli;
    std::span<const QRectF> riquadri; // for video, pictures, weather
};

constexpr QPointF orizzontali8[]{{11, 117}, {488, 117}, {965, 117}, {1442, 117},
                                 {11, 560}, {488, 560}, {965, 560}, {1442, 560}};
constexpr QPointF orizzontali6[]{{11, 117}, {488, 117}, {965, 117}, {11, 560}, {488, 560}, {965, 560}};
constexpr QRectF riquadri6[]{{1442, 117, 467, 337}, {1442, 464, 467, 529}};
constexpr QPointF orizzontali4[]{{11, 117}, {488, 117}, {11, 560}, {488, 560}};
constexpr QRectF riquadri4[]{{965, 117, 944, 529}, {965, 656, 467, 337}, {1442, 656, 467, 337}};
constexpr QPointF verticali8[]{{60, 102}, {553, 102}, {60, 543},  {553, 543},
                               {60, 984}, {553, 984}, {60, 1425}, {553, 1425}};
constexpr QPointF verticali6[]{{60, 152}, {553, 152}, {60, 595}, {553, 595}, {60, 1038}, {553, 1038}};
constexpr QRectF riquadriV6[]{{60, 1485, 467, 337}, {553, 1485, 467, 337}};
constexpr QPointF verticali4[]{{60, 706}, {553, 706}, {60, 1149}, {553, 1149}};
constexpr QRectF riquadriV4[]{{60, 152, 960, 540}, {60, 1596, 960, 230}};

constexpr QSize orizzontale{1920, 1080};
constexpr QSize verticale{1080, 1920};
constexpr std::array<Pianta, 6> piante{{
    {u"4post_", orizzontale, 104, 1008, orizzontali4, riquadri4},
    {u"6post_", orizzontale, 104, 1008, orizzontali6, riquadri6},
    {u"8post_", orizzontale, 104, 1008, orizzontali8, {}},
    {u"4post_verticale", verticale, 138, 1840, verticali4, riquadriV4},
    {u"6post_verticale", verticale, 138, 1840, verticali6, riquadriV6},
    {u"8post_verticale", verticale, 92, 1868, verticali8, {}},
}};

constexpr std::array<Atmosfera, 4> atmosfere{{
    {u"grigio", 0xfff3f5f7, 0xffd3d9df, 0xff4a5661, 0xff8794a0, &fasce},
    {u"blu", 0xffeef6fc, 0xffbcd7ec, 0xff1b568f, 0xff2f7dbb, &onde},
    {u"verde", 0xfff2f8f2, 0xffcbe1cf, 0xff2f6f48, 0xff5da273, &foglie},
    {u"sabbia", 0xfffcf8f0, 0xffeadfc8, 0xff7f6a45, 0xffc09f66, &dune},
}};

struct Scelta {
    std::size_t atmosfera;
    std::size_t pianta;
};
// All landscape plans in every mood, the portrait ones in grey and blue.
std::vector<Scelta> scelte() {
    std::vector<Scelta> esito;
    for (std::size_t a = 0; a < atmosfere.size(); ++a)
        for (std::size_t i = 0; i < (a < 2 ? piante.size() : 3); ++i)
            esito.push_back({a, i});
    return esito;
}

void fascia(QPainter &p, const QRectF &r, const Atmosfera &a, double filo) {
    p.fillRect(r, sfumato(r, misto(a.testata, bianco, 0.10), misto(a.testata, nero, 0.08)));
    p.fillRect(QRectF{r.left(), filo, r.width(), 4}, QColor{a.accento});
}

// A pale plate with a soft shadow, a little larger than what will lie on it.
void posto(QPainter &p, const Pianta &pianta, const QRectF &r, double velo) {
    const QPainterPath forma = arrotondato(r.adjusted(-4, -4, 4, 4), 8);
    ombra(p, pianta.misura, forma, {0, 2}, 6, velato(nero, 0.16));
    p.fillPath(forma, velato(bianco, velo));
}

QImage sfondo(const Atmosfera &a, const Pianta &pianta) {
    return dipinto(pianta.misura, [&](QPainter &p) {
        const QRectF tutto{QPointF{0, 0}, pianta.misura};
        p.fillRect(tutto, sfumato(tutto, QColor{a.alto}, QColor{a.basso}));
        const double piede = pianta.piede;
        a.motivo(p, {0, double(pianta.testata), tutto.width(), piede - pianta.testata}, a);
        fascia(p, {0, 0, tutto.width(), double(pianta.testata)}, a, pianta.testata - 4);
        fascia(p, {0, piede, tutto.width(), tutto.height() - piede}, a, piede);
        for (const QRectF &r : pianta.riquadri)
            posto(p, pianta, r, 0.45);
        for (const QPointF &angolo : pianta.pannelli)
            posto(p, pianta, {angolo, pannello}, 0.72);
    });
}

} // namespace

Disegni sfondi() {
    Disegni esito;
    for (const Scelta &s : scelte())
        esito.push_back({u"FH_%1_%2.jpg"_s.arg(atmosfere[s.atmosfera].nome, piante[s.pianta].nome),
                         [s] { return sfondo(atmosfere[s.atmosfera], piante[s.pianta]); }});
    return esito;
}

} // namespace zuvora::disegna
