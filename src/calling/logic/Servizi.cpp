#include "calling/logic/Servizi.h"

#include "shell/store/Data.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QStringView NomeLibero = u"Nessun Servizio";

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
    servizi.Edit();
    servizi[u"ServizioAttivo"].SetValue(!attivo);
    servizi.Update();
    return true;
}

void scriviServizio(Recordset &servizi, const QString &nome, bool attivo) {
    servizi.Edit();
    servizi[u"Servizio"].SetValue(nome);
    servizi[u"ServizioAttivo"].SetValue(attivo);
    servizi.Update();
}

void liberaServizio(Recordset &servizi) {
    servizi.Edit();
    servizi[u"Servizio"].SetValue(NomeLibero.toString());
    servizi[u"Percorsofoto"].SetValue(u""_s);
    servizi[u"ServizioAttivo"].SetValue(false);
    servizi.Update();
}

} // namespace zuvora
