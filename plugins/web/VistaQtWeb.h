#pragma once

#include "shell/host/VistaWeb.h"

#include <QPointer>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <memory>

namespace zuvora {

class PaginaQtWeb;

// Ends a profile some time after its page. A file that a page sends is handed to a thread of the engine's own, which
// works on the profile unguarded: ended meanwhile, it takes the program with it. No signal tells when that is over.
struct CongedaProfilo {
    void operator()(QWebEngineProfile *profilo) const;
};

// A web view on Qt WebEngine, off the record: it keeps nothing on disk and shares nothing with other views.
class VistaQtWeb : public QObject, public VistaWeb {
    Q_OBJECT
public:
    explicit VistaQtWeb(QWidget *padre);
    ~VistaQtWeb() override;

    QWidget *widget() override { return m_vista; }
    void vai(const QUrl &indirizzo) override;
    void mostraHtml(const QString &html, const QUrl &base) override;
    void setAlCambio(AlCambio azione) override { m_alCambio = std::move(azione); }

private:
    void cambiaCarico(const QWebEngineLoadingInfo &carico);
    void interrompi(QWebEnginePage::RenderProcessTerminationStatus stato);
    void annuncia(EsitoWeb esito, const QUrl &indirizzo);

    std::unique_ptr<QWebEngineProfile, CongedaProfilo> m_profilo; // must outlive the page, which goes with the view
    QPointer<QWebEngineView> m_vista;
    PaginaQtWeb *m_pagina;
    bool m_ricevuta = false; // a page asked for stands here
    AlCambio m_alCambio;
};

} // namespace zuvora
