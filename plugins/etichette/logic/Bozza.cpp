#include "etichette/logic/Bozza.h"

#include "etichette/logic/FileEtichetta.h"

#include <QFile>

namespace zuvora {

Bozza::Bozza(QString fileBiglietto) : m_file(std::move(fileBiglietto)) {}

QString Bozza::percorso() const {
    return m_file + QStringLiteral(".bozza");
}

std::optional<Etichetta> Bozza::lasciata() const {
    return leggiEtichetta(percorso()).etichetta;
}

void Bozza::togli() const {
    QFile::remove(percorso());
}

} // namespace zuvora
