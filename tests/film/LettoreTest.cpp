#include "shell/host/ComponenteLettore.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr int Subito = 200; // milliseconds that a call, or the end of a player, may take beside a server that hangs

void scrivi(const QString &percorso, const QByteArray &contenuto) {
    QFile file(percorso);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(contenuto), contenuto.size());
}

// A plain film, all of one red; 25 frames are a second.
QByteArray filmRosso(int fotogrammi) {
    const QByteArray quadro =
        "FRAME\n" + QByteArray(64 * 48, char(81)) + QByteArray(32 * 24, char(90)) + QByteArray(32 * 24, char(240));
    return "YUV4MPEG2 W64 H48 F25:1 Ip A1:1 C420jpeg\n" + quadro.repeated(fotogrammi);
}

// A silent wave file: mono, 8 bit, 8000 samples a second.
QByteArray suono(int campioni) {
    const auto numero = [](quint32 n, int byte) {
        QByteArray testo;
        for (int i = 0; i < byte; ++i)
            testo.append(char(n >> (8 * i)));
        return testo;
    };
    return "RIFF" + numero(36 + campioni, 4) + "WAVEfmt " + numero(16, 4) + numero(1, 2) + numero(1, 2) +
           numero(8000, 4) + numero(8000, 4) + numero(1, 2) + numero(8, 2) + "data" + numero(campioni, 4) +
           QByteArray(campioni, char(128));
}

// Answers each path with the bytes laid down for it; a path without any gets no answer, and the line stays open.
class Server : public QTcpServer {
public:
    QHash<QByteArray, QByteArray> risposte;
    int chieste = 0;

    Server() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *presa = nextPendingConnection();
            connect(presa, &QTcpSocket::readyRead, this, [this, presa] { rispondi(*presa); });
        });
    }
    QUrl indirizzo(const char *percorso) const {
        return QUrl(u"http://127.0.0.1:%1%2"_s.arg(serverPort()).arg(QLatin1StringView(percorso)));
    }

private:
    void rispondi(QTcpSocket &presa) {
        const QByteArray richiesta = presa.readAll();
        ++chieste;
        const auto risposta = risposte.constFind(richiesta.split(' ').value(1));
        if (risposta == risposte.constEnd())
            return;
        presa.write("HTTP/1.0 " + *risposta);
        presa.disconnectFromHost();
    }
};

class ProvaLettore : public testing::Test {
protected:
    void SetUp() override {
        EsitoComponenteLettore esito = creaLettore(QStringLiteral(CARTELLA_COMPONENTI), &quadro);
        ASSERT_NE(esito.lettore, nullptr) << esito.motivo.toStdString();
        lettore = std::move(esito.lettore);
        lettore->widget()->resize(64, 48);
    }
    QString file(const QString &nome) const { return cartella.filePath(nome); }
    bool attendi(StatoLettore stato) {
        return QTest::qWaitFor([&] { return lettore->stato() == stato; }, 10000);
    }
    GuastoLettore attendiGuasto() {
        EXPECT_TRUE(attendi(StatoLettore::Guasto));
        EXPECT_FALSE(lettore->motivo().isEmpty());
        return lettore->guasto();
    }
    QColor colore() { return lettore->widget()->grab().toImage().pixelColor(32, 24); }

    QTemporaryDir cartella;
    QWidget quadro;
    std::unique_ptr<Lettore> lettore;
};

TEST_F(ProvaLettore, UnFilmatoSiVedeFinoAllaFine) {
    scrivi(file(u"rosso.y4m"_s), filmRosso(25));
    lettore->apriFile(file(u"rosso.y4m"_s));
    EXPECT_EQ(lettore->stato(), StatoLettore::Apertura);
    ASSERT_TRUE(QTest::qWaitFor([&] { return colore().red() > 200; }, 10000)) << lettore->motivo().toStdString();
    EXPECT_LT(colore().green(), 60);
    EXPECT_TRUE(lettore->haFilm());
    EXPECT_EQ(lettore->durata(), 1s);
    ASSERT_TRUE(attendi(StatoLettore::Finito));
    EXPECT_EQ(lettore->posizione(), 1s);
    lettore->riprendi();
    ASSERT_TRUE(attendi(StatoLettore::InCorso));
    lettore->chiudi();
    EXPECT_EQ(lettore->stato(), StatoLettore::Vuoto);
    EXPECT_EQ(colore(), QColor(Qt::black));
}

