#include "kiosk/logic/VariabiliTicket.h"

#include "shell/store/Data.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Days from 30 December 1899, the time of day as the fraction, in single precision.
QString conteggioGiorni(const QDateTime &momento) {
    const auto giorni = static_cast<double>(giornoZero().daysTo(momento.date()));
    const double frazione = momento.time().msecsSinceStartOfDay() / 86'400'000.0;
    return testoDi(static_cast<float>(giorni + frazione), {});
}

} // namespace

VariabileTicket variabileDa(const QString &nome, const QString &tipoDichiarato, const Valore &valore) {
    VariabileTicket variabile{nome, testoDi(valore, u""_s), TipoEtichetta::Testo};
    if (eNull(valore))
        return variabile;
    variabile.tipo = tipoEtichetta(tipoDichiarato, valore);
    if (variabile.tipo == TipoEtichetta::Data) {
        const auto momento = momentoDa(variabile.contenuto);
        variabile = momento ? VariabileTicket{nome, conteggioGiorni(*momento), TipoEtichetta::Data}
                            : VariabileTicket{nome, variabile.contenuto, TipoEtichetta::Testo};
    }
    return variabile;
}

QList<VariabileTicket> variabiliTicket(const QString &archivio) {
    Data Data99;
    Data99.DatabaseName = archivio;
    Data99.RecordSource = u"DatiDaStampareIMP"_s;
    Data99.Refresh();
    Recordset &righe = Data99.Recordset();
    const bool conRiga = righe.RecordCount() > 0;
    if (conRiga)
        righe.MoveFirst();
    QList<VariabileTicket> variabili;
    auto campi = righe.Fields();
    for (int i = 0; i < campi.Count(); ++i) {
        const auto campo = campi.Item(i);
        variabili << variabileDa(campo.Name(), campo.TipoDichiarato(), conRiga ? campo.Value() : Valore());
    }
    return variabili;
}

} // namespace zuvora
