#pragma once

#include <QHash>
#include <QStringList>
#include <QTcpServer>
#include <QUrl>

namespace zuvora {

// A small HTTP server on the loopback. It answers what a test lays down by path and keeps what was asked. Below "/"
// everything unknown gets an empty page without a title.
class ServerProva : public QObject {
public:
    struct Pagina {
        QByteArray corpo;
        QByteArray stato = "200 OK";
        QByteArray testate = {}; // further header lines, each ended by CR LF
        bool muta = false;       // closes the connection without an answer
    };

    // `server` is one that doesn't listen yet.
    explicit ServerProva(QTcpServer *server = new QTcpServer);

    QHash<QString, Pagina> pagine;
    QHash<QString, QByteArray> chieste; // the header lines that came, by path; the last ones stand
    int quante = 0;                     // requests that came

    QString indirizzo(const QString &percorso) const; // http, with the server's port
    quint16 porta() const { return m_server->serverPort(); }

private:
    void accogli();
    void rispondi(QTcpSocket *presa);

    QTcpServer *m_server;
};

// A port of the loopback on which nobody listens.
quint16 portaChiusa();

} // namespace zuvora
