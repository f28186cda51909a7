#include "library/logic/CopiaLogica.h"

#include "shell/store/Data.h"
#include "shell/store/EngineError.h"

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pulsanteBase = 10; // L0(10)

using Percorso = EsitoScrittura (*)(Recordset &, Recordset &);

EsitoScrittura percorri(const QString &cartella, int sorgente, int destinazione, Percorso percorso) {
    try {
        Data Data1;
        Data Data2;
        Data1.limite = Data2.limite = righeLayout;
        Recordset &da = apri(Data1, cartella, tabellaLayout(sorgente));
        return percorso(da, apri(Data2, cartella, tabellaLayout(destinazione)));
    } catch (const EngineError &errore) {
        EsitoScrittura esito;
        esito.errore = errore.frase();
        return esito;
    }
}

bool eDestinazione(int numero) {
    return numero >= 1 && numero < numeroLayout;
}

EsitoCopia riferisci(const EsitoScrittura &esito, const QString &riuscita, QStringView azione) {
    if (esito.completo())
        return {true, {riuscita, {}}};
    return {false, messaggioIncompleto(azione, esito)};
}

} // namespace

int layoutSorgente(int L0) {
    return L0 == pulsanteBase ? 0 : L0 + 1;
}

int layoutDestinazione(int L1) {
    return L1 + 1;
}

EsitoCopia copiaLayout(const QString &cartella, int sorgente, int destinazione) {
    if (sorgente == destinazione)
        return {false, {u"Impossibile copiare un "_s, u"Layout su se stesso ! "_s}};
    if (!eDestinazione(destinazione) || tabellaLayout(sorgente).isEmpty())
        return {false, {u"Selezionare i Layout da copiare !"_s, {}}};
    return riferisci(percorri(cartella, sorgente, destinazione, copiaRighe), u"Copia effettuata correttamente ! "_s,
                     u"Copia");
}

EsitoCopia RipristinaLayout(const QString &cartella, const QString &numero) {
    bool ok = false;
    const int destinazione = numero.toInt(&ok);
    if (!ok || !eDestinazione(destinazione))
        return {false, {u"Cancellazione non effettuata !"_s, u"Il Layout %1 non si può cancellare."_s.arg(numero)}};
    return riferisci(percorri(cartella, 0, destinazione, cancellaRighe), u"Layout cancellato correttamente ! "_s,
                     u"Cancellazione");
}

} // namespace zuvora
