#include "Catalogo.h"
#include "SfondiMotivi.h"
#include "Tracciato.h"

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
    int testata;    // height of the header band
    int piede;      // top of the footer band
    QRectF datario; // plate for date and time in the header
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

constexpr QRectF datarioO{1442, 10, 467, 80};
constexpr QRectF datarioV{716, 12, 304, 112};
constexpr QRectF datarioV8{716, 8, 304, 72};

constexpr QSize orizzontale{1920, 1080};
constexpr QSize verticale{1080, 1920};
constexpr std::array<Pianta, 6> piante{{
    {u"4post_", orizzontale, 104, 1008, datarioO, orizzontali4, riquadri4},
    {u"6post_", orizzontale, 104, 1008, datarioO, orizzontali6, riquadri6},
    {u"8post_", orizzontale, 104, 1008, datarioO, orizzontali8, {}},
    {u"4post_verticale", verticale, 138, 1840, datarioV, verticali4, riquadriV4},
    {u"6post_verticale", verticale, 138, 1840, datarioV, verticali6, riquadriV6},
    {u"8post_verticale", verticale, 92, 1868, datarioV8, verticali8, {}},
}};

constexpr std::array<Atmosfera, 4> atmosfere{{
    {u"grigio", 0xffe9edf0, 0xffb4bec8, 0xff46525d, 0xff8e9ca9, &fasce},
    {u"blu", 0xffe2f0fa, 0xff8fbddf, 0xff1b568f, 0xff3e97cf, &onde},
    {u"verde", 0xffe6f2e7, 0xffa3cbac, 0xff2b6844, 0xff5fa877, &foglie},
    {u"sabbia", 0xfff8f1e2, 0xffd8c49c, 0xff75613d, 0xffc9a768, &dune},
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

// Header or footer: a band with a line of the accent colour towards the middle and light falling across.
void fascia(QPainter &p, const QRectF &r, const Atmosfera &a, double filo) {
    p.fillRect(r, sfumato(r, misto(a.testata, bianco, 0.12), misto(a.testata, nero, 0.10)));
    p.save();
    p.setClipRect(r);
    for (const double quota : {0.30, 0.52, 0.58}) {
        const double x = r.left() + r.width() * quota;
        p.fillPath(tracciato(u"M %1 %2 L %3 %2 L %4 %5 L %6 %5 Z"_s.arg(x)
                                 .arg(r.top())
                                 .arg(x + r.width() * 0.16)
                                 .arg(x + r.width() * 0.16 - r.height())
                                 .arg(r.bottom())
                                 .arg(x - r.height())),
                   velato(bianco, 0.035));
    }
    p.restore();
    p.fillRect(QRectF{r.left(), filo, r.width(), 5}, QColor{a.accento});
}

// A plate with a soft shadow around it, a little larger than what will lie on it.
void posto(QPainter &p, const Pianta &pianta, const QRectF &r, const QColor &tinta) {
    const QPainterPath forma = arrotondato(r.adjusted(-3, -3, 3, 3), 7);
    QPainterPath intorno;
    intorno.addRect({{0, 0}, QSizeF{pianta.misura}});
    intorno.addPath(forma);
    p.save();
    p.setClipPath(intorno); // the plate is clear: no shadow under it
    ombra(p, forma, {0, 2}, 6, velato(nero, 0.30));
    p.restore();
    p.fillPath(forma, tinta);
    p.fillPath(anello(r.adjusted(-3, -3, 3, 3), 7, 1.5), velato(bianco, 0.80));
}

QImage sfondo(const Atmosfera &a, const Pianta &pianta) {
    return dipinto(pianta.misura, [&](QPainter &p) {
        const QRectF tutto{{0, 0}, QSizeF{pianta.misura}};
        const double testata = pianta.testata;
        const double piede = pianta.piede;
        p.fillRect(tutto, sfumato(tutto, QColor{a.alto}, QColor{a.basso}));
        a.motivo(p, {0, testata, tutto.width(), piede - testata}, a);
        fascia(p, {0, 0, tutto.width(), testata}, a, testata - 5);
        fascia(p, {0, piede, tutto.width(), tutto.height() - piede}, a, piede);
        p.fillPath(arrotondato(pianta.datario, 8), velato(nero, 0.16));
        for (const QRectF &r : pianta.riquadri)
            posto(p, pianta, r, velato(a.testata, 0.14));
        for (const QPointF &angolo : pianta.pannelli)
            posto(p, pianta, {angolo, pannello}, velato(bianco, 0.62));
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
