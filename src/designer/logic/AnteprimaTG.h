#pragma once

#include "designer/logic/LayoutElement.h"
#include "shell/logic/Messaggio.h"

#include <QString>
#include <optional>

namespace zuvora {

// The size under test of the news box (WB22), grown and shrunk in steps of 100 twips. A step never makes it smaller
// than one step.
class AnteprimaTG {
public:
    static constexpr double passo = 100;
    static constexpr double minimo = passo;
    static constexpr double massimo = 60000; // twips: 4000 pixels, beyond the largest display

    explicit AnteprimaTG(const Dimensione &wb2) : m_dimensione(wb2) {}

    Dimensione WB22() const { return m_dimensione; }
    Dimensione GB1() const { return {m_dimensione.width + m_bordoX, m_dimensione.height + m_bordoY}; }
    QString A1() const; // the width as text
    QString A2() const; // the height as text

    void Allarga() { cambia(m_dimensione.width, passo); }
    void Stringi() { cambia(m_dimensione.width, -passo); }
    void Alza() { cambia(m_dimensione.height, passo); }
    void Abbassa() { cambia(m_dimensione.height, -passo); }

    // The size in the two boxes; nothing unless both texts are numbers from `minimo` to `massimo`.
    static std::optional<Dimensione> leggi(const QString &A1, const QString &A2);
    static Messaggio rifiuto(); // says so to the user

private:
    static void cambia(double &misura, double di);
    static constexpr double m_bordoX = 240;
    static constexpr double m_bordoY = 480;
    Dimensione m_dimensione;
};

} // namespace zuvora
