#include "library/logic/SceltaLogica.h"

#include "shell/logic/Numeri.h"
#include "shell/store/EngineError.h"
#include "shell/store/Scrittura.h"

#include <QStringList>
#include <cmath>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int numeroBase = 99; // qualelayout of the base

LineaLayout lineaIniziale(int linea) {
    return {nomeLinea(linea), linea == 0 ? u"&Layout di Esempio o utile per la copia"_s : QString(), true};
}

Messaggio messaggioSalvataggio(int scritte, const QString &errore) {
    if (!errore.isEmpty())
        return {u"Salvataggio interrotto alla riga %1 di %2."_s.arg(scritte + 1).arg(numeroLayout), errore};
    if (scritte == 0)
        return {u"Salvataggio non effettuato !"_s, u"La tabella delle descrizioni è vuota."_s};
    if (scritte < numeroLayout)
        return {u"Salvataggio effettuato !"_s,
                u"Scritte %1 righe su %2: la tabella non ha le altre."_s.arg(scritte).arg(numeroLayout)};
    return {u"Salvataggio effettuato !"_s, {}};
}

} // namespace

std::optional<int> lineaPredefinita(const Valore &qualelayout) {
    const auto numero = singoloDi(qualelayout);
    if (!numero || *numero != std::trunc(*numero))
        return std::nullopt;
    if (*numero == numeroBase)
        return 0;
    if (*numero < 1 || *numero >= numeroLayout)
        return std::nullopt;
    return static_cast<int>(*numero);
}

QString testoPredefinito(std::optional<int> linea) {
    return linea ? nomeLinea(*linea) : u"n.d."_s;
}

QString nomeLinea(int linea) {
    return linea == 0 ? u"Layout Base"_s : u"Layout %1"_s.arg(linea);
}

LineeLayout lineeIniziali() {
    LineeLayout linee;
    for (int i = 0; i < numeroLayout; ++i)
        linee[static_cast<std::size_t>(i)] = lineaIniziale(i);
    return linee;
}

LineeLayout leggiLinee(Recordset &descrizioni) {
    LineeLayout linee;
    linee[0] = lineaIniziale(0);
    linee[0].presente = descrizioni.RecordCount() > 0;
    if (linee[0].presente) {
        descrizioni.MoveFirst();
        descrizioni.MoveNext();
    }
    for (std::size_t i = 1; i < linee.size(); ++i) {
        LineaLayout &linea = linee[i];
        linea.presente = !descrizioni.Eof();
        if (!linea.presente)
            continue;
        linea.nome = testoDi(descrizioni[u"LayoutNome"].Value(), {});
        linea.descrizione = testoDi(descrizioni[u"LayoutDescrizione"].Value(), {});
        descrizioni.MoveNext();
    }
    return linee;
}

QString avvisoLinee(const LineeLayout &linee) {
    QStringList mancanti;
    for (int i = 0; i < numeroLayout; ++i) {
        if (!linee[static_cast<std::size_t>(i)].presente)
            mancanti.append(nomeLinea(i));
    }
    if (mancanti.isEmpty())
        return {};
    return u"Nome e descrizione non sono presenti nell'archivio, e non verranno salvati, per: %1."_s.arg(
        mancanti.join(u", "_s));
}

Messaggio salvaLinee(Recordset &descrizioni, const LineeLayout &linee) {
    int scritte = 0;
    try {
        if (descrizioni.RecordCount() > 0)
            descrizioni.MoveFirst();
        for (const LineaLayout &linea : linee) {
            if (descrizioni.Eof())
                break;
            scriviRecord(descrizioni, Record::Corrente,
                         {{u"LayoutNome"_s, linea.nome}, {u"LayoutDescrizione"_s, linea.descrizione}});
            ++scritte;
            descrizioni.MoveNext();
        }
    } catch (const EngineError &errore) {
        return messaggioSalvataggio(scritte, errore.frase());
    }
    return messaggioSalvataggio(scritte, {});
}

Valore leggiQualeLayout(Recordset &configurazione) {
    return configurazione.RecordCount() > 0 ? configurazione[u"qualelayout"].Value() : Valore();
}

EsitoPredefinito impostaPredefinito(const QString &cartella, std::optional<int> linea) {
    if (!linea)
        return {false, messaggioNessunaLinea()};
    if (*linea == 0)
        return {false, {u"Selezionare Layout 1-10 !"_s, u"Impossibile impostare ilLayout Base come Predefinito !"_s}};
    scriviRiga(cartella, u"Configurazione"_s, {{u"qualelayout"_s, qlonglong{*linea}}});
    return {true, {u"Layout Predefinito memorizzato !"_s, {}}};
}

Messaggio messaggioNessunaLinea() {
    return {u"Selezionare un Layout !"_s, {}};
}

} // namespace zuvora
