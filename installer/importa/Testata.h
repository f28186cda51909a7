#pragma once

#include <QByteArrayView>
#include <QString>

namespace zuvora::installa {

// Why the file isn't an Access database of the formats 97 and 2000 to 2003 that can be read: an Italian sentence, empty
// when its head promises well. Only the head is looked at; the file is never written.
QString rifiutoAccess(const QString &file);
// The same for the file's first bytes.
QString rifiutoTestata(QByteArrayView testata, const QString &nome);

} // namespace zuvora::installa
