#pragma once

#include "shell/host/Ambiente.h"
#include "shell/host/Schiera.h"

#include <QString>
#include <QWidget>
#include <concepts>
#include <utility>

namespace zuvora {

// What a form and a page of the main panel have in common: what they are given, and how their controls' handlers run.
// Handlers connected here report in one place what nobody answered.
class Schermata {
public:
    const Ambiente &ambiente() const { return m_ambiente; }
    const ValoriCondivisi &valori() const { return m_ambiente.valori; }
    ValoriCondivisi &valori() { return m_ambiente.valori; }
    // The application folder, without a trailing separator.
    const QString &cartella() const { return m_ambiente.valori.PercorsoApplicazione; }

    // Runs a handler; a failure that it doesn't answer is told to the user here.
    template <class F> void proteggi(F &&azione) {
        try {
            std::forward<F>(azione)();
        } catch (...) {
            segnalaErrore();
        }
    }
    template <class Mittente, class Segnale, class F> void quando(Mittente &mittente, Segnale segnale, F azione) {
        if constexpr (requires { azione(); })
            QObject::connect(&mittente, segnale, &m_finestra, [this, azione] { proteggi(azione); });
        else
            QObject::connect(&mittente, segnale, &m_finestra,
                             [this, azione](auto valore) { proteggi([&] { azione(valore); }); });
    }
    template <class C, class F>
    requires std::derived_from<C, QWidget>
    void alClic(C &controllo, F azione) { quando(controllo, &C::clicked, azione); }
    // One handler for a control array; it gets the index.
    template <class C, class F> void alClic(const Schiera<C> &schiera, F azione) {
        for (const auto &membro : schiera)
            alClic(*membro.controllo, [azione, i = membro.indice] { azione(i); });
    }

    // A message of one or two lines, over this window.
    void avvisa(const QString &riga0, const QString &riga1 = {});
    // A question; true when the user confirmed.
    [[nodiscard]] bool conferma(const QString &riga0, const QString &riga1 = {});

protected:
    // `finestra` is the widget that this is a part of: connections end with it, messages stand over it.
    Schermata(const Ambiente &ambiente, QWidget &finestra) : m_ambiente(ambiente), m_finestra(finestra) {}
    ~Schermata() = default;

private:
    void segnalaErrore();

    Ambiente m_ambiente;
    QWidget &m_finestra;
};

} // namespace zuvora
