#pragma once

#include "etichette/logic/Etichetta.h"
#include "etichette/logic/Valori.h"

#include <QDialog>
#include <optional>

namespace zuvora {

// The paper's size, margins and the printer's dots; nothing when the user left it without confirming.
std::optional<Carta> chiediCarta(const Carta &carta, QWidget *padre);

struct RichiestaStampa {
    QString stampante;
    QPoint scostamento;
    Stampa stampa;
};
// Which printer, moved by how much, how many copies.
std::optional<RichiestaStampa> chiediStampa(const Etichetta &etichetta, const QStringList &stampanti, QWidget *padre);

// One of the tickets to start from.
std::optional<Etichetta> chiediModello(QWidget *padre);

// The ticket as the printer's head prints it.
class AnteprimaEtichetta : public QDialog {
public:
    AnteprimaEtichetta(const Etichetta &etichetta, const Valori &valori, QWidget *padre);
};

} // namespace zuvora
