#pragma once

#include "shell/host/Lettore.h"

#include <QNetworkAccessManager>
#include <QObject>

class QNetworkReply;

namespace zuvora {

// Finds out where a station really sends: follows redirections and lists of stations, and tells a web page and an
// absent server from a source of sound. Asks the network in the background.
class Stazione : public QObject {
    Q_OBJECT
public:
    explicit Stazione(QObject *padre);
    void cerca(const QUrl &indirizzo);

    // The first http or https address of a list in one of the two common forms (m3u, pls); empty without one.
    static QUrl primaVoce(const QByteArray &lista, const QUrl &base);

Q_SIGNALS:
    void trovato(const QUrl &indirizzo);
    void mancato(zuvora::GuastoLettore guasto, const QString &motivo);

private:
    void chiedi(const QUrl &indirizzo);
    void esamina(QNetworkReply &risposta);
    void leggiLista(QNetworkReply &risposta);
    void concludi(QNetworkReply &risposta);
    void lascia(QNetworkReply &risposta);

    QNetworkAccessManager m_rete;
    int m_liste = 0; // lists followed so far
};

} // namespace zuvora
