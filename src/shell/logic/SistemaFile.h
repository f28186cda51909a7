#pragma once

#include "shell/store/Disco.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace zuvora {

// A mounted file system: where it comes from ("//SERVER/Totem", "server:/srv/totem", "/dev/sda1"), where it lies, what
// it is ("cifs", "ext4").
struct Montaggio {
    QString origine;
    QString cartella;
    QString tipo;

    friend bool operator==(const Montaggio &, const Montaggio &) = default;
};

// A folder that this machine shares on the network.
struct Condivisione {
    QString nome;
    QString cartella;

    friend bool operator==(const Condivisione &, const Condivisione &) = default;
};

// What paths need to know of the machine. A test puts a machine of its own in its place.
class SistemaFile : public Disco {
public:
    virtual bool conUnita() const = 0; // its paths begin with a drive letter
    virtual QString nomeMacchina() const = 0;
    // From the system's tables, without asking the disks.
    virtual QList<Montaggio> montaggi() const = 0;
    virtual QList<Condivisione> condivisioni() const = 0;
};

// This machine.
class SistemaLocale : public SistemaFile {
public:
    bool conUnita() const override;
    QString nomeMacchina() const override;
    QList<Montaggio> montaggi() const override;
    QList<Condivisione> condivisioni() const override;
    Specie specie(const QString &percorso) const override { return m_disco.specie(percorso); }
    QStringList nomi(const QString &cartella) const override { return m_disco.nomi(cartella); }

private:
    DiscoLocale m_disco;
};

// The texts of the system's tables as lists; lines that are none of theirs are left out.
QList<Montaggio> montaggiDa(QByteArrayView mounts);                // /proc/self/mounts
Montaggio montaggioGvfs(const QString &base, const QString &nome); // a share opened on the desktop; empty when not one
QList<Condivisione> condivisioniDa(QByteArrayView configurazione); // smb.conf, or one folder shared by a user

} // namespace zuvora
