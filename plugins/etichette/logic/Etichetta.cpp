#include "etichette/logic/Etichetta.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

Carta rotolo(int larghezza, int altezza, bool cresce) {
    return {larghezza, altezza, cresce, QMargins(30, 30, 30, 50), 203};
}

Carta foglietto(int larghezza, int altezza) {
    return {larghezza, altezza, false, QMargins(20, 20, 20, 20), 203};
}

struct Riga {
    int top;
    int altezza;
    double punti;
    bool grassetto;
    const char16_t *testo;
};

Oggetto centrato(const Carta &carta, const Riga &riga) {
    Oggetto o;
    const QRect dentro = areaStampabile(carta);
    o.area = QRect(dentro.left(), riga.top, dentro.width(), riga.altezza);
    o.testo = QString::fromUtf16(riga.testo);
    o.stile.punti = riga.punti;
    o.stile.grassetto = riga.grassetto;
    o.stile.orizzontale = Lato::Centro;
    o.stile.verticale = Lato::Centro;
    o.stile.riduci = true;
    return o;
}

Oggetto linea(const Carta &carta, int top) {
    Oggetto o = nuovoOggetto(TipoOggetto::Linea, {});
    const QRect dentro = areaStampabile(carta);
    o.area = QRect(dentro.left(), top, dentro.width(), 0);
    return o;
}

Oggetto codice(Simbologia simbologia, const QRect &area) {
    Oggetto o = nuovoOggetto(TipoOggetto::Codice, {});
    o.simbologia = simbologia;
    o.area = area;
    o.testo = u"{Lettera}{Numero}"_s;
    return o;
}

Etichetta standard() {
    Etichetta e;
    e.carta = rotolo(800, 1000, true);
    for (const Riga &riga : std::initializer_list<Riga>{{40, 80, 14, true, u"{TitoloInstallazione}"},
                                                        {140, 80, 16, false, u"{Servizio}"},
                                                        {230, 330, 84, true, u"{Lettera}{Numero}"},
                                                        {580, 60, 11, false, u"{Data:dd/MM/yyyy}  {Ora}"},
                                                        {650, 60, 11, false, u"Persone in attesa: {PersoneInAttesa}"},
                                                        {730, 110, 11, false, u"{Messaggio}"}})
        e.oggetti << centrato(e.carta, riga);
    e.oggetti << linea(e.carta, 570) << linea(e.carta, 720);
    return e;
}

Etichetta conCodice() {
    Etichetta e = standard();
    e.oggetti << codice(Simbologia::Code128, QRect(130, 860, 540, 160));
    return e;
}

Etichetta piccolo() {
    Etichetta e;
    e.carta = rotolo(580, 600, true);
    for (const Riga &riga : std::initializer_list<Riga>{{30, 60, 11, true, u"{Servizio}"},
                                                        {100, 240, 60, true, u"{Lettera}{Numero}"},
                                                        {350, 50, 9, false, u"{Data:dd/MM/yyyy}  {Ora}"},
                                                        {410, 70, 9, false, u"{Messaggio}"}})
        e.oggetti << centrato(e.carta, riga);
    return e;
}

} // namespace

QList<Formato> formatiCarta() {
    return {{u"Rotolo 80 mm, lunghezza secondo il contenuto"_s, rotolo(800, 800, true)},
            {u"Rotolo 80 mm, lunghezza fissa"_s, rotolo(800, 1200, false)},
            {u"Rotolo 58 mm, lunghezza secondo il contenuto"_s, rotolo(580, 600, true)},
            {u"Rotolo 58 mm, lunghezza fissa"_s, rotolo(580, 900, false)},
            {u"Etichetta 50 x 30 mm"_s, foglietto(500, 300)},
            {u"Etichetta 70 x 36 mm"_s, foglietto(700, 360)},
            {u"Etichetta 100 x 50 mm"_s, foglietto(1000, 500)},
            {u"Etichetta 102 x 152 mm"_s, foglietto(1020, 1520)},
            {u"A6, 105 x 148 mm"_s, foglietto(1050, 1480)}};
}

Oggetto nuovoOggetto(TipoOggetto tipo, const QPoint &posto) {
    Oggetto o;
    o.tipo = tipo;
    switch (tipo) {
    case TipoOggetto::Testo:
        o.area = QRect(posto, QSize(400, 80));
        o.testo = u"Testo"_s;
        break;
    case TipoOggetto::Codice:
        o.area = QRect(posto, QSize(450, 150));
        o.testo = u"12345678"_s;
        break;
    case TipoOggetto::Immagine:
        o.area = QRect(posto, QSize(250, 250));
        break;
    case TipoOggetto::Linea:
        o.area = QRect(posto, QSize(400, 0));
        break;
    case TipoOggetto::Cornice:
        o.area = QRect(posto, QSize(400, 200));
        break;
    }
    return o;
}

QRect areaStampabile(const Carta &carta) {
    return QRect(0, 0, carta.larghezza, carta.altezza).marginsRemoved(carta.margini);
}

QList<ModelloPronto> modelliPronti() {
    return {{u"Biglietto standard, 80 mm"_s, standard()},
            {u"Biglietto con codice a barre, 80 mm"_s, conCodice()},
            {u"Biglietto piccolo, 58 mm"_s, piccolo()}};
}

} // namespace zuvora
