#include "calling/logic/Servizi.h"

#include "shell/store/Data.h"
#include "shell/store/Scrittura.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QStringView nomeLibero = u"Nessun Servizio";

} // namespace

bool eLibero(QStringView servizio) {
    return servizio.toString().toUpper() == nomeLibero.toString().toUpper();
}

int contaAttivi(Data &dato, const QString &cartella) {
    Recordset &attivi = apri(dato, cartella, sorgenteAttivi.toString());
    if (attivi.RecordCount() == 0)
        return 0;
    attivi.MoveLast();
    return attivi.RecordCount();
}

bool scambiaStato(Recordset &servizi) {
    if (eLibero(testoDi(servizi[u"Servizio"].Value(), {})))
        return false;
    const bool attivo = eVero(servizi[u"ServizioAttivo"].Value());
    scriviRecord(servizi, Record::Corrente, {{u"ServizioAttivo", !attivo}});
    return true;
}

void scriviServizio(Recordset &servizi, const QString &nome, bool attivo) {
    scriviRecord(servizi, Record::Corrente, {{u"Servizio", nome}, {u"ServizioAttivo", attivo}});
}

void liberaServizio(Recordset &servizi) {
    scriviRecord(servizi, Record::Corrente,
                 {{u"Servizio", nomeLibero.toString()}, {u"Percorsofoto", u""_s}, {u"ServizioAttivo", false}});
}

} // namespace zuvora
