#include "designer/logic/ScritturaLayout.h"

#include "designer/logic/Righe.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double larghezzaMeteo = 6760;
constexpr double altezzaMeteo = 5055;

// True when storing the second value over the first changes nothing. Numbers are stored in single precision.
bool uguali(const Valore &prima, const Valore &dopo) {
    if (eNull(prima) || eNull(dopo))
        return eNull(prima) && eNull(dopo);
    if (dopo.typeId() == QMetaType::Bool)
        return eVero(prima) == eVero(dopo);
    if (dopo.typeId() == QMetaType::QString)
        return testoDi(prima, {}) == dopo.toString();
    return prima.typeId() != QMetaType::QString && prima.toFloat() == dopo.toFloat();
}

// Stores a value in the open row; true when it is another than before.
bool memorizza(Recordset &rs, QStringView colonna, const Valore &v) {
    const bool cambia = !uguali(rs[colonna].Value(), v);
    rs[colonna].SetValue(v);
    return cambia;
}

void annulla(Recordset &rs) {
    try {
        rs.CancelUpdate();
    } catch (const EngineError &) {
        // The failure that brought us here is the one to tell.
    }
}

// The one walk that writes: each row of the target is opened, filled by `riempi` (true when that changes
// it) and stored by itself, as long as `continua` says that there is something to fill it with.
template <typename Continua, typename Riempi, typename Avanza>
EsitoScrittura percorri(Recordset &rs, Continua continua, Riempi riempi, Avanza avanza) {
    EsitoScrittura esito;
    try {
        if (rs.RecordCount() > 0)
            rs.MoveFirst();
        for (int posto = 0; posto < righeLayout && !rs.Eof() && continua(); ++posto) {
            esito.raggiunta = posto + 1;
            rs.Edit();
            const bool cambia = riempi(posto);
            rs.Update();
            ++esito.scritte;
            esito.cambiate += cambia ? 1 : 0;
            rs.MoveNext();
            avanza();
        }
    } catch (const EngineError &errore) {
        annulla(rs);
        esito.errore = errore.frase();
    }
    return esito;
}

EsitoScrittura trasferisci(Recordset &sorgente, Recordset &destinazione, bool nascondi) {
    EsitoScrittura esito;
    try {
        if (sorgente.RecordCount() > 0)
            sorgente.MoveFirst();
    } catch (const EngineError &errore) {
        esito.errore = errore.frase();
        return esito;
    }
    const auto riempi = [&](int) {
        bool cambia = false;
        for (int c = 0; c < colonneLayout; ++c) {
            const auto colonna = static_cast<ColonnaLayout>(c);
            const bool spegni = nascondi && colonna == ColonnaLayout::Visibile;
            const QStringView nome = nomeColonna(colonna);
            cambia |= memorizza(destinazione, nome, spegni ? Valore(false) : sorgente[nome].Value());
        }
        return cambia;
    };
    return percorri(
        destinazione, [&] { return !sorgente.Eof(); }, riempi, [&] { sorgente.MoveNext(); });
}

} // namespace

EsitoScrittura scriviLayout(Recordset &rs, DisplayLayout &layout) {
    LayoutElement &meteo = layout.elemento(TipoElemento::WB1);
    meteo.area.height = altezzaMeteo;
    meteo.area.width = larghezzaMeteo;
    const auto riempi = [&](int posto) {
        bool cambia = false;
        for (const ColonnaLayout c : righe()[static_cast<std::size_t>(posto)].scritte)
            cambia |= memorizza(rs, nomeColonna(c), valoreDi(layout, posto, c));
        return cambia;
    };
    return percorri(
        rs, [] { return true; }, riempi, [] {});
}

EsitoScrittura SalvaLayout(DisplayLayout &layout, const QString &cartella) {
    try {
        Data dato;
        dato.limite = righeLayout;
        return scriviLayout(apri(dato, cartella, layout.NomeTabella()), layout);
    } catch (const EngineError &errore) {
        EsitoScrittura esito;
        esito.errore = errore.frase();
        return esito;
    }
}

Messaggio messaggioSalva(const EsitoScrittura &esito) {
    if (esito.completo())
        return {u"Memorizzazione effettuata !"_s, {}};
    return messaggioIncompleto(u"Memorizzazione", esito);
}

EsitoScrittura copiaRighe(Recordset &sorgente, Recordset &destinazione) {
    return trasferisci(sorgente, destinazione, false);
}

EsitoScrittura cancellaRighe(Recordset &base, Recordset &destinazione) {
    return trasferisci(base, destinazione, true);
}

Messaggio messaggioIncompleto(QStringView azione, const EsitoScrittura &esito) {
    if (esito.riuscito())
        return {u"%1 incompleta: scritte %2 righe su %3."_s.arg(azione).arg(esito.scritte).arg(righeLayout),
                u"La tabella non ha tutte le sue righe."_s};
    if (esito.scritte == 0)
        return {u"%1 non effettuata !"_s.arg(azione), esito.errore};
    return {u"%1 interrotta alla riga %2 di %3."_s.arg(azione).arg(esito.raggiunta).arg(righeLayout),
            u"Righe cambiate: %1. %2"_s.arg(esito.cambiate).arg(esito.errore)};
}

} // namespace zuvora
