#include "Paesaggi.h"

#include "Tracciato.h"

#include <cmath>
#include <initializer_list>
#include <numbers>

namespace zuvora::disegna {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QRgb bianco = 0xffffffff;

// A ridge over the width of the picture: heights, as parts of the picture's height, that a smooth line goes through.
struct Profilo {
    std::initializer_list<double> quote;
    QRgb alto;
    QRgb basso;
};

struct Scena {
    QStringView file;
    QRgb cielo;
    QRgb orizzonte;
    QPointF sole; // parts of width and height
    QRgb luce;
    std::initializer_list<Profilo> profili;
    bool mare;
};

const Scena scene[]{
    {u"colline_toscane.jpg",
     0xff6fb1e4,
     0xfff7ead0,
     {0.76, 0.24},
     0xfffff3c4,
     {{{0.58, 0.50, 0.55, 0.47, 0.53, 0.49}, 0xff9db7c6, 0xffb9cbb8},
      {{0.66, 0.60, 0.68, 0.61, 0.57, 0.63}, 0xff8fb274, 0xffa9c487},
      {{0.72, 0.79, 0.70, 0.76, 0.80, 0.71}, 0xffc9b458, 0xffb79c46},
      {{0.90, 0.83, 0.88, 0.92, 0.84, 0.89}, 0xff5f8a45, 0xff3f6a33}},
     false},
    {u"monti_al_mattino.jpg",
     0xff3e6ea8,
     0xfff8d9c0,
     {0.22, 0.44},
     0xfffff0d8,
     {{{0.52, 0.30, 0.46, 0.22, 0.41, 0.28, 0.50}, 0xff8598b4, 0xffb8bfcd},
      {{0.62, 0.50, 0.60, 0.42, 0.56, 0.48, 0.58}, 0xff5f7897, 0xff8a9bb0},
      {{0.76, 0.66, 0.72, 0.62, 0.70, 0.74, 0.68}, 0xff3f5e63, 0xff52756a},
      {{0.88, 0.84, 0.90, 0.82, 0.86, 0.92, 0.85}, 0xff2f5340, 0xff1f3b2d}},
     false},
    {u"mare_al_tramonto.jpg",
     0xff42508c,
     0xfff7b16b,
     {0.5, 0.55},
     0xffffe2a0,
     {{{0.56, 0.59, 0.60, 0.60, 0.60, 0.57, 0.54}, 0xff6a5878, 0xff4e4468}},
     true},
    {u"lago_e_cielo.jpg",
     0xff3f97d3,
     0xffe5f4fb,
     {0.84, 0.16},
     0xfffffbe6,
     {{{0.50, 0.40, 0.47, 0.36, 0.45, 0.52}, 0xff87a5b5, 0xffa5bfc4},
      {{0.58, 0.55, 0.57, 0.50, 0.56, 0.59}, 0xff4f8468, 0xff6b9c77}},
     true},
};

constexpr double orizzonteMare = 0.60;

// A curve through the heights, closed at the bottom edge.
QPainterPath crinale(std::initializer_list<double> quote, QSizeF m) {
    const double passo = m.width() / double(quote.size() - 1);
    QPainterPath linea;
    double x = 0;
    QPointF prima;
    for (const double quota : quote) {
        const QPointF qui{x, quota * m.height()};
        if (x == 0)
            linea.moveTo(qui);
        else
            linea.cubicTo({prima.x() + passo / 2, prima.y()}, {qui.x() - passo / 2, qui.y()}, qui);
        prima = qui;
        x += passo;
    }
    linea.lineTo(m.width(), m.height());
    linea.lineTo(0, m.height());
    linea.closeSubpath();
    return linea;
}

void cielo(QPainter &p, const Scena &s, QSizeF m) {
    p.fillRect(QRectF{{0, 0}, m}, sfumato({0, 0, m.width(), m.height() * orizzonteMare}, s.cielo, s.orizzonte));
    const QPointF centro{s.sole.x() * m.width(), s.sole.y() * m.height()};
    QRadialGradient alone{centro, m.height() * 0.5};
    alone.setColorAt(0, velato(s.luce, 0.9));
    alone.setColorAt(0.14, velato(s.luce, 0.5));
    alone.setColorAt(1, velato(s.luce, 0));
    p.fillRect(QRectF{{0, 0}, m}, alone);
    const double raggio = m.height() * 0.055;
    p.setPen(Qt::NoPen);
    p.setBrush(QColor{s.luce});
    p.drawEllipse(centro, raggio, raggio);
}

// `scarto` moves the cloud by parts of the width; what leaves on the right comes in on the left.
void nuvola(QPainter &p, QSizeF m, QPointF dove, double grande, double scarto) {
    const double giro = std::fmod(dove.x() + scarto + 0.2, 1.4) - 0.2;
    p.save();
    p.translate(giro * m.width(), dove.y() * m.height());
    p.scale(grande * m.height() / 100, grande * m.height() / 100);
    p.fillPath(tracciato(u"O 0 0 11 O 14 -6 14 O 31 -2 11 O 43 2 7 R -12 0 62 11 5"_s), velato(bianco, 0.75));
    p.restore();
}

void mare(QPainter &p, const Scena &s, QSizeF m, double fase) {
    const QRectF acqua{0, orizzonteMare * m.height(), m.width(), m.height() * (1 - orizzonteMare)};
    p.fillRect(acqua, sfumato(acqua, misto(s.orizzonte, s.cielo, 0.45), misto(s.cielo, 0xff10304a, 0.55)));
    p.setBrush(Qt::NoBrush);
    constexpr int File = 9;
    for (int f = 0; f < File; ++f) {
        const double vicino = double(f + 1) / File;
        const double y = acqua.top() + acqua.height() * vicino * vicino * 0.96;
        const double lungo = m.width() * (0.04 + 0.10 * vicino);
        const double verso = f % 2 == 0 ? 1 : -1;
        p.setPen(QPen{velato(s.luce, 0.10 + 0.22 * vicino), 1 + 3 * vicino, Qt::SolidLine, Qt::RoundCap});
        for (double x = std::fmod(fase * verso * lungo * 2 + f * lungo * 0.7, lungo * 2) - 2 * lungo; x < m.width();
             x += lungo * 2) {
            QPainterPath onda{{x, y}};
            onda.quadTo(x + lungo / 2, y - lungo * 0.10, x + lungo, y);
            p.drawPath(onda);
        }
    }
}

void vela(QPainter &p, QSizeF m, double x, double beccheggio) {
    p.save();
    p.translate(x * m.width(), 0.70 * m.height());
    p.rotate(beccheggio);
    p.scale(m.height() / 100, m.height() / 100);
    p.fillPath(tracciato(u"M -9 0 L 9 0 L 6 4 L -6 4 Z"_s), QColor{0xff7a3b2a});
    p.fillPath(tracciato(u"M 0 -22 L 0 -2 L 9 -2 Z"_s), QColor{0xfffdf7ea});
    p.fillPath(tracciato(u"M -1 -18 L -1 -2 L -8 -2 Z"_s), QColor{0xfff1dcc0});
    p.restore();
}

// `fase` goes from 0 to 1 once through the film.
QImage paesaggio(const Scena &s, QSize misura, double fase) {
    return dipinto(misura, [&](QPainter &p) {
        const QSizeF m{misura};
        cielo(p, s, m);
        nuvola(p, m, {0.16, 0.20}, 0.55, fase * 1.4);
        nuvola(p, m, {0.50, 0.12}, 0.38, fase * 1.4);
        nuvola(p, m, {0.72, 0.33}, 0.42, fase * 1.4);
        for (const Profilo &profilo : s.profili) {
            const QPainterPath forma = crinale(profilo.quote, m);
            p.fillPath(forma, sfumato(forma.boundingRect(), profilo.alto, profilo.basso));
        }
        if (!s.mare)
            return;
        mare(p, s, m, fase * 3);
        vela(p, m, 1.3 * fase - 0.15 + (fase == 0 ? 0.45 : 0), 4 * std::sin(fase * 10 * std::numbers::pi));
    });
}

} // namespace

Disegni foto() {
    Disegni esito;
    for (const Scena &s : scene)
        esito.push_back({s.file.toString(), [&s] { return paesaggio(s, misuraFoto, 0); }});
    return esito;
}

QImage fotogramma(int numero) {
    return paesaggio(scene[2], misuraFilm, double(numero + 1) / fotogrammi);
}

} // namespace zuvora::disegna