TEST_F(ProvaLettore, PausaEPosizione) {
    scrivi(file(u"lungo.y4m"_s), filmRosso(500));
    lettore->apriFile(file(u"lungo.y4m"_s));
    ASSERT_TRUE(attendi(StatoLettore::InCorso));
    lettore->pausa();
    ASSERT_TRUE(attendi(StatoLettore::InPausa));
    const auto ferma = lettore->posizione();
    lettore->setPosizione(15s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return lettore->posizione() >= 15s; }, 5000));
    EXPECT_LT(ferma, 10s);
    EXPECT_LT(lettore->posizione(), 16s);
    lettore->setPosizione(20s); // its very end, from where it plays anew at once
    ASSERT_TRUE(QTest::qWaitFor([&] { return lettore->posizione() >= 19s; }, 5000));
    EXPECT_GT(colore().red(), 200);
    lettore->riprendi();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return lettore->stato() == StatoLettore::InCorso && lettore->posizione() < 10s; }, 5000));
    lettore->setPosizione(18s);
    EXPECT_TRUE(attendi(StatoLettore::Finito));
}

TEST_F(ProvaLettore, QuelloCheNonSiApreDiceIlMotivo) {
    scrivi(file(u"vuoto.wav"_s), {});
    scrivi(file(u"testo.wav"_s), "Non sono un suono.\r\n");
    scrivi(file(u"mezzo.wav"_s), suono(8000).left(30));
    ASSERT_EQ(mkfifo(file(u"tubo.wav"_s).toUtf8().constData(), 0600), 0);
    const struct {
        QString nome;
        GuastoLettore guasto;
    } casi[] = {
        {u"manca.mp4"_s, GuastoLettore::FileMancante}, {u"."_s, GuastoLettore::Illeggibile},
        {u"vuoto.wav"_s, GuastoLettore::Illeggibile},  {u"testo.wav"_s, GuastoLettore::Illeggibile},
        {u"mezzo.wav"_s, GuastoLettore::Illeggibile},  {u"tubo.wav"_s, GuastoLettore::Illeggibile},
    };
    for (const auto &[nome, guasto] : casi) {
        lettore->apriFile(file(nome));
        EXPECT_EQ(attendiGuasto(), guasto) << nome.toStdString();
    }
}

TEST_F(ProvaLettore, UnSuonoFinisceOppureMancaLUscita) {
    scrivi(file(u"breve.wav"_s), suono(800));
    lettore->apriFile(file(u"breve.wav"_s));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return lettore->stato() == StatoLettore::Finito || lettore->stato() == StatoLettore::Guasto; }, 10000));
    EXPECT_FALSE(lettore->haFilm());
    if (lettore->haUscita())
        EXPECT_EQ(lettore->stato(), StatoLettore::Finito) << lettore->motivo().toStdString();
    else
        EXPECT_EQ(lettore->guasto(), GuastoLettore::SenzaUscita);
}

