#pragma once

#include <QString>
#include <QStringList>

// File operations of the making: each throws Guasto with the path and the system's reason.
namespace zuvora::installa {

void creaCartella(const QString &cartella); // with its parents
void scriviNuovo(const QString &file, const QByteArray &contenuto);
// Copies a file, or a folder with all that it holds, contents and permissions; links are followed. Stops between two
// files when the user interrupts.
void copia(const QString &da, const QString &a);
// Why nothing can be written at the end of the file, which is spoilt by the question; empty when it can.
QString motivoDelDisco(const QString &file);
bool presente(const QString &percorso);           // a link that leads nowhere too
QString nativo(const QString &percorso);          // as the platform writes it
bool eArchivio(const QString &nome);              // by its ending
QString posto(const QString &file);               // as the user knows it: without the hidden folder of the making
void sposta(const QString &da, const QString &a); // within one file system
void rimuovi(const QString &percorso);            // a file, or a folder with all that it holds; what resists stays
// Everything below the folder is on the disk when this returns.
void sincronizzaTutto(const QString &cartella);
// The names in the folder, and those of the folders just made above it, are on the disk.
void sincronizzaCartelle(const QString &cartella, const QStringList &aggiunte);

} // namespace zuvora::installa
