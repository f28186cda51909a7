#pragma once

#include <QString>

class QIODevice;

namespace zuvora::installa {

// Reads every table of an old database in its stored order and writes it as a stream of messages. Runs in a process of
// its own: a damaged file may crash the library that reads it. Gives the process's exit code.
int leggiAccess(const QString &file, QIODevice &uscita);

} // namespace zuvora::installa
