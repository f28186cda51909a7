#pragma once

#include <QString>
#include <QStringView>

namespace zuvora {

class Data;
class Recordset;

// The services of the queue: at most twenty rows, which are named, activated and freed, never added or deleted.
inline constexpr QStringView sorgenteServizi = u"Select * from Servizi order by [ID]asc";
inline constexpr QStringView sorgenteAttivi = u"Select * from Servizi where[ServizioAttivo]=true";

// The name that marks a free row, in any case.
bool eLibero(QStringView servizio);

// The number of active services in the settings database.
int contaAttivi(Data &dato, const QString &cartella);

// The next three act on the current record and throw EngineError.
// Turns a service on or off; false, and nothing written, for a free row.
bool scambiaStato(Recordset &servizi);
void scriviServizio(Recordset &servizi, const QString &nome, bool attivo);
void liberaServizio(Recordset &servizi); // the row keeps its ID

} // namespace zuvora
