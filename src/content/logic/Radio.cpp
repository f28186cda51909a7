#include "content/logic/Radio.h"

#include "shell/logic/Numeri.h"
#include "shell/store/Data.h"
#include "shell/store/Scrittura.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

bool radioPresente(const QString &cartella, const QString &nome, const std::optional<QString> &propria) {
    Data Data2;
    Recordset &righe = apri(Data2, cartella, u"radio"_s);
    const QString maiuscolo = nome.toUpper();
    righe.FindFirst(u"[nomeradio]like'"_s + SostituisciApice(maiuscolo) + u"'"_s);
    if (righe.NoMatch())
        return false;
    return !propria || propria->toUpper() != maiuscolo;
}

void salvaRadio(Recordset &elenco, const VoceRadio &voce, bool nuova) {
    scriviRecord(elenco, nuova ? Record::Nuovo : Record::Corrente,
                 {{u"NomeRadio", voce.NomeRadio}, {u"PercorsoURL", voce.PercorsoURL}});
}

} // namespace zuvora
