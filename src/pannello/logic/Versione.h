#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace zuvora {

// The label of the version that this program's data have.
inline constexpr QStringView versioneCorrente = u"Versione 3.1.11";

// The short form ("3.1.8") of an older version label ("Versione 3.1.8") that the program can bring to the current one;
// nothing for every other label. Case counts.
std::optional<QString> versioneDaAggiornare(QStringView etichetta);
// True for the five short forms.
bool versioneConosciuta(QStringView breve);

// Keeps a copy of the settings database beside it, called after the version that it has: "Zuvora-3.1.9.mdb". An older
// one of that name gives way only to a whole new one. Throws EngineError.
void conservaArchivio(const QString &cartella, const QString &versione);

// Adds the two columns that the current version has and older ones lack. `cartella` is the application folder. A
// failure of the opening throws EngineError; any later failure ends the operation silently: a database that has a
// column already loses nothing.
void AggiornaArchivio(const QString &cartella);

// Writes the current version's label and date into the version row. Throws EngineError.
void scriviVersioneCorrente(const QString &cartella);

} // namespace zuvora
