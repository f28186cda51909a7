#include "etichette/logic/FileEtichetta.h"

#include "shell/logic/FileAtomico.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QLatin1StringView programma{"zuvora-biglietto"};
constexpr int misuraMassima = 100000; // ten metres

template <class T> struct Parola {
    T valore;
    QLatin1StringView parola;
};
constexpr Parola<TipoOggetto> tipi[] = {{TipoOggetto::Testo, "testo"_L1},
                                        {TipoOggetto::Codice, "codice"_L1},
                                        {TipoOggetto::Immagine, "immagine"_L1},
                                        {TipoOggetto::Linea, "linea"_L1},
                                        {TipoOggetto::Cornice, "cornice"_L1}};
constexpr Parola<Simbologia> simbologie[] = {
    {Simbologia::Code128, "code128"_L1}, {Simbologia::Code39, "code39"_L1}, {Simbologia::Ean13, "ean13"_L1},
    {Simbologia::Itf, "itf"_L1},         {Simbologia::Qr, "qr"_L1},         {Simbologia::DataMatrix, "datamatrix"_L1}};
constexpr Parola<RiduzioneColori> riduzioni[] = {{RiduzioneColori::Colori, "colori"_L1},
                                                 {RiduzioneColori::Soglia, "soglia"_L1},
                                                 {RiduzioneColori::Retino, "retino"_L1}};
constexpr Parola<Lato> lati[] = {{Lato::Inizio, "inizio"_L1}, {Lato::Centro, "centro"_L1}, {Lato::Fine, "fine"_L1}};

template <class T, std::size_t n> QString parolaDi(const Parola<T> (&tavola)[n], T valore) {
    for (const auto &p : tavola)
        if (p.valore == valore)
            return p.parola;
    return {};
}
template <class T, std::size_t n> std::optional<T> valoreDi(const Parola<T> (&tavola)[n], const QJsonValue &parola) {
    for (const auto &p : tavola)
        if (parola.toString() == p.parola)
            return p.valore;
    return std::nullopt;
}

// Takes the known members out of an object; what remains is unknown.
class Lettore {
public:
    explicit Lettore(QJsonObject oggetto) : m_oggetto(std::move(oggetto)) {}
    QJsonValue prendi(QLatin1StringView nome) { return m_oggetto.take(nome); }
    int intero(QLatin1StringView nome, int altrimenti, int minimo, int massimo) {
        return std::clamp(static_cast<int>(std::lround(std::clamp(prendi(nome).toDouble(altrimenti), -1e8, 1e8))),
                          minimo, massimo);
    }
    int lunghezza(QLatin1StringView nome, int altrimenti = 0) {
        return intero(nome, altrimenti, -misuraMassima, misuraMassima);
    }
    bool vero(QLatin1StringView nome, bool altrimenti) { return prendi(nome).toBool(altrimenti); }
    template <class T, std::size_t n> T parola(QLatin1StringView nome, const Parola<T> (&tavola)[n], T altrimenti) {
        return valoreDi(tavola, prendi(nome)).value_or(altrimenti);
    }
    QJsonObject resto() const { return m_oggetto; }

private:
    QJsonObject m_oggetto;
};

QJsonObject inJson(const Oggetto &o) {
    QJsonObject j = o.ignoti;
    j["tipo"_L1] = parolaDi(tipi, o.tipo);
    j["x"_L1] = o.area.x();
    j["y"_L1] = o.area.y();
    j["larghezza"_L1] = o.area.width();
    j["altezza"_L1] = o.area.height();
    j["rotazione"_L1] = o.rotazione;
    j["bloccato"_L1] = o.bloccato;
    if (!o.condizione.variabile.isEmpty()) {
        j["seVariabile"_L1] = o.condizione.variabile;
        j["seVuota"_L1] = o.condizione.seVuota;
    }
    if (o.tipo == TipoOggetto::Testo || o.tipo == TipoOggetto::Codice)
        j["testo"_L1] = o.testo;
    if (o.tipo == TipoOggetto::Testo) {
        j["font"_L1] = o.stile.famiglia;
        j["punti"_L1] = o.stile.punti;
        j["grassetto"_L1] = o.stile.grassetto;
        j["corsivo"_L1] = o.stile.corsivo;
        j["sottolineato"_L1] = o.stile.sottolineato;
        j["orizzontale"_L1] = parolaDi(lati, o.stile.orizzontale);
        j["verticale"_L1] = parolaDi(lati, o.stile.verticale);
        j["aCapo"_L1] = o.stile.aCapo;
        j["riduci"_L1] = o.stile.riduci;
        j["cresce"_L1] = o.stile.cresce;
    }
    if (o.tipo == TipoOggetto::Codice) {
        j["codice"_L1] = parolaDi(simbologie, o.simbologia);
        j["leggibile"_L1] = o.leggibile;
    }
    if (o.tipo == TipoOggetto::Immagine) {
        j["dati"_L1] = QString::fromLatin1(o.immagine.toBase64());
        j["colori"_L1] = parolaDi(riduzioni, o.riduzione);
        j["soglia"_L1] = o.soglia;
    }
    if (o.tipo == TipoOggetto::Linea || o.tipo == TipoOggetto::Cornice)
        j["spessore"_L1] = o.spessore;
    if (o.tipo == TipoOggetto::Cornice) {
        j["raggio"_L1] = o.raggio;
        j["pieno"_L1] = o.pieno;
    }
    return j;
}

