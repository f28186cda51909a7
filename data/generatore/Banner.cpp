#include "BannerForme.h"
#include "Catalogo.h"
#include "Simboli.h"

#include <array>
#include <vector>

namespace zuvora::disegna {

using namespace Qt::Literals::StringLiterals;

namespace {

using Stile = void (*)(QPainter &, const Tono &);

struct Etichetta {
    QStringView file;
    QStringView testo;
    QStringView simbolo;
    Tinta tinta;
};

constexpr std::array<Etichetta, 12> etichette{{
    {u"sportello", u"Sportello", u"sportello", Tinta::Blu},
    {u"accettazione", u"Accettazione", u"persona", Tinta::Petrolio},
    {u"informazioni", u"Informazioni", u"informazioni", Tinta::Azzurro},
    {u"prenotazioni", u"Prenotazioni", u"calendario", Tinta::Viola},
    {u"cassa", u"Cassa", u"euro", Tinta::Arancio},
    {u"ritiro_referti", u"Ritiro Referti", u"documento", Tinta::Verde},
    {u"prelievi", u"Prelievi", u"goccia", Tinta::Rosso},
    {u"ambulatorio", u"Ambulatorio", u"stetoscopio", Tinta::Blu},
    {u"radiologia", u"Radiologia", u"lastra", Tinta::Antracite},
    {u"vaccinazioni", u"Vaccinazioni", u"siringa", Tinta::Petrolio},
    {u"farmacia", u"Farmacia", u"croce_farmacia", Tinta::Verde},
    {u"pronto_soccorso", u"Pronto Soccorso", u"battito", Tinta::Rosso},
}};

struct Avviso {
    QStringView file;
    QStringView testo;
    Tinta tinta;
};

constexpr std::array<Avviso, 4> avvisi{{
    {u"benvenuti_blu", u"Benvenuti", Tinta::Blu},
    {u"avvisi_bordeaux", u"Avvisi", Tinta::Bordeaux},
    {u"novita_arancio", u"Novità", Tinta::Arancio},
    {u"attendere_il_turno_verde", u"Attendere il proprio turno", Tinta::Verde},
}};

enum class Genere { Maschile, Femminile };

// Styles without a caption; %1 is the colour's name.
struct Serie {
    QString file;
    Genere genere;
    Stile stile;
    QSize misura;
    std::vector<Tinta> tinte;
};

std::vector<Serie> serie() {
    using enum Tinta;
    using enum Genere;
    return {
        {u"nastro_%1"_s, Maschile, &nastro, misuraBanner, {Blu, Verde, Rosso, Oro}},
        {u"fascia_%1"_s, Femminile, &fascia, misuraBanner, {Blu, Verde, Petrolio, Grigio, Sabbia}},
        {u"intestazione_%1_onda"_s, Femminile, &onda, misuraBanner, {Blu, Verde, Antracite}},
        {u"linguetta_%1"_s, Femminile, &linguetta, misuraBanner, {Blu, Verde, Arancio, Grigio}},
        {u"fascia_%1_obliqua"_s, Femminile, &obliqua, misuraBanner, {Blu, Azzurro, Rosso}},
        {u"fascia_%1_a_freccia"_s, Femminile, &aFreccia, misuraBanner, {Blu, Verde}},
        {u"fascia_%1_vetro"_s, Femminile, &fasciaVetro, misuraBanner, {Bianco, Blu, Antracite}},
        {u"divisorio_%1"_s, Maschile, &divisorio, misuraBanner, {Blu, Oro}},
        {u"barra_%1_laterale"_s, Femminile, &barraLaterale, misuraBarra, {Blu, Verde, Grigio}},
    };
}

QImage conSimbolo(const Etichetta &e) {
    const Tono &t = tono(e.tinta);
    return dipinto(misuraBanner, [&](QPainter &p) {
        etichetta(p, t);
        disegnaSimbolo(p, e.simbolo, {51, 51, 90, 90}, misto(t.base, t.scuro, 0.3));
        p.fillPath(scritta(e.testo.toString(), {204, 14, 900, 164}, 100, Qt::AlignLeft), Qt::white);
    });
}

QImage nastroScritto(const Avviso &a) {
    return dipinto(misuraBanner, [&](QPainter &p) {
        nastro(p, tono(a.tinta));
        p.fillPath(scritta(a.testo.toString(), {160, 18, 880, 134}, 84), Qt::white);
    });
}

} // namespace

Disegni banner() {
    Disegni esito;
    for (const Etichetta &e : etichette)
        esito.push_back({u"banner_%1.png"_s.arg(e.file), [e] { return conSimbolo(e); }});
    for (const Avviso &a : avvisi)
        esito.push_back({u"nastro_%1.png"_s.arg(a.file), [a] { return nastroScritto(a); }});
    for (const Serie &s : serie())
        for (const Tinta tinta : s.tinte) {
            const Tono &t = tono(tinta);
            esito.push_back({s.file.arg(s.genere == Genere::Maschile ? t.maschile : t.femminile) + u".png"_s,
                             [stile = s.stile, misura = s.misura, tinta] {
                                 return dipinto(misura, [&](QPainter &p) { stile(p, tono(tinta)); });
                             }});
        }
    return esito;
}

} // namespace zuvora::disegna
