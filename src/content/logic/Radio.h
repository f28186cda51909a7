#pragma once

#include "shell/store/Recordset.h"

#include <QString>
#include <QStringView>
#include <optional>

namespace zuvora {

// The table radio: internet stations under their names.
inline constexpr QStringView elencoRadio = u"Select * from radio order by [NomeRadio]";

struct VoceRadio {
    QString NomeRadio;
    QString PercorsoURL;
};

// True when the name may not be saved: a station has it already. Case doesn't count and an apostrophe matches any
// character. `propria` is the name of the station being changed; nothing for a new one.
bool radioPresente(const QString &cartella, const QString &nome, const std::optional<QString> &propria);
// Adds the station, or changes the current record.
void salvaRadio(Recordset &elenco, const VoceRadio &voce, bool nuova);

} // namespace zuvora
