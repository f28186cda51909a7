#include "web/ServerProva.h"

#include <QTcpSocket>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

ServerProva::ServerProva(QTcpServer *server) : m_server(server) {
    m_server->setParent(this);
    connect(m_server, &QTcpServer::pendingConnectionAvailable, this, &ServerProva::accogli);
    m_server->listen(QHostAddress::LocalHost);
}

QString ServerProva::indirizzo(const QString &percorso) const {
    return u"http://127.0.0.1:%1%2"_s.arg(porta()).arg(percorso);
}

void ServerProva::accogli() {
    while (QTcpSocket *presa = m_server->nextPendingConnection()) {
        connect(presa, &QTcpSocket::readyRead, this, [this, presa] { rispondi(presa); });
        connect(presa, &QTcpSocket::disconnected, presa, &QObject::deleteLater);
        rispondi(presa);
    }
}

void ServerProva::rispondi(QTcpSocket *presa) {
    const QByteArray finora = presa->peek(65536);
    if (!finora.contains("\r\n\r\n"))
        return;
    presa->readAll();
    const QString percorso = QString::fromUtf8(finora.split(' ').value(1));
    chieste.insert(percorso, finora);
    ++quante;
    const Pagina pagina = pagine.value(percorso);
    if (!pagina.muta)
        presa->write("HTTP/1.1 " + pagina.stato +
                     "\r\nContent-Type: text/html; charset=utf-8\r\nConnection: close\r\n" + pagina.testate +
                     "Content-Length: " + QByteArray::number(pagina.corpo.size()) + "\r\n\r\n" + pagina.corpo);
    presa->disconnectFromHost();
}

quint16 portaChiusa() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace zuvora
