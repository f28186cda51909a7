#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <array>
#include <functional>
#include <optional>

namespace zuvora {

// The sentence that calls a patient and its voice, one record of a text file that the server module reads:
// "sentence",use,female,system. A number is 0 or 1; nothing where the file holds something else.
struct FraseTTS {
    QString frase; // its variables in place; lines end with LF
    std::optional<int> usa;
    std::optional<int> femminile;
    std::optional<int> sistema;
};

// Reads whatever there is: a short record, other line ends, no quotes.
FraseTTS interpretaFrase(QByteArrayView byte);
// The file's content; a missing number counts as 0. Nothing when the sentence can't be stored: see motivoNonSalvabile.
std::optional<QByteArray> componiFrase(const FraseTTS &frase);
// Why a sentence can't be stored, in Italian; empty when it can.
QString motivoNonSalvabile(const QString &frase);

// A variable of the sentence.
struct Variabile {
    QStringView segno; // as it stands in the sentence
    QStringView prova; // what the trial says in its place
};
inline constexpr std::array<Variabile, 3> variabili = {{
    {u"@varnum@", u"152"},
    {u"@varpos@", u"Postazione 5"},
    {u"@varute@", u"Servizio"},
}};

// What goes into the sentence when a variable is inserted, in place of a selection or at the caret.
QString testoVariabile(int indice, bool inSelezione);

// The sentence as the trial says it: each variable that stands as a whole word, in any case, is replaced, ten times at
// most. `pausa` runs after each one found.
QString EspandiFrase(const QString &frase, const std::function<void()> &pausa = {});

} // namespace zuvora