void leggiStile(Lettore &l, StileTesto &s) {
    s.famiglia = l.prendi("font"_L1).toString(s.famiglia);
    s.punti = std::clamp(l.prendi("punti"_L1).toDouble(s.punti), 1.0, 999.0);
    s.grassetto = l.vero("grassetto"_L1, s.grassetto);
    s.corsivo = l.vero("corsivo"_L1, s.corsivo);
    s.sottolineato = l.vero("sottolineato"_L1, s.sottolineato);
    s.orizzontale = l.parola("orizzontale"_L1, lati, s.orizzontale);
    s.verticale = l.parola("verticale"_L1, lati, s.verticale);
    s.aCapo = l.vero("aCapo"_L1, s.aCapo);
    s.riduci = l.vero("riduci"_L1, s.riduci);
    s.cresce = l.vero("cresce"_L1, s.cresce);
}

// Nothing for an object of a kind that this version doesn't know.
std::optional<Oggetto> oggettoDa(const QJsonObject &json) {
    Lettore l(json);
    const auto tipo = valoreDi(tipi, l.prendi("tipo"_L1));
    if (!tipo)
        return std::nullopt;
    Oggetto o;
    o.tipo = *tipo;
    const QPoint angolo(l.lunghezza("x"_L1), l.lunghezza("y"_L1));
    o.area = QRect(angolo,
                   QSize(l.intero("larghezza"_L1, 0, 0, misuraMassima), l.intero("altezza"_L1, 0, 0, misuraMassima)));
    o.rotazione = l.intero("rotazione"_L1, 0, 0, 270) / 90 * 90;
    o.bloccato = l.vero("bloccato"_L1, false);
    o.condizione = {l.prendi("seVariabile"_L1).toString(), l.vero("seVuota"_L1, false)};
    o.testo = l.prendi("testo"_L1).toString();
    leggiStile(l, o.stile);
    o.simbologia = l.parola("codice"_L1, simbologie, o.simbologia);
    o.leggibile = l.vero("leggibile"_L1, o.leggibile);
    o.immagine = QByteArray::fromBase64(l.prendi("dati"_L1).toString().toLatin1());
    if (o.immagine.size() > immagineMassima)
        o.immagine.clear();
    o.riduzione = l.parola("colori"_L1, riduzioni, o.riduzione);
    o.soglia = l.intero("soglia"_L1, o.soglia, 0, 255);
    o.spessore = l.intero("spessore"_L1, o.spessore, 1, 500);
    o.raggio = l.intero("raggio"_L1, o.raggio, 0, 5000);
    o.pieno = l.vero("pieno"_L1, o.pieno);
    o.ignoti = l.resto();
    return o;
}

QJsonObject inJson(const Carta &c, QJsonObject j) {
    j["larghezza"_L1] = c.larghezza;
    j["altezza"_L1] = c.altezza;
    j["cresce"_L1] = c.cresce;
    j["margineSinistro"_L1] = c.margini.left();
    j["margineAlto"_L1] = c.margini.top();
    j["margineDestro"_L1] = c.margini.right();
    j["margineBasso"_L1] = c.margini.bottom();
    j["dpi"_L1] = c.dpi;
    return j;
}

Carta cartaDa(Lettore &l) {
    Carta c;
    c.larghezza = l.intero("larghezza"_L1, c.larghezza, 100, 10000);
    c.altezza = l.intero("altezza"_L1, c.altezza, 100, 30000);
    c.cresce = l.vero("cresce"_L1, c.cresce);
    const int sinistro = l.intero("margineSinistro"_L1, 30, 0, 2000);
    const int alto = l.intero("margineAlto"_L1, 30, 0, 2000);
    const int destro = l.intero("margineDestro"_L1, 30, 0, 2000);
    c.margini = QMargins(sinistro, alto, destro, l.intero("margineBasso"_L1, 30, 0, 2000));
    c.dpi = l.intero("dpi"_L1, c.dpi, 72, 1200);
    return c;
}

