#pragma once

#include <QObject>
#include <QString>

namespace zuvora {

// The root object of a plugin, by file name in the folder of the executable; null when it can't be had, and `motivo`
// says why in Italian. It stays loaded until the program ends.
QObject *radiceComponente(const QString &cartella, const QString &file, QString &motivo);

// A component as its own factory, or the whole text that tells the user what is missing.
template <class Fabbrica> struct Componente {
    Fabbrica *fabbrica = nullptr; // owned by the plugin
    QString motivo;               // without a factory
};

// What can't be done without it, and how to have it again, around the cause.
inline QString senzaComponente(const QString &cosaManca, const QString &causa) {
    return QStringLiteral("%1: %2\n\nTutto il resto funziona. Per rimediare occorre reinstallare il programma.")
        .arg(cosaManca, causa);
}

// Loads a component at its first use. `cosaManca` begins the sentence, as "Il biglietto non si può disegnare".
template <class Fabbrica>
Componente<Fabbrica> caricaComponente(const QString &cartella, const QString &file, const QString &cosaManca) {
    QString motivo;
    QObject *radice = radiceComponente(cartella, file, motivo);
    if (auto *fabbrica = qobject_cast<Fabbrica *>(radice))
        return {fabbrica, {}};
    if (radice != nullptr)
        motivo = QStringLiteral("il componente %1 è di un'altra versione del programma.").arg(file);
    return {nullptr, senzaComponente(cosaManca, motivo)};
}

} // namespace zuvora
