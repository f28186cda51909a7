#include "etichette/biglietto/Record.h"

#include "shell/store/Data.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

std::optional<QDateTime> momentoDi(const QString &testo) {
    for (const QString &formato :
         {u"yyyy-MM-dd"_s, u"yyyy-MM-dd HH:mm"_s, u"yyyy-MM-dd HH:mm:ss"_s, u"dd/MM/yyyy"_s, u"dd/MM/yyyy HH:mm"_s})
        if (const QDateTime momento = QDateTime::fromString(testo, formato); momento.isValid())
            return momento;
    const QDateTime iso = QDateTime::fromString(testo, Qt::ISODate);
    return iso.isValid() ? std::optional(iso) : std::nullopt;
}

// Gives a text the meaning that its type has; one that it can't be read as stays a text.
Variabile conTipo(const QString &nome, TipoEtichetta tipo, const QString &testo) {
    Variabile v{nome, tipo, testo, {}, {}, {}};
    if (tipo == TipoEtichetta::Numero) {
        v.numero = numeroDi(testo);
        if (v.numero)
            v.testo.replace(u'.', u',');
    } else if (tipo == TipoEtichetta::Data) {
        v.data = momentoDi(testo);
        if (v.data)
            v.testo = v.data->toString(v.data->time() == QTime(0, 0) ? u"dd/MM/yyyy"_s : u"dd/MM/yyyy HH:mm"_s);
    } else if (tipo == TipoEtichetta::Logico && !testo.isEmpty()) {
        static const QStringList affermativi = {u"1"_s, u"-1"_s, u"true"_s, u"vero"_s, u"sì"_s, u"si"_s};
        v.vero = affermativi.contains(testo.toLower());
        v.testo = *v.vero ? u"Sì"_s : u"No"_s;
    }
    return v;
}

TipoEtichetta tipoDi(const QString &dichiarato, const Valore &valore) {
    for (const QStringView parte : {u"DATE", u"TIME"})
        if (dichiarato.contains(parte, Qt::CaseInsensitive))
            return TipoEtichetta::Data;
    if (valore.typeId() == QMetaType::Bool || dichiarato.contains(u"BOOL", Qt::CaseInsensitive))
        return TipoEtichetta::Logico;
    if (!eNull(valore) && valore.typeId() != QMetaType::QString)
        return TipoEtichetta::Numero;
    for (const QStringView parte : {u"INT", u"REAL", u"FLOA", u"DOUB", u"NUM"})
        if (dichiarato.contains(parte, Qt::CaseInsensitive))
            return TipoEtichetta::Numero;
    return TipoEtichetta::Testo;
}

Valori variabiliDi(Recordset &righe) {
    QList<Variabile> variabili;
    auto campi = righe.Fields();
    for (int i = 0; i < campi.Count(); ++i) {
        const auto campo = campi.Item(i);
        const Valore valore = righe.Eof() ? Valore() : campo.Value();
        const TipoEtichetta tipo = tipoDi(campo.TipoDichiarato(), valore);
        const bool logico = tipo == TipoEtichetta::Logico && !eNull(valore);
        variabili << conTipo(campo.Name(), tipo, logico ? (eVero(valore) ? u"1"_s : u"0"_s) : testoDi(valore, u""_s));
    }
    return Valori(variabili);
}

} // namespace

RecordLetto leggiRecord(const QString &cartellaTotem, int n) {
    Data dato;
    dato.DatabaseName = QDir(cartellaTotem).filePath(nomi::archivioTotem.toString());
    dato.RecordSource = u"Select * from [DatiDaStampareIMP]"_s;
    try {
        dato.Refresh();
        Recordset &righe = dato.Recordset();
        if (n <= righe.RecordCount())
            righe.SetAbsolutePosition(n - 1);
        RecordLetto letto{variabiliDi(righe), {}, n > righe.RecordCount() && righe.RecordCount() > 0};
        if (righe.RecordCount() == 0)
            letto.motivo = u"La tabella DatiDaStampareIMP non ha record da stampare."_s;
        else if (n > righe.RecordCount())
            letto.motivo =
                u"La tabella DatiDaStampareIMP ha %1 record: il numero %2 non c'è."_s.arg(righe.RecordCount()).arg(n);
        return letto;
    } catch (const EngineError &e) {
        return {Valori(), e.frase(), false};
    }
}

void mettiValore(Valori &valori, const QString &nome, const QString &testo) {
    const Variabile *v = valori.trova(nome);
    valori.metti(conTipo(v != nullptr ? v->nome : nome, v != nullptr ? v->tipo : TipoEtichetta::Testo, testo));
}

} // namespace zuvora
