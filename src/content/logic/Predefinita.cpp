#include "content/logic/Predefinita.h"

#include "content/logic/Playlist.h"
#include "shell/logic/Numeri.h"
#include "shell/store/Riga.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr double millisecondiSecondo = 1000;
constexpr double massimoSecondi = 60;

} // namespace

Predefinibile predefinibile(const TipoPlaylist &tipo, const QString &percorso) {
    if (percorso.isEmpty())
        return Predefinibile::No;
    const bool lunga = percorso.size() > massimoPercorsoPlaylist;
    if (lunga && tipo.primaLunghezza)
        return Predefinibile::TroppoLunga;
    if (!haEstensione(tipo, percorso))
        return Predefinibile::No;
    return lunga ? Predefinibile::TroppoLunga : Predefinibile::Si;
}

void salvaPredefinita(const QString &cartella, const TipoPlaylist &tipo, const QString &percorso,
                      std::optional<double> tempo) {
    QList<Assegno> valori{{tipo.colonna, percorso}};
    if (tempo)
        valori.append({u"tempo", std::floor(*tempo)});
    scriviRiga(cartella, u"Configurazione"_s, valori);
}

QString secondiDaTempo(const Valore &tempo) {
    const auto millisecondi = numeroDi(tempo);
    return millisecondi ? testoDi(*millisecondi / millisecondiSecondo, {}).replace(u'.', u',') : u"0"_s;
}

std::optional<double> tempoDaSecondi(const QString &secondi) {
    const double valore = numeroDi(secondi).value_or(0);
    if (valore <= 0 || valore > massimoSecondi)
        return std::nullopt;
    return valore * millisecondiSecondo;
}

QString leggiSecondi(const QString &cartella) {
    return secondiDaTempo(leggiRiga(cartella, u"Configurazione"_s)[u"tempo"]);
}

} // namespace zuvora
