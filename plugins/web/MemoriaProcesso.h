#pragma once

#include <QtGlobal>

namespace zuvora {

// Bytes of memory that a process of this machine occupies; 0 where it isn't known.
qint64 memoriaProcesso(qint64 pid);
// Ends a process at once.
void terminaProcesso(qint64 pid);

} // namespace zuvora
