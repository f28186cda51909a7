#pragma once

#include <QString>

namespace zuvora::installa {

enum class Atteso { File, NonVuoto, Immagine, SfondoTotem, Cartella };

// What is wrong with the file or folder that a row names, for the end of a sentence; empty when nothing is, or when the
// path leads to another machine and can't be told from here. A picture must be one that the program can show.
QString difettoDi(const QString &scritto, Atteso atteso);

} // namespace zuvora::installa