QJsonObject inJson(const QMap<QString, QPoint> &scostamenti) {
    QJsonObject j;
    for (auto s = scostamenti.begin(); s != scostamenti.end(); ++s)
        j[s.key()] = QJsonObject{{"x"_L1, s->x()}, {"y"_L1, s->y()}};
    return j;
}

QMap<QString, QPoint> scostamentiDa(const QJsonObject &json) {
    QMap<QString, QPoint> scostamenti;
    for (auto j = json.begin(); j != json.end(); ++j) {
        Lettore l(j->toObject());
        const int x = l.intero("x"_L1, 0, -1000, 1000);
        scostamenti[j.key()] = QPoint(x, l.intero("y"_L1, 0, -1000, 1000));
    }
    return scostamenti;
}

EtichettaLetta rifiuta(const QString &motivo) {
    return {std::nullopt, motivo};
}

} // namespace

QByteArray testoEtichetta(const Etichetta &e) {
    QJsonObject j = e.ignoti;
    j["programma"_L1] = QString(programma);
    j["versione"_L1] = versioneEtichetta;
    j["carta"_L1] = inJson(e.carta, j["carta"_L1].toObject());
    QJsonObject stampa = j["stampa"_L1].toObject();
    stampa["copie"_L1] = e.stampa.copie;
    stampa["taglia"_L1] = e.stampa.taglia;
    stampa["scurezza"_L1] = e.stampa.scurezza;
    j["stampa"_L1] = stampa;
    j["scostamenti"_L1] = inJson(e.scostamenti);
    QJsonArray oggetti;
    for (const Oggetto &o : e.oggetti)
        oggetti << inJson(o);
    j["oggetti"_L1] = oggetti;
    return QJsonDocument(j).toJson();
}

EtichettaLetta etichettaDa(const QByteArray &testo) {
    QJsonParseError errore;
    const QJsonDocument documento = QJsonDocument::fromJson(testo, &errore);
    if (errore.error != QJsonParseError::NoError || !documento.isObject())
        return rifiuta(u"Il file non è un biglietto di questo programma, o è danneggiato."_s);
    Lettore l(documento.object());
    if (l.prendi("programma"_L1).toString() != programma)
        return rifiuta(u"Il file non è un biglietto di questo programma."_s);
    const QJsonValue versione = l.prendi("versione"_L1);
    if (!versione.isDouble() || versione.toInt(0) < 1)
        return rifiuta(u"Il biglietto non dice di che versione è."_s);
    if (versione.toInt() > versioneEtichetta)
        return rifiuta(u"Il biglietto è stato fatto con una versione più recente del programma."_s);
    Etichetta e;
    Lettore carta(l.prendi("carta"_L1).toObject());
    e.carta = cartaDa(carta);
    Lettore stampa(l.prendi("stampa"_L1).toObject());
    e.stampa.copie = stampa.intero("copie"_L1, 1, 1, 99);
    e.stampa.taglia = stampa.vero("taglia"_L1, false);
    e.stampa.scurezza = stampa.intero("scurezza"_L1, 0, 0, 5);
    e.scostamenti = scostamentiDa(l.prendi("scostamenti"_L1).toObject());
    const QJsonArray oggetti = l.prendi("oggetti"_L1).toArray();
    if (oggetti.size() > oggettiMassimi)
        return rifiuta(u"Il biglietto ha più di %1 oggetti."_s.arg(oggettiMassimi));
    for (const auto &json : oggetti) {
        const auto oggetto = oggettoDa(json.toObject());
        if (!oggetto)
            return rifiuta(u"Il biglietto contiene oggetti che questa versione del programma non conosce."_s);
        e.oggetti << *oggetto;
    }
    e.ignoti = l.resto();
    if (!carta.resto().isEmpty())
        e.ignoti["carta"_L1] = carta.resto();
    if (!stampa.resto().isEmpty())
        e.ignoti["stampa"_L1] = stampa.resto();
    return {e, {}};
}

EtichettaLetta leggiEtichetta(const QString &percorso) {
    const FileLetto letto = leggiFile(percorso, fileEtichettaMassimo);
    return letto.motivo.isEmpty() ? etichettaDa(letto.contenuto) : rifiuta(letto.motivo);
}

QString scriviEtichetta(const QString &percorso, const Etichetta &etichetta) {
    const QByteArray testo = testoEtichetta(etichetta);
    if (testo.size() > fileEtichettaMassimo) // it could not be read again
        return u"Il biglietto è troppo grande (%1, al massimo %2): togliere qualche immagine."_s.arg(
            misuraFile(testo.size()), misuraFile(fileEtichettaMassimo));
    return scriviFile(percorso, testo);
}

} // namespace zuvora
