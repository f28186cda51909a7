#pragma once

#include "shell/host/Ambiente.h"
#include "shell/host/Controlli.h"
#include "shell/host/Schiera.h"

#include <QDialog>
#include <concepts>

namespace zuvora {

// A window of the program: a name, a caption and an inner area in twips. Made when opened, gone when closed; the
// constructor is the form's load. Handlers connected through `quando` report what nobody answered in one place.
class Form : public QDialog {
    Q_OBJECT
public:
    Form(const Ambiente &ambiente, const char *nome, const char *didascalia, const Misura &interno, QWidget *padre);

    const Ambiente &ambiente() const { return m_ambiente; }
    const ValoriCondivisi &valori() const { return m_ambiente.valori; }
    ValoriCondivisi &valori() { return m_ambiente.valori; }
    const QString &cartella() const { return m_ambiente.valori.PercorsoApplicazione; }

    QString Caption() const { return windowTitle(); }
    void setCaption(const QString &testo) { setWindowTitle(testo); }
    void setMisuraInterna(const Misura &interno); // twips

    // Shows the form over its opener and returns when it is unloaded.
    void mostraModale();
    // Asks for the unloading; puoScaricarsi may refuse.
    void scarica();

    // Runs a handler; a failure that it doesn't answer is told to the user here.
    template <class F> void proteggi(F &&azione) {
        try {
            std::forward<F>(azione)();
        } catch (...) {
            segnalaErrore();
        }
    }
    template <class Mittente, class Segnale, class F> void quando(Mittente &mittente, Segnale segnale, F azione) {
        QObject::connect(&mittente, segnale, this, [this, azione] { proteggi(azione); });
    }
    template <class C, class F>
    requires std::derived_from<C, QWidget>
    void alClic(C &controllo, F azione) { quando(controllo, &C::clicked, azione); }
    // One handler for a control array; it gets the index.
    template <class C, class F> void alClic(const Schiera<C> &schiera, F azione) {
        for (const auto &membro : schiera)
            alClic(*membro.controllo, [azione, i = membro.indice] { azione(i); });
    }

    void reject() override; // Esc and the frame ask the same question

protected:
    virtual bool puoScaricarsi() { return true; }
    // On opening and on each return to the form.
    virtual void attivata() {}

    void closeEvent(QCloseEvent *e) override;
    bool event(QEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    void segnalaErrore();

    Ambiente m_ambiente;
    bool m_mostrata = false;
    bool m_attiva = false;
};

// Gives every field without an accessible name that of the label beside or above it.
void nominaCampi(QWidget *form);

} // namespace zuvora
