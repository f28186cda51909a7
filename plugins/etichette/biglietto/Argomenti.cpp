#include "etichette/biglietto/Argomenti.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int dpiMinimi = 36;
constexpr int dpiMassimi = 2400;

ArgomentiLetti rifiuta(const QString &errore) {
    return {std::nullopt, errore, false};
}

std::optional<int> numeroTra(const QString &testo, int minimo, int massimo) {
    bool riuscito = false;
    const int n = testo.toInt(&riuscito);
    return riuscito && n >= minimo && n <= massimo ? std::optional(n) : std::nullopt;
}

// Takes one option with its value; the reason when it can't.
QString prendi(Argomenti &a, const QString &nome, const QString &valore, int &uscite) {
    const auto esce = [&](Argomenti::Uscita uscita) {
        a.uscita = uscita;
        a.destinazione = valore;
        ++uscite;
    };
    if (nome == "--pdf"_L1) {
        esce(Argomenti::Uscita::Pdf);
    } else if (nome == "--png"_L1) {
        esce(Argomenti::Uscita::Png);
    } else if (nome == "--stampante"_L1) {
        esce(Argomenti::Uscita::Stampante);
    } else if (nome == "--record"_L1) {
        const auto n = numeroTra(valore, 1, 1000000000);
        if (!n)
            return u"--record vuole un numero da 1 in su, non «%1»."_s.arg(valore);
        a.record = *n;
    } else if (nome == "--dpi"_L1) {
        const auto n = numeroTra(valore, dpiMinimi, dpiMassimi);
        if (!n)
            return u"--dpi vuole un numero da %1 a %2, non «%3»."_s.arg(dpiMinimi).arg(dpiMassimi).arg(valore);
        a.dpi = *n;
    } else if (nome == "--valore"_L1) {
        const qsizetype uguale = valore.indexOf(u'=');
        if (uguale < 1)
            return u"--valore vuole NOME=TESTO, non «%1»."_s.arg(valore);
        a.valori.append({valore.left(uguale), valore.mid(uguale + 1)});
    } else {
        return u"Opzione sconosciuta: %1"_s.arg(nome);
    }
    return {};
}

} // namespace

ArgomentiLetti leggiArgomenti(const QStringList &parole) {
    Argomenti a;
    int uscite = 0;
    for (qsizetype i = 0; i < parole.size(); ++i) {
        const QString &parola = parole[i];
        if (parola == "--aiuto"_L1 || parola == "--help"_L1)
            return {std::nullopt, {}, true};
        if (!parola.startsWith("--"_L1)) {
            if (!a.cartella.isEmpty())
                return rifiuta(u"Una cartella sola: %1 è di troppo."_s.arg(parola));
            a.cartella = parola;
            continue;
        }
        if (i + 1 == parole.size())
            return rifiuta(u"Manca il valore di %1."_s.arg(parola));
        if (const QString errore = prendi(a, parola, parole[++i], uscite); !errore.isEmpty())
            return rifiuta(errore);
    }
    if (a.cartella.isEmpty())
        return rifiuta(u"Manca la cartella del totem."_s);
    if (uscite != 1 || a.destinazione.isEmpty())
        return rifiuta(u"Serve una sola uscita: --pdf FILE, --png FILE oppure --stampante NOME."_s);
    return {a, {}, false};
}

QString usoBiglietto() {
    return u"Uso: zuvora-biglietto CARTELLA_TOTEM [--record N] [--valore NOME=TESTO]...\n"
           "                        (--pdf FILE | --png FILE [--dpi N] | --stampante NOME)\n\n"
           "Stampa il biglietto Ticket.lbl della cartella del totem con i dati di TotemZuvora.mdb.\n\n"
           "  --record N          quale record di DatiDaStampareIMP, contando da 1 (il primo se manca)\n"
           "  --valore NOME=TESTO il contenuto di una variabile, al posto di quello del record\n"
           "  --pdf FILE          scrive un file PDF\n"
           "  --png FILE          scrive un'immagine; --dpi N la sua risoluzione (quella del biglietto se manca)\n"
           "  --stampante NOME    consegna il biglietto alla stampante\n\n"
           "Esce con 0 solo quando il file è completo o la stampante ha preso in carico il biglietto, con 1 se\n"
           "qualcosa non è riuscito, con 2 se gli argomenti non vanno bene.\n"_s;
}

} // namespace zuvora
