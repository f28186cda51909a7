#pragma once

#include "shell/host/Controlli.h"
#include "shell/host/Schermata.h"

#include <QDialog>

namespace zuvora {

// A window of the program: a name, a caption and an inner area in twips. Made when opened, gone when closed; the
// constructor is the form's load.
class Form : public QDialog, public Schermata {
    Q_OBJECT
public:
    Form(const Ambiente &ambiente, const char *nome, const char *didascalia, const Misura &interno, QWidget *padre);

    const QString &Caption() const { return m_didascalia; }
    void setCaption(const QString &testo);
    void setMisuraInterna(const Misura &interno); // twips

    // Shows the form over its opener and returns when it is unloaded.
    void mostraModale();
    // Asks for the unloading; puoScaricarsi may refuse.
    void scarica();

    void reject() override; // Esc and the frame ask the same question

protected:
    virtual bool puoScaricarsi() { return true; }
    // After the first showing and after each return from a form that this one opened, but for those opened in here.
    // Always from the event loop, so that the form may unload itself; never while another form stands over it.
    virtual void attivata() {}
    // Where Tab is to go another way than by the places of the fields. Once, at the first showing.
    virtual void correggiFuochi() {}

    void closeEvent(QCloseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void showEvent(QShowEvent *e) override;

private:
    void accodaAttivazione();
    void attiva();

    void centra();

    QString m_didascalia;
    int m_sopra = 0; // forms that this one opened and that are still there
    bool m_mostrata = false;
    bool m_inCoda = false;
    bool m_inAttivazione = false;
};

// Gives every field without an accessible name that of the label beside or above it.
void nominaCampi(QWidget *form);

} // namespace zuvora
