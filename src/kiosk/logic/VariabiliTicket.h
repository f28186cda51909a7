#pragma once

#include "shell/logic/TipoEtichetta.h"
#include "shell/store/Valore.h"

#include <QList>

namespace zuvora {

struct VariabileTicket {
    QString nome;
    QString contenuto;
    TipoEtichetta tipo = TipoEtichetta::Testo;

    bool operator==(const VariabileTicket &) const = default;
};

// The variable for a column of that name and declared type, with the first record's value as sample contents. Null
// gives an empty text, whatever the column's type; an amount of money, a decimal and a byte are texts.
VariabileTicket variabileDa(const QString &nome, const QString &tipoDichiarato, const Valore &valore);

// One variable a column of the kiosk's table, in order. Without any record all of them are texts without contents.
// Throws EngineError.
QList<VariabileTicket> variabiliTicket(const QString &archivio);

} // namespace zuvora
