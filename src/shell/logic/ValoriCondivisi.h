#pragma once

#include <QString>
#include <array>

namespace zuvora {

// The answers of the two small dialogs.
inline constexpr int RispostaResta = 7;     // FormUscita "&No", MsgForm "C&hiudi"
inline constexpr int RispostaConferma = 8;  // MsgForm "&Conferma"
inline constexpr int RispostaEsci = 36;     // FormUscita "&Si"

inline constexpr int NumeroDecorazioni = 25; // indices 1 to 25 are in use, 0 holds nothing

// The few values that forms share in memory. Everything else passes through the database.
struct ValoriCondivisi {
    QString PercorsoApplicazione; // folder of the running executable, without a trailing separator
    int RispostaUscita = RispostaResta;
    int RispostaMessaggio = RispostaResta;
    QString LayoutCorrente; // table name of the layout being edited
    QString PercorsoTG;     // address of the news source
    std::array<QString, NumeroDecorazioni + 1> PercorsiDecorazione;
    std::array<QString, NumeroDecorazioni + 1> PianiDecorazione; // "avanti" or "dietro"
};

} // namespace zuvora
