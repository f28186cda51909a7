#include "calling/logic/Servizi.h"

#include "shell/store/Data.h"
#include "shell/store/Riga.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QStringView NomeLibero = u"Nessun Servizio";

// On the current record. A write that fails leaves nothing pending: what is read next is what is stored.
void scrivi(Recordset &servizi, const QList<Assegno> &valori) {
    servizi.Edit();
    try {
        for (const auto &[colonna, valore] : valori)
            servizi[colonna].SetValue(valore);
        servizi.Update();
    } catch (...) {
        servizi.CancelUpdate();
        throw;
    }
}

} // namespace

bool eLibero(QStringView servizio) {
    return servizio.toString().toUpper() == NomeLibero.toString().toUpper();
}

int contaAttivi(Data &dato, const QString &cartella) {
    Recordset &attivi = apri(dato, cartella, SorgenteAttivi.toString());
    if (attivi.RecordCount() == 0)
        return 0;
    attivi.MoveLast();
    return attivi.RecordCount();
}

bool scambiaStato(Recordset &servizi) {
    if (eLibero(testoDi(servizi[u"Servizio"].Value(), {})))
        return false;
    const bool attivo = eVero(servizi[u"ServizioAttivo"].Value());
    scrivi(servizi, {{u"ServizioAttivo", !attivo}});
    return true;
}

void scriviServizio(Recordset &servizi, const QString &nome, bool attivo) {
    scrivi(servizi, {{u"Servizio", nome}, {u"ServizioAttivo", attivo}});
}

void liberaServizio(Recordset &servizi) {
    scrivi(servizi, {{u"Servizio", NomeLibero.toString()}, {u"Percorsofoto", u""_s}, {u"ServizioAttivo", false}});
}

} // namespace zuvora
