#include "kiosk/logic/VariabiliTicket.h"

#include "shell/store/Data.h"

#include <QDateTime>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Days from 30 December 1899, the time of day as the fraction, in single precision.
QString conteggioGiorni(const QDateTime &momento) {
    const auto giorni = static_cast<double>(QDate(1899, 12, 30).daysTo(momento.date()));
    const double frazione = momento.time().msecsSinceStartOfDay() / 86'400'000.0;
    return testoDi(static_cast<float>(giorni + frazione), {});
}

std::optional<QDateTime> momentoDi(const QString &testo) {
    for (const QString &formato : {u"yyyy-MM-dd"_s, u"yyyy-MM-dd HH:mm"_s, u"yyyy-MM-dd HH:mm:ss"_s,
                                   u"yyyy-MM-ddTHH:mm:ss"_s, u"HH:mm:ss"_s, u"HH:mm"_s}) {
        QDateTime momento = QDateTime::fromString(testo, formato);
        if (!momento.isValid())
            continue;
        if (!formato.startsWith(u'y'))
            momento.setDate(QDate(1899, 12, 30)); // a time alone is the fraction of day 0
        return momento;
    }
    return std::nullopt;
}

bool dichiara(const QString &tipo, std::initializer_list<QStringView> parti) {
    for (const QStringView parte : parti)
        if (tipo.contains(parte, Qt::CaseInsensitive))
            return true;
    return false;
}

} // namespace

VariabileTicket variabileDa(const QString &nome, const QString &tipoDichiarato, const Valore &valore) {
    VariabileTicket variabile{nome, testoDi(valore, u""_s), TipoEtichetta::Testo};
    if (eNull(valore) || dichiara(tipoDichiarato, {u"CURR", u"MONEY", u"DECIMAL", u"BYTE"}))
        return variabile;
    if (dichiara(tipoDichiarato, {u"DATE", u"TIME"})) {
        if (const auto momento = momentoDi(variabile.contenuto))
            return {nome, conteggioGiorni(*momento), TipoEtichetta::Data};
        return variabile;
    }
    if (valore.typeId() == QMetaType::Bool)
        variabile.tipo = TipoEtichetta::Logico;
    else if (valore.typeId() != QMetaType::QString)
        variabile.tipo = TipoEtichetta::Numero;
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
