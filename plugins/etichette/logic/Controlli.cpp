#include "etichette/logic/Pittore.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

QString nomeDi(const Oggetto &o) {
    switch (o.tipo) {
    case TipoOggetto::Testo:
        return u"Il testo «%1»"_s.arg(o.testo.left(40).simplified());
    case TipoOggetto::Codice:
        return u"Il codice «%1»"_s.arg(o.testo.left(40).simplified());
    case TipoOggetto::Immagine:
        return u"L'immagine"_s;
    case TipoOggetto::Linea:
        return u"La linea"_s;
    case TipoOggetto::Cornice:
        return u"La cornice"_s;
    }
    return {};
}

QString dentroLaFrase(QString nome) {
    nome[0] = nome[0].toLower();
    return nome;
}

QRect spazio(const Oggetto &o) {
    return o.area.united(QRect(o.area.topLeft(), QSize(std::max(1, o.area.width()), std::max(1, o.area.height()))));
}

// Frames lie round other things and lines beside them: only contents can hide one another.
bool eContenuto(const Oggetto &o) {
    return o.tipo != TipoOggetto::Linea && o.tipo != TipoOggetto::Cornice;
}

QString fuoriPosto(const Oggetto &o, const Carta &carta) {
    const int massimo = carta.cresce ? 100000 : carta.altezza;
    if (!QRect(0, 0, carta.larghezza, massimo).contains(spazio(o)))
        return nomeDi(o) + u" esce dalla carta."_s;
    QMargins margini = carta.margini;
    if (carta.cresce)
        margini.setBottom(0);
    if (!QRect(0, 0, carta.larghezza, massimo).marginsRemoved(margini).contains(spazio(o)))
        return nomeDi(o) + u" sta nel margine, dove la stampante può non arrivare."_s;
    return {};
}

} // namespace

QStringList controlla(const Etichetta &e, const Valori &valori) {
    QStringList avvisi;
    for (qsizetype i = 0; i < e.oggetti.size(); ++i) {
        const Oggetto &o = e.oggetti[i];
        if (const QString avviso = fuoriPosto(o, e.carta); !avviso.isEmpty())
            avvisi << avviso;
        for (const QString &nome : nomiIn(o.testo))
            if (valori.trova(nome) == nullptr)
                avvisi << nomeDi(o) + u" usa la variabile «%1», che non esiste più."_s.arg(nome);
        if (!o.condizione.variabile.isEmpty() && valori.trova(o.condizione.variabile) == nullptr)
            avvisi << nomeDi(o) + u" dipende dalla variabile «%1», che non esiste più."_s.arg(o.condizione.variabile);
        for (qsizetype j = i + 1; j < e.oggetti.size(); ++j)
            if (eContenuto(o) && eContenuto(e.oggetti[j]) && spazio(o).intersects(spazio(e.oggetti[j])))
                avvisi << nomeDi(o) + u" e "_s + dentroLaFrase(nomeDi(e.oggetti[j])) + u" si sovrappongono."_s;
    }
    Pittore pittore;
    QImage prova(1, 1, QImage::Format_Mono);
    QPainter p(&prova);
    pittore.disegna(p, e, valori, Pittore::Modo::Progetto);
    return avvisi + pittore.prendiAvvisi();
}

} // namespace zuvora
