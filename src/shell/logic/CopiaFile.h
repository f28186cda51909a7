#pragma once

#include <QString>

namespace zuvora {

// The name under which the catalogue keeps a picked file: its own, with whatever extension it has. Empty for an empty
// path.
QString FileScelto(const QString &percorso);

// What a copy into a folder would meet there.
enum class Incontro {
    Nessuno,  // no file of that name
    LoStesso, // the very file, or one of the same content: nothing to copy
    Diverso,  // another file, which the copy would replace
    Impedito  // something of that name that is no file
};
Incontro incontroCopia(const QString &origine, const QString &cartella);

// Copies a file into a folder under its own name; a folder that is missing is made. Gives an Italian sentence when it
// could not, else an empty text. A copy that fails leaves what stood there before, and nothing half-written.
QString copiaFile(const QString &origine, const QString &cartella);

} // namespace zuvora
