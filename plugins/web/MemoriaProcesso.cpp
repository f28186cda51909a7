#include "web/MemoriaProcesso.h"

#include <QFile>

#include <csignal>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

qint64 memoriaProcesso(qint64 pid) {
    QFile file(u"/proc/%1/statm"_s.arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

void terminaProcesso(qint64 pid) {
    ::kill(static_cast<pid_t>(pid), SIGKILL);
}

} // namespace zuvora
