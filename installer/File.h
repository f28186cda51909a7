#pragma once

#include <QString>

// File operations of the making: each throws Guasto with the path and the system's reason.
namespace zuvora::installa {

void creaCartella(const QString &cartella); // with its parents
void scriviFile(const QString &file, const QByteArray &contenuto);
// Copies a file, or a folder with all that it holds, contents and permissions; links are followed.
void copia(const QString &da, const QString &a);
void sposta(const QString &da, const QString &a); // within one file system

} // namespace zuvora::installa