TEST_F(ProvaLettore, UnaStazioneMancataDiceIlMotivo) {
    Server server;
    server.risposte = {
        {"/pagina", "200 OK\r\nContent-Type: text/html; charset=utf-8\r\n\r\n<html></html>"},
        {"/niente", "404 Not Found\r\nContent-Length: 0\r\n\r\n"},
        {"/giro", "302 Found\r\nLocation: /giro\r\nContent-Length: 0\r\n\r\n"},
        {"/testo", "200 OK\r\nContent-Type: audio/mpeg\r\n\r\nnon sono un suono"},
        {"/radio.pls", "200 OK\r\nContent-Type: audio/x-scpls\r\n\r\n[playlist]\nNumberOfEntries=1\nFile1=/pagina\n"},
        {"/radio.m3u", "200 OK\r\nContent-Type: text/plain\r\n\r\n#EXTM3U\r\n#EXTINF:-1,Radio\r\nradio.pls\r\n"},
        {"/vuota.m3u", "200 OK\r\nContent-Type: audio/x-mpegurl\r\n\r\n# niente\r\n"},
        {"/eco.m3u", "200 OK\r\nContent-Type: audio/x-mpegurl\r\n\r\neco.m3u\r\n"},
    };
    QTcpServer chiuso;
    chiuso.listen(QHostAddress::LocalHost);
    const QUrl rifiutato(u"http://127.0.0.1:%1/"_s.arg(chiuso.serverPort()));
    chiuso.close();
    const struct {
        QUrl indirizzo;
        GuastoLettore guasto;
    } casi[] = {
        {server.indirizzo("/pagina"), GuastoLettore::PaginaWeb},
        {server.indirizzo("/niente"), GuastoLettore::NonRaggiunto},
        {server.indirizzo("/giro"), GuastoLettore::NonRaggiunto},
        {server.indirizzo("/testo"), GuastoLettore::Illeggibile},
        {server.indirizzo("/radio.pls"), GuastoLettore::PaginaWeb},
        {server.indirizzo("/radio.m3u"), GuastoLettore::PaginaWeb},
        {server.indirizzo("/vuota.m3u"), GuastoLettore::Illeggibile},
        {server.indirizzo("/eco.m3u"), GuastoLettore::Illeggibile},
        {rifiutato, GuastoLettore::NonRaggiunto},
        {QUrl(u"http://niente.invalid/"_s), GuastoLettore::NonRaggiunto},
        {QUrl(u"file:///etc/passwd"_s), GuastoLettore::NonRaggiunto},
        {QUrl(u"non è un indirizzo"_s), GuastoLettore::NonRaggiunto},
    };
    for (const auto &[indirizzo, guasto] : casi) {
        lettore->apriFlusso(indirizzo);
        EXPECT_EQ(attendiGuasto(), guasto) << indirizzo.toString().toStdString();
    }
}

// The decoder itself waits for a server that says it sends sound and then sends nothing.
TEST_F(ProvaLettore, UnaStazioneCheTaceNonTrattieneNessuno) {
    Server server;
    QTcpServer muto;
    muto.listen(QHostAddress::LocalHost);
    QObject::connect(&muto, &QTcpServer::newConnection, &muto, [&] {
        QTcpSocket *presa = muto.nextPendingConnection();
        QObject::connect(presa, &QTcpSocket::readyRead, presa,
                         [presa] { presa->write("HTTP/1.0 200 OK\r\nContent-Type: audio/mpeg\r\n\r\n"); });
        ++server.chieste;
    });
    const QUrl zitta(u"http://127.0.0.1:%1/"_s.arg(muto.serverPort()));
    for (const QUrl &indirizzo : {server.indirizzo("/tace"), zitta}) {
        QElapsedTimer orologio;
        orologio.start();
        lettore->apriFlusso(indirizzo);
        EXPECT_LT(orologio.elapsed(), Subito);
        const int attese = indirizzo == zitta ? 3 : 1; // who is asked and found again by the decoder
        ASSERT_TRUE(QTest::qWaitFor([&] { return server.chieste >= attese; }, 5000));
        EXPECT_EQ(lettore->stato(), StatoLettore::Apertura);
    }
    scrivi(file(u"rosso.y4m"_s), filmRosso(5));
    lettore->apriFile(file(u"rosso.y4m"_s));
    EXPECT_TRUE(attendi(StatoLettore::Finito));
    lettore->apriFlusso(zitta);
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.chieste >= 5; }, 5000));
    QElapsedTimer orologio;
    orologio.start();
    lettore.reset();
    EXPECT_LT(orologio.elapsed(), Subito);
}

TEST_F(ProvaLettore, ChiVieneAvvisatoPuoFinireIlLettore) {
    bool avvisato = false;
    lettore->setAlCambio([&] {
        if (lettore->stato() != StatoLettore::Guasto)
            return;
        avvisato = true;
        lettore.reset();
    });
    lettore->apriFile(file(u"manca"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return avvisato; }, 10000));
    EXPECT_EQ(lettore, nullptr);
}

TEST(ProvaComponenteLettore, SenzaComponenteUnaFrase) {
    QTemporaryDir vuota;
    const EsitoComponenteLettore esito = creaLettore(vuota.path(), nullptr);
    EXPECT_EQ(esito.lettore, nullptr);
    EXPECT_TRUE(esito.motivo.contains(u"manca il componente"_s)) << esito.motivo.toStdString();
}

} // namespace
} // namespace zuvora
