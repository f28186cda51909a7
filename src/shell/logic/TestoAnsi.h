#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <optional>

namespace zuvora {

// Text files in the Windows code page 1252, lines ended by CR LF. Each of the 256 bytes stands for one character (the
// five that the code page leaves undefined for the control of the same number), so that what is read and written back
// keeps its bytes.

QString daAnsi(QByteArrayView byte);
// Nothing when a character is not in the code page; fuoriAnsi tells which.
std::optional<QByteArray> inAnsi(QStringView testo);
// The first character that the code page lacks, empty when it has them all.
QString fuoriAnsi(QStringView testo);

// Lines end with LF or CR LF, the last one perhaps with nothing. A blank line is a line, an empty text has none.
QStringList righeAnsi(QByteArrayView byte);

struct RigheLette {
    QStringList righe;
    QString motivo; // why the file could not be read, an Italian sentence; empty when it could
};
RigheLette leggiRighe(const QString &percorso);
// Writes the file whole or not at all. Gives the reason as an Italian sentence, empty after a success; a character that
// can't be stored is named with its line.
QString scriviRighe(const QString &percorso, const QStringList &righe);

} // namespace zuvora
