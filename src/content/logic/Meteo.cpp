#include "content/logic/Meteo.h"

#include "shell/logic/Numeri.h"
#include "shell/store/Riga.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QString sorgenteComuni(const QString &cercato) {
    return u"select * from ComuniMeteo where [Comune] like'"_s + SostituisciApice(cercato) + u"*'"_s +
           u" order by [comune]"_s;
}

IndirizzoMeteo::IndirizzoMeteo(const QString &host)
    : m_testa(host + u"/box/previsioni.php?citta="_s),
      m_coda(u"&type=day2&width=450&ico=swf1&lang=ita&days=5&font=Arial&fontsize=12&bg=FFFFFF&fg=000000&bgtitle=0099FF"
             "&fgtitle=FFFFFF&bgtab=F0F0F0&fglink=1773C2"_s) {}

MeteoScelto leggiMeteo(const QString &cartella) {
    const auto riga = leggiRiga(cartella, u"Configurazione"_s);
    MeteoScelto scelto{std::nullopt, senzaComune.toString()};
    if (const Valore &meteo = riga[u"meteo"]; !eNull(meteo))
        scelto = {testoDi(meteo, {}), testoDi(riga[u"MeteoCode"], senzaComune.toString())};
    return scelto;
}

bool eCodiceComune(QStringView codice) {
    return Val(codice.toString()) != 0;
}

void salvaMeteo(const QString &cartella, const IndirizzoMeteo &indirizzo, const QString &codice) {
    scriviRiga(cartella, u"Configurazione"_s, {{u"meteo", indirizzo.di(codice)}, {u"MeteoCode", codice}});
}

} // namespace zuvora
