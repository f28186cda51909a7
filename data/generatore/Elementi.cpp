#include "Catalogo.h"
#include "Simboli.h"
#include "Tracciato.h"

#include <array>

namespace zuvora::disegna {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize misura{256, 256};
constexpr QRectF foglio{12, 12, 232, 232};
constexpr QRgb bianco = 0xffffffff;
constexpr double bordo = 6;

enum class Fondo {
    Tessera,  // white symbol on a rounded tile
    Disco,    // white symbol on a disc
    Divieto,  // dark symbol under a red bar
    Libero,   // the symbol alone, in the colour, with a white edge
    Coccarda, // white symbol on a cogged disc
};

struct Segno {
    QStringView file;
    QStringView simbolo;
    Fondo fondo;
    Tinta tinta;
};

constexpr std::array<Segno, 33> segni{{
    {u"sportello_blu", u"sportello", Fondo::Tessera, Tinta::Blu},
    {u"persona_azzurra", u"persona", Fondo::Tessera, Tinta::Azzurro},
    {u"sala_attesa_petrolio", u"attesa", Fondo::Tessera, Tinta::Petrolio},
    {u"informazioni_blu", u"informazioni", Fondo::Disco, Tinta::Blu},
    {u"biglietto_arancio", u"biglietto", Fondo::Tessera, Tinta::Arancio},
    {u"cassa_euro_verde", u"euro", Fondo::Disco, Tinta::Verde},
    {u"carrello_viola", u"carrello", Fondo::Tessera, Tinta::Viola},
    {u"busta_grigia", u"busta", Fondo::Tessera, Tinta::Grigio},
    {u"calendario_bordeaux", u"calendario", Fondo::Tessera, Tinta::Bordeaux},
    {u"orologio_antracite", u"orologio", Fondo::Tessera, Tinta::Antracite},
    {u"campana_arancio", u"campana", Fondo::Disco, Tinta::Arancio},
    {u"altoparlante_azzurro", u"altoparlante", Fondo::Disco, Tinta::Azzurro},
    {u"fumetto_azzurro", u"fumetto", Fondo::Libero, Tinta::Azzurro},
    {u"priorita_oro", u"stella", Fondo::Coccarda, Tinta::Oro},
    {u"accesso_disabili_blu", u"carrozzina", Fondo::Tessera, Tinta::Blu},
    {u"donna_in_gravidanza_viola", u"incinta", Fondo::Tessera, Tinta::Viola},
    {u"anziani_petrolio", u"anziano", Fondo::Tessera, Tinta::Petrolio},
    {u"bambini_arancio", u"bambino", Fondo::Tessera, Tinta::Arancio},
    {u"bagno_blu", u"bagno", Fondo::Tessera, Tinta::Blu},
    {u"ascensore_antracite", u"ascensore", Fondo::Tessera, Tinta::Antracite},
    {u"scale_antracite", u"scale", Fondo::Tessera, Tinta::Antracite},
    {u"uscita_verde", u"uscita", Fondo::Tessera, Tinta::Verde},
    {u"wifi_azzurro", u"wifi", Fondo::Disco, Tinta::Azzurro},
    {u"silenzio_blu", u"silenzio", Fondo::Tessera, Tinta::Blu},
    {u"vietato_fumare", u"sigaretta", Fondo::Divieto, Tinta::Rosso},
    {u"vietato_telefonare", u"cellulare", Fondo::Divieto, Tinta::Rosso},
    {u"croce_medica_blu", u"croce", Fondo::Libero, Tinta::Blu},
    {u"croce_farmacia_verde", u"croce_farmacia", Fondo::Libero, Tinta::Verde},
    {u"cuore_rosso", u"battito", Fondo::Libero, Tinta::Rosso},
    {u"goccia_prelievi_rossa", u"goccia", Fondo::Libero, Tinta::Rosso},
    {u"provette_petrolio", u"provetta", Fondo::Tessera, Tinta::Petrolio},
    {u"dente_azzurro", u"dente", Fondo::Tessera, Tinta::Azzurro},
    {u"occhio_verde", u"occhio", Fondo::Tessera, Tinta::Verde},
}};

QRectF interno(double lato) {
    return {128 - lato / 2, 128 - lato / 2, lato, lato};
}

QBrush fondoTono(const Tono &t) {
    return sfumato(foglio, misto(t.base, bianco, 0.10), misto(t.base, t.scuro, 0.25));
}

// A plate of the colour with a white edge and a soft shadow, so that it stands out on any background.
void piastra(QPainter &p, const QPainterPath &forma, const Tono &t) {
    ombra(p, forma, {0, 4}, 8, velato(0xff000000, 0.30));
    p.strokePath(forma, QPen{QColor{bianco}, 2 * bordo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    p.fillPath(forma, fondoTono(t));
}

QPainterPath disco(double raggio) {
    QPainterPath esito;
    esito.addEllipse(QPointF{128, 128}, raggio, raggio);
    return esito;
}

void tessera(QPainter &p, const Segno &s) {
    piastra(p, arrotondato(foglio.adjusted(bordo, bordo, -bordo, -bordo), 40), tono(s.tinta));
    disegnaSimbolo(p, s.simbolo, interno(154), bianco);
}

void suDisco(QPainter &p, const Segno &s) {
    piastra(p, disco(110), tono(s.tinta));
    disegnaSimbolo(p, s.simbolo, interno(126), bianco);
}

void coccarda(QPainter &p, const Segno &s) {
    piastra(p, stella({128, 128}, 18, 112, 98), tono(s.tinta));
    p.strokePath(disco(82), QPen{velato(bianco, 0.85), 4});
    disegnaSimbolo(p, s.simbolo, interno(110), bianco);
}

void divieto(QPainter &p, const Segno &s) {
    const Tono &t = tono(s.tinta);
    ombra(p, disco(116), {0, 4}, 8, velato(0xff000000, 0.30));
    p.fillPath(disco(116), QColor{bianco});
    disegnaSimbolo(p, s.simbolo, interno(126), QColor{tono(Tinta::Antracite).scuro});
    const QPen rosso{QColor{t.base}, 18};
    const QPainterPath sbarra = tracciato(u"M 58 58 L 198 198");
    p.strokePath(sbarra, QPen{QColor{bianco}, 28, Qt::SolidLine, Qt::FlatCap});
    p.strokePath(sbarra, rosso);
    p.strokePath(disco(100), rosso);
}

void libero(QPainter &p, const Segno &s) {
    // The symbol's own outline, in white, comes from printing it around in a ring.
    const QRectF posto = interno(206);
    QPainterPath sagoma;
    sagoma.setFillRule(Qt::WindingFill);
    for (const Strato &strato : simbolo(s.simbolo).strati)
        if (strato.mano == Mano::Pieno)
            sagoma.addPath(tracciato(strato.tracciato));
    QTransform posa;
    posa.translate(posto.left(), posto.top());
    posa.scale(posto.width() / 100, posto.height() / 100);
    const QPainterPath grande = posa.map(sagoma);
    ombra(p, grande, {0, 4}, 10, velato(0xff000000, 0.35));
    p.strokePath(grande, QPen{QColor{bianco}, 2 * bordo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    p.fillPath(grande, QColor{bianco});
    disegnaSimbolo(p, s.simbolo, posto, QColor{tono(s.tinta).base});
}

QImage segno(const Segno &s) {
    using Mano = void (*)(QPainter &, const Segno &);
    constexpr std::array<Mano, 5> mani{&tessera, &suDisco, &divieto, &libero, &coccarda};
    return dipinto(misura, [&](QPainter &p) { mani[static_cast<std::size_t>(s.fondo)](p, s); });
}

struct Direzione {
    QStringView nome;
    double gradi;
};
constexpr std::array<Direzione, 8> direzioni{{{u"destra", 0},
                                              {u"sinistra", 180},
                                              {u"su", -90},
                                              {u"giu", 90},
                                              {u"alto_destra", -45},
                                              {u"alto_sinistra", -135},
                                              {u"basso_destra", 45},
                                              {u"basso_sinistra", 135}}};

QImage freccia(double gradi, Tinta tinta) {
    QTransform giro;
    giro.translate(128, 128);
    giro.rotate(gradi);
    const QPainterPath forma = giro.map(tracciato(u"M -100 -30 L 4 -30 L 4 -82 L 106 0 L 4 82 L 4 30 L -100 30 Z"));
    return dipinto(misura, [&](QPainter &p) { piastra(p, forma, tono(tinta)); });
}

QImage numero(int quale, bool tondo) {
    const Tono &t = tono(tondo ? Tinta::Blu : Tinta::Verde);
    return dipinto(misura, [&](QPainter &p) {
        piastra(p, tondo ? disco(110) : arrotondato(foglio.adjusted(bordo, bordo, -bordo, -bordo), 30), t);
        p.fillPath(scritta(QString::number(quale), interno(150), quale < 10 ? 170 : 140), QColor{bianco});
    });
}

QImage novita() {
    return dipinto(misura, [](QPainter &p) {
        piastra(p, stella({128, 128}, 18, 112, 98), tono(Tinta::Rosso));
        p.strokePath(disco(84), QPen{velato(bianco, 0.85), 4});
        p.fillPath(scritta(u"NOVITÀ"_s, interno(146), 50), QColor{bianco});
    });
}

} // namespace

Disegni elementi() {
    Disegni esito;
    for (const Tinta tinta : {Tinta::Blu, Tinta::Verde})
        for (const Direzione &d : direzioni)
            if (tinta == Tinta::Blu || d.nome.size() < 9)
                esito.push_back({u"freccia_%1_%2.png"_s.arg(d.nome, tono(tinta).femminile),
                                 [gradi = d.gradi, tinta] { return freccia(gradi, tinta); }});
    for (const bool tondo : {true, false})
        for (int i = 1; i <= 10; ++i)
            esito.push_back(
                {u"numero_%1_%2.png"_s.arg(i, 2, 10, QChar{u'0'}).arg(tondo ? u"cerchio_blu"_s : u"quadrato_verde"_s),
                 [i, tondo] { return numero(i, tondo); }});
    for (const Segno &s : segni)
        esito.push_back({u"%1.png"_s.arg(s.file), [s] { return segno(s); }});
    esito.push_back({u"bollino_novita_rosso.png"_s, &novita});
    return esito;
}

} // namespace zuvora::disegna
