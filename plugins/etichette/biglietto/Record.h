#pragma once

#include "etichette/logic/Valori.h"

namespace zuvora {

struct RecordLetto {
    Valori valori;
    QString motivo;     // Italian; empty when it was read
    bool altri = false; // the table has records, but not this one
};

// The variables of a record of the kiosk's table, `n` counting from 1, with dates and numbers as the record holds them.
RecordLetto leggiRecord(const QString &cartellaTotem, int n);
// Puts a content given by hand into a variable, read as its type.
void mettiValore(Valori &valori, const QString &nome, const QString &testo);

} // namespace zuvora
