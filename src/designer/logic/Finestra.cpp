#include "designer/logic/Finestra.h"

#include "designer/logic/NumeriSingoli.h"
#include "shell/logic/Risoluzioni.h"
#include "shell/store/Data.h"

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Dimensione telaDefinita{24525, 14115};
constexpr double scostamentoSecondoSchermo = 20; // twips

} // namespace

Dimensione dimensioneTela(int risoluzione) {
    if (risoluzione < 0 || risoluzione >= static_cast<int>(Risoluzioni.size()))
        return telaDefinita;
    const Risoluzione &r = Risoluzioni[static_cast<std::size_t>(risoluzione)];
    return {static_cast<double>(r.larghezza), static_cast<double>(r.altezza)};
}

PrimaAttivazione leggiPrimaAttivazione(const QString &cartella) {
    PrimaAttivazione esito;
    Data dato;
    if (Recordset &rs = apri(dato, cartella, u"Configurazione"_s); rs.RecordCount() > 0)
        esito.posizione = {numeroDa(rs[u"MisuraFormLeft"].Value()).value_or(0),
                           numeroDa(rs[u"MisuraFormTop"].Value()).value_or(0)};
    if (Recordset &rs = apri(dato, cartella, u"TG"_s); rs.RecordCount() > 0)
        esito.PercorsoTG = testoDi(rs[u"percorsourl"].Value(), {});
    return esito;
}

void SalvaPosizioneFinestra(const QString &cartella, PuntoTwips posizione) {
    Data dato;
    Recordset &rs = apri(dato, cartella, u"Configurazione"_s);
    rs.Edit();
    rs[u"MisuraFormLeft"].SetValue(singolo(posizione.left));
    rs[u"MisuraFormTop"].SetValue(singolo(posizione.top));
    rs.Update();
}

PuntoTwips VaiSecondoSchermo(double larghezzaSchermo) {
    return {larghezzaSchermo + scostamentoSecondoSchermo, 0};
}

} // namespace zuvora
