#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace zuvora {

// What the platform tells about a mounted file system.
struct Volume {
    QString radice;         // where it is mounted
    QByteArray dispositivo; // as "/dev/sda1" or "//server/share"
    QByteArray tipo;        // as "ext4", "proc"
};

// True for a file system that a user keeps files on: not those by which the system shows its own inside.
bool volumeReale(const Volume &volume);

// The drives of the machine in native form, in order; where there are no letters, the mounted volumes. Never empty.
QStringList volumiMontati();

// The one of `volumi` that holds the path, empty when there is none.
QString volumeDi(const QString &percorso, const QStringList &volumi);

} // namespace zuvora
