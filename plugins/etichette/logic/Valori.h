#pragma once

#include "shell/logic/TipoEtichetta.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace zuvora {

// The content of a variable. Number, date and truth are there where the type has them and the text could be read.
struct Variabile {
    QString nome;
    TipoEtichetta tipo = TipoEtichetta::Testo;
    QString testo; // as it is printed without a format
    std::optional<double> numero;
    std::optional<QDateTime> data;
    std::optional<bool> vero;
};

// A date as it is printed without a format: its day, its time where it has one; of a time alone the time.
QString testoData(const QDateTime &data);

// A variable from the contents that the designer is told: a number with a point, "True" or "False", a count of days
// from 30 December 1899. A content that isn't of its type stays as it is.
Variabile variabileDaContenuto(const QString &nome, const QString &contenuto, TipoEtichetta tipo);

class Valori {
public:
    Valori() = default;
    explicit Valori(QList<Variabile> variabili) : m_variabili(std::move(variabili)) {}

    const Variabile *trova(QStringView nome) const; // without regard to case
    const QList<Variabile> &tutte() const { return m_variabili; }
    void metti(const Variabile &variabile); // in place of the one of that name, else at the end

    // A text with its variables filled in: {Name} or {Name:format}; {{ and }} are braces. Formats: of a number a
    // pattern of zeros and a comma ("000", "0,00"), of a date Qt's ("dd/MM/yyyy"), of a truth "yes|no". A name that
    // isn't there is left out and added to `mancanti`; without that list it stays as it stands in the text.
    QString componi(QStringView testo, QStringList *mancanti = nullptr) const;

private:
    QList<Variabile> m_variabili;
};

// The names in braces, in order, each once.
QStringList nomiIn(QStringView testo);

} // namespace zuvora
