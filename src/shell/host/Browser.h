#pragma once

#include "shell/host/Controllo.h"
#include "shell/host/VistaWeb.h"

#include <optional>

class QPlainTextEdit;
class QStackedLayout;

namespace zuvora {

class Piattaforma;

// A web page on a form. What shows it is loaded when the first page is asked for, and only once the form has been
// painted. Each page asked for gets a view of its own, so that nothing of the one before goes on. Where there is no
// page to show, an Italian text stands in its place.
class Browser : public Controllo<QWidget> {
    Q_OBJECT
public:
    Browser(QWidget *padre, const char *nome, const Posto &posto, const Piattaforma &piattaforma);
    ~Browser() override;

    // Goes to an address as a user types it; see indirizzoWeb for what counts as one.
    void vai(const QString &indirizzo);
    // Shows a page of our own as if it came from `base` (http or https), which servers then see as the referring page.
    void mostraHtml(const QString &html, const QUrl &base);
    // The text that stands in the page's place; empty while a page is shown.
    QString avviso() const;

Q_SIGNALS:
    // A page, or the text in its place, is shown.
    void terminato(bool riuscita);

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    struct Richiesta {
        QUrl indirizzo;
        std::optional<QString> html;
    };
    void chiedi(Richiesta richiesta);
    void creaVista();
    void ricevi(EsitoWeb esito, const QUrl &indirizzo);
    void congeda(); // ends the page asked for, whether it is shown or still to come
    void mostraAvviso(const QString &testo);
    void rinuncia(const QString &testo);

    const Piattaforma &m_piattaforma;
    QStackedLayout *m_pila;
    QPlainTextEdit *m_avviso;
    std::unique_ptr<VistaWeb> m_vista;
    std::optional<Richiesta> m_richiesta; // what waits for the view
    int m_pagina = 0;                     // number of the page asked for: news of earlier ones come too late
    bool m_creazione = false;             // the view comes with the next turn of the event loop
};

} // namespace zuvora
