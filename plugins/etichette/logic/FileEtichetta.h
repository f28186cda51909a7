#pragma once

#include "etichette/logic/Etichetta.h"

#include <optional>

namespace zuvora {

inline constexpr int versioneEtichetta = 1;
inline constexpr qint64 fileEtichettaMassimo = 48 * 1024 * 1024; // bytes
inline constexpr qsizetype immagineMassima = 8 * 1024 * 1024;    // bytes of one picture's file
inline constexpr qsizetype oggettiMassimi = 2000;

struct EtichettaLetta {
    std::optional<Etichetta> etichetta;
    QString motivo; // Italian; why there is none
};

// The ticket's text form (JSON), as docs/formato-biglietto.md tells it, and back. Members that this version doesn't
// know come back as they were.
QByteArray testoEtichetta(const Etichetta &etichetta);
EtichettaLetta etichettaDa(const QByteArray &testo);

// The file at a native path. A missing one has the reason "Il file non esiste."
EtichettaLetta leggiEtichetta(const QString &percorso);
// Atomic. Empty when written, else the Italian reason.
QString scriviEtichetta(const QString &percorso, const Etichetta &etichetta);

} // namespace zuvora
