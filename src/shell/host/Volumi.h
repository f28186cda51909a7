#pragma once

#include "shell/logic/SistemaFile.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

namespace zuvora {

// A drive of the machine as the user picks it.
struct Volume {
    QString radice; // native form
    QString nome;   // what the list shows
};

// True for a file system that a user keeps files on: not those by which the system shows its own inside.
bool volumeReale(const Montaggio &montaggio);

// The drives of the machine in order; where there are no letters, the mounted volumes and the shares opened on the
// desktop. From the system's tables: no disk is asked, but for local ones. Never empty.
QList<Volume> volumiMontati(const SistemaFile &sistema);

// The root of the one of `volumi` that holds the path, empty when there is none.
QString volumeDi(const QString &percorso, const QList<Volume> &volumi);

// What a folder holds, hidden names left out, in order of name.
struct Contenuto {
    QStringList cartelle;
    QStringList file;
};
// Asks at most 2 s; nothing when the path is no folder, or silent.
std::optional<Contenuto> leggiCartella(const std::shared_ptr<const SistemaFile> &sistema, const QString &cartella);

} // namespace zuvora
