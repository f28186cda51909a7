#include "designer/logic/ScritturaLayout.h"

#include "designer/logic/Righe.h"
#include "designer/logic/ValoriElemento.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double larghezzaMeteo = 6760;
constexpr double altezzaMeteo = 5055;

void annulla(Recordset &rs) {
    try {
        rs.CancelUpdate();
    } catch (const EngineError &) {
        // The failure that brought us here is the one to tell.
    }
}

// The one walk that writes: each row of the target is opened, filled by `riempi` and stored by itself, as long as
// `continua` says that there is something to fill it with.
template <typename Continua, typename Riempi, typename Avanza>
EsitoScrittura percorri(Recordset &rs, Continua continua, Riempi riempi, Avanza avanza) {
    EsitoScrittura esito;
    try {
        if (rs.RecordCount() > 0)
            rs.MoveFirst();
        for (int posto = 0; posto < righeLayout && !rs.Eof() && continua(); ++posto) {
            esito.raggiunta = posto + 1;
            rs.Edit();
            riempi(posto);
            rs.Update();
            ++esito.scritte;
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
        for (int c = 0; c < colonneLayout; ++c) {
            const auto colonna = static_cast<ColonnaLayout>(c);
            const bool spegni = nascondi && colonna == ColonnaLayout::Visibile;
            const QStringView nome = nomeColonna(colonna);
            destinazione[nome].SetValue(spegni ? Valore(false) : sorgente[nome].Value());
        }
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
        for (const ColonnaLayout c : righe()[static_cast<std::size_t>(posto)].scritte)
            rs[nomeColonna(c)].SetValue(valoreDi(layout, posto, c));
    };
    return percorri(
        rs, [] { return true; }, riempi, [] {});
}

EsitoScrittura SalvaLayout(DisplayLayout &layout, const QString &cartella) {
    try {
        Data dato;
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
    if (esito.raggiunta == 0)
        return {u"%1 non effettuata !"_s.arg(azione), esito.errore};
    return {u"%1 interrotta alla riga %2 di %3."_s.arg(azione).arg(esito.raggiunta).arg(righeLayout),
            u"Righe scritte: %1. %2"_s.arg(esito.scritte).arg(esito.errore)};
}

} // namespace zuvora
