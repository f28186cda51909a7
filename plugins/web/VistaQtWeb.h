#pragma once

#include "shell/host/VistaWeb.h"

#include <QPointer>
#include <QTimer>
#include <QWebEngineLoadingInfo>
#include <QWebEngineView>
#include <optional>

namespace zuvora {

class PaginaQtWeb;

// A web view on Qt WebEngine.
class VistaQtWeb : public QObject, public VistaWeb {
    Q_OBJECT
public:
    enum class Password { Nessuna, DelServer, DelProxy };

    VistaQtWeb(QWebEngineProfile *profilo, QWidget *padre);
    ~VistaQtWeb() override;

    QWidget *widget() override { return m_vista; }
    void vai(const QUrl &indirizzo) override;
    void mostraHtml(const QString &html, const QUrl &base) override;
    void setAlCambio(AlCambio azione) override { m_alCambio = std::move(azione); }

private:
    void cambiaCarico(const QWebEngineLoadingInfo &carico);
    void interrompi(QWebEnginePage::RenderProcessTerminationStatus stato);
    void sorveglia();
    void annuncia(EsitoWeb esito, const QUrl &indirizzo);

    QPointer<QWebEngineView> m_vista;
    PaginaQtWeb *m_pagina;
    QTimer m_guardia;
    bool m_ricevuta = false; // a page asked for stands here
    bool m_troppaMemoria = false;
    Password m_chiesta = Password::Nessuna; // since the load began
    AlCambio m_alCambio;
};

} // namespace zuvora
