#pragma once

#include "etichette/logic/Etichetta.h"
#include "etichette/logic/Valori.h"

namespace zuvora {

struct EsitoStampa {
    QString motivo;     // Italian; empty when the ticket is out
    QStringList avvisi; // what of it didn't come out as designed
};

// The ticket as a PDF of one page of its own size.
EsitoStampa scriviPdf(const QString &file, const Etichetta &etichetta, const Valori &valori);
// As a picture; `dpi` 0 is the resolution of the ticket's printer.
EsitoStampa scriviPng(const QString &file, const Etichetta &etichetta, const Valori &valori, int dpi);

// The PDF's bytes, moved by `scostamento` (tenths of a millimetre). Empty when the paper is impossible.
QByteArray pdf(const Etichetta &etichetta, const Valori &valori, const QPoint &scostamento, QStringList &avvisi);

} // namespace zuvora
