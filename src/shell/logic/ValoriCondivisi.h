#pragma once

#include <QString>

namespace zuvora {

// The answers of the two small dialogs.
inline constexpr int RispostaResta = 7;    // FormUscita "&No", MsgForm "C&hiudi"
inline constexpr int RispostaConferma = 8; // MsgForm "&Conferma"
inline constexpr int RispostaEsci = 36;    // FormUscita "&Si"

// The few values that forms share in memory. Everything else passes through the database.
struct ValoriCondivisi {
    QString PercorsoApplicazione; // folder of the running executable, without a trailing separator
    int RispostaUscita = RispostaResta;
    int RispostaMessaggio = RispostaResta;
    QString LayoutCorrente; // table name of the layout being edited
    QString PercorsoTG;     // address of the news source
};

} // namespace zuvora
