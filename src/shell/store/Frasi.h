#pragma once

#include "shell/store/EngineError.h"

namespace zuvora {

// What the store was about when it failed: it decides what the sentence says was not done.
enum class Azione { Apertura, Lettura, Scrittura };

struct Contesto {
    QString percorso; // the database file
    Azione azione = Azione::Lettura;
    QString oggetto; // the table, column or text concerned, if any
};

// The failure with its Italian sentence: what happened, what was not done, what to do.
EngineError errore(Errore numero, const Contesto &contesto, const QString &dettaglio = {});

} // namespace zuvora
