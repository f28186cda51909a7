#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

namespace zuvora {

// A network interface of the machine that is up, with one of its addresses.
struct Interfaccia {
    QString nome;       // "eth0"
    QString indirizzo;  // IPv4 in dotted form
    bool ponte = false; // joins virtual machines or containers: other machines don't reach it
};

// The interface by which packets leave for everywhere, from the text of the system's table of routes
// (/proc/net/route); of several the one with the lowest metric. Empty without one.
QString interfacciaPredefinita(QByteArrayView rotte);

// The address under which others find this machine: that of the default route, else the first that is no bridge, else
// the first; "127.0.0.1" without any.
QString indirizzoProposto(const QList<Interfaccia> &interfacce, const QString &predefinita);

} // namespace zuvora
