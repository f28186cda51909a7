#include "shell/disegni/Disegni.h"

#include "shell/disegni/Tavolozza.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Casella {
    Disegno simbolo;
    QStringView didascalia;
    Tinta fondo;
};

// In the order of Segnaposto.
constexpr std::array<Casella, 6> caselle{{
    {Disegno::Immagini, u"Immagini", Tinta::AccentoChiaro},
    {Disegno::Video, u"Video", Tinta::PrimarioChiaro},
    {Disegno::Meteo, u"Meteo", Tinta::PrimarioChiaro},
    {Disegno::TgOnline, u"TG Online", Tinta::EvidenzaChiara},
    {Disegno::News, u"News", Tinta::EvidenzaChiara},
    {Disegno::YouTube, u"YouTube", Tinta::Velo},
}};

const Casella &casella(Segnaposto s) {
    return caselle.at(static_cast<size_t>(s));
}

constexpr double scritturaMinima = 7; // pixels; below that a caption is only dirt

struct Posti {
    QRectF simbolo;
    QRectF scritta;
};

// Symbol above the caption, or beside it in a strip; the pair stands in the middle.
Posti disponi(const QRectF &area, double larghezzaPerAltezza) {
    const bool striscia = area.width() > 2.6 * area.height();
    if (striscia) {
        const double lato = area.height() * 0.68;
        const double riga = area.height() * 0.36;
        const double larga = std::min(riga * larghezzaPerAltezza * 1.1, area.width() - lato * 1.4);
        const double sinistra = area.center().x() - (lato * 1.25 + larga) / 2;
        return {{sinistra, area.center().y() - lato / 2, lato, lato},
                {sinistra + lato * 1.25, area.center().y() - riga / 2, larga, riga}};
    }
    const double lato = std::min(area.width(), area.height()) * 0.48;
    const double riga = lato * 0.26;
    const double alto = area.center().y() - (lato + riga * 1.3) / 2;
    const double larga = area.width() * 0.9;
    return {{area.center().x() - lato / 2, alto, lato, lato},
            {area.center().x() - larga / 2, alto + lato + riga * 0.3, larga, riga}};
}

void scrivi(QPainter &p, const QString &testo, const QRectF &posto, double larghezzaPerAltezza) {
    const double alta = std::min(posto.height(), posto.width() / larghezzaPerAltezza);
    if (alta < scritturaMinima)
        return;
    QFont carattere = p.font();
    carattere.setPixelSize(static_cast<int>(alta / 1.2));
    carattere.setBold(true);
    p.setFont(carattere);
    p.setPen(tavolozza::primario);
    p.drawText(posto, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, testo);
}

// Width of the text for a line one unit high.
double proporzione(const QFont &base, const QString &testo) {
    QFont carattere = base;
    carattere.setPixelSize(100);
    carattere.setBold(true);
    return QFontMetricsF{carattere}.horizontalAdvance(testo) / 120;
}

} // namespace

QString didascalia(Segnaposto s) {
    return casella(s).didascalia.toString();
}

void dipingiSegnaposto(QPainter &p, Segnaposto s, const QRectF &area) {
    if (!(area.width() > 0 && area.height() > 0))
        return;
    const QString testo = didascalia(s);
    p.save();
    p.setClipRect(area, Qt::IntersectClip);
    p.fillRect(area, tavolozza::colore(casella(s).fondo));
    p.setPen(QPen{tavolozza::bordo, 2});
    p.drawRect(area.adjusted(1, 1, -1, -1));
    const double rapporto = proporzione(p.font(), testo);
    const Posti posti = disponi(area, rapporto);
    dipingi(p, casella(s).simbolo, posti.simbolo);
    scrivi(p, testo, posti.scritta, rapporto);
    p.restore();
}

} // namespace zuvora
