#pragma once

#include <QWebEnginePage>

namespace zuvora {

// A page that may show and run what a site sends, and nothing else: no other windows, no dialogs, no local files.
class PaginaQtWeb : public QWebEnginePage {
    Q_OBJECT
public:
    PaginaQtWeb(QWebEngineProfile *profilo, QObject *padre);

protected:
    bool acceptNavigationRequest(const QUrl &indirizzo, NavigationType tipo, bool principale) override;
    QWebEnginePage *createWindow(WebWindowType tipo) override;
    QStringList chooseFiles(FileSelectionMode modo, const QStringList &vecchi, const QStringList &tipi) override;
    void javaScriptAlert(const QUrl &origine, const QString &testo) override;
    bool javaScriptConfirm(const QUrl &origine, const QString &testo) override;
    bool javaScriptPrompt(const QUrl &origine, const QString &testo, const QString &proposta,
                          QString *risposta) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel livello, const QString &testo, int riga,
                                  const QString &fonte) override;

private:
    void rifiutaRichieste();
};

} // namespace zuvora
