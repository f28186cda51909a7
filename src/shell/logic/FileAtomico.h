#pragma once

#include <QByteArray>
#include <QString>

namespace zuvora {

// Files read and written whole. A failure is an Italian sentence for the second line of a message; empty is success.

// Puts the content in place of the file's, or leaves the file as it was: never a half. It is on the disk when this
// returns.
QString scriviFile(const QString &percorso, const QByteArray &contenuto);

struct FileLetto {
    QByteArray contenuto;
    QString motivo; // empty when the file was read
};
inline constexpr qint64 fileMassimo = 16 * 1024 * 1024; // bytes; far beyond any list or sentence
// Only regular files up to `massimo` bytes are opened: a pipe or a device could block or never end.
FileLetto leggiFile(const QString &percorso, qint64 massimo = fileMassimo);

// True when the path exists and isn't a folder; false too when that can't be told.
bool FileEsiste(const QString &percorso);

// False for a text that no file can be called by: empty, too long for the system, with a NUL.
bool percorsoPossibile(const QString &percorso);

// The system's error number in words, as "Lo spazio sul disco è esaurito."
QString motivoSistema(int numero);

// What was written is on the disk, the names in the folder too. False, with errno set, when the disk refuses.
bool sincronizza(int descrittore);
bool sincronizzaCartella(const QString &cartella);

// A number of bytes for the user, as "3,2 GB".
QString misuraFile(qint64 byte);

} // namespace zuvora
