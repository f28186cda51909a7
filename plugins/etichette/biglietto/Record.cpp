#include "etichette/biglietto/Record.h"

#include "shell/store/Data.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// Gives a text the meaning that its type has; one that it can't be read as stays a text.
Variabile conTipo(const QString &nome, TipoEtichetta tipo, const QString &testo) {
    Variabile v{nome, tipo, testo, {}, {}, {}};
    if (tipo == TipoEtichetta::Numero) {
        v.numero = numeroDi(testo);
        if (v.numero)
            v.testo.replace(u'.', u',');
    } else if (tipo == TipoEtichetta::Data) {
        v.data = momentoDa(testo);
        if (v.data)
            v.testo = testoData(*v.data);
    } else if (tipo == TipoEtichetta::Logico && !testo.isEmpty()) {
        static const QStringList affermativi = {u"1"_s, u"-1"_s, u"true"_s, u"vero"_s, u"sì"_s, u"si"_s};
        v.vero = affermativi.contains(testo.toLower());
        v.testo = *v.vero ? u"Sì"_s : u"No"_s;
    }
    return v;
}

Valori variabiliDi(Recordset &righe) {
    QList<Variabile> variabili;
    auto campi = righe.Fields();
    for (int i = 0; i < campi.Count(); ++i) {
        const auto campo = campi.Item(i);
        const Valore valore = righe.Eof() ? Valore() : campo.Value();
        const TipoEtichetta tipo = tipoEtichetta(campo.TipoDichiarato(), valore);
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
