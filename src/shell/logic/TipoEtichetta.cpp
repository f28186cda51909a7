#include "shell/logic/TipoEtichetta.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

bool dichiara(const QString &tipo, std::initializer_list<QStringView> parti) {
    return std::any_of(parti.begin(), parti.end(),
                       [&](QStringView parte) { return tipo.contains(parte, Qt::CaseInsensitive); });
}

} // namespace

TipoEtichetta tipoEtichetta(const QString &tipoDichiarato, const Valore &valore) {
    if (dichiara(tipoDichiarato, {u"CURR", u"MONEY", u"DECIMAL", u"BYTE"}))
        return TipoEtichetta::Testo;
    if (dichiara(tipoDichiarato, {u"DATE", u"TIME"}))
        return TipoEtichetta::Data;
    if (eNull(valore))
        return dichiara(tipoDichiarato, {u"BOOL"})                                     ? TipoEtichetta::Logico
               : dichiara(tipoDichiarato, {u"INT", u"REAL", u"FLOA", u"DOUB", u"NUM"}) ? TipoEtichetta::Numero
                                                                                       : TipoEtichetta::Testo;
    return valore.typeId() == QMetaType::Bool      ? TipoEtichetta::Logico
           : valore.typeId() == QMetaType::QString ? TipoEtichetta::Testo
                                                   : TipoEtichetta::Numero;
}

QDate giornoZero() {
    return {1899, 12, 30};
}

std::optional<QDateTime> momentoDa(const QString &testo) {
    for (const QString &formato : {u"yyyy-MM-dd"_s, u"yyyy-MM-dd HH:mm"_s, u"yyyy-MM-dd HH:mm:ss"_s, u"dd/MM/yyyy"_s,
                                   u"dd/MM/yyyy HH:mm"_s, u"dd/MM/yyyy HH:mm:ss"_s})
        if (const QDateTime momento = QDateTime::fromString(testo, formato); momento.isValid())
            return momento;
    for (const QString &formato : {u"HH:mm"_s, u"HH:mm:ss"_s, u"HH.mm"_s})
        if (const QTime ora = QTime::fromString(testo, formato); ora.isValid())
            return QDateTime(giornoZero(), ora);
    const QDateTime iso = QDateTime::fromString(testo, Qt::ISODate);
    return iso.isValid() ? std::optional(iso) : std::nullopt;
}

} // namespace zuvora
