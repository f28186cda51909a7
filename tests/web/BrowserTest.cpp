#include "web/FinestraWeb.h"
#include "web/ServerProva.h"

#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QNetworkProxy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTemporaryDir>
#include <csignal>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// With a certificate that signs itself, for this test alone.
QTcpServer *serverCifrato() {
    auto *server = new QSslServer;
    QSslConfiguration cifra = QSslConfiguration::defaultConfiguration();
    QFile chiave(QStringLiteral(CERTIFICATO_PROVA));
    EXPECT_TRUE(chiave.open(QIODevice::ReadOnly));
    cifra.setPrivateKey(QSslKey(&chiave, QSsl::Ec));
    cifra.setLocalCertificate(QSslCertificate::fromPath(chiave.fileName()).value(0));
    server->setSslConfiguration(cifra);
    return server;
}

TEST(BrowserWeb, ShowsWhatTheServerSends) {
    ServerProva server;
    server.pagine[u"/"_s] = {"<title>notizie</title>"};
    server.pagine[u"/rinvio"_s] = {"", "302 Found", "Location: /\r\n"};
    server.pagine[u"/404"_s] = {"<title>errore del server</title>", "404 Not Found"};
    FinestraWeb finestra;
    for (const auto &[percorso, titolo] :
         {std::pair(u"/"_s, u"notizie"_s), {u"/404"_s, u"errore del server"_s}, {u"/rinvio"_s, u"notizie"_s}}) {
        EXPECT_TRUE(finestra.apri(server.indirizzo(percorso)));
        EXPECT_TRUE(finestra.attendiTitolo(titolo)) << percorso.toStdString();
        EXPECT_EQ(finestra.browser.avviso(), QString());
        EXPECT_TRUE(vistaDi(finestra.browser)->isVisible());
    }
    EXPECT_TRUE(server.chieste[u"/"_s].contains("Accept-Language: it-IT"));
}

TEST(BrowserWeb, SaysInItalianWhyThereIsNoPage) {
    ServerProva server;
    server.pagine[u"/muta"_s].muta = true;
    server.pagine[u"/file"_s] = {"", "302 Found", "Location: file:///etc/hostname\r\n"};
    server.pagine[u"/posta"_s] = {"", "302 Found", "Location: mailto:a@b.example\r\n"};
    server.pagine[u"/zip"_s] = {"PK", "200 OK", "Content-Disposition: attachment; filename=a.zip\r\n"};
    server.pagine[u"/vuota"_s] = {"", "204 No Content"};
    const QString chiusa = u"http://127.0.0.1:%1/città?a=1&b=2"_s.arg(portaChiusa());
    server.pagine[u"/morta"_s] = {"<script>onload = () => setTimeout(() => location.href = '" + chiusa.toUtf8() +
                                  "', 50)</script>"};
    const std::pair<QString, QString> casi[] = {
        {chiusa, u"non è raggiungibile:\n\n"_s + chiusa},
        {u"http://nessuno.invalid/"_s, u"non è raggiungibile"_s},
        {server.indirizzo(u"/muta"_s), u"non è raggiungibile"_s},
        {server.indirizzo(u"/file"_s), u"non porta a una pagina web"_s},
        {server.indirizzo(u"/posta"_s), u"non porta a una pagina web"_s},
        {server.indirizzo(u"/zip"_s), u"non porta a una pagina web"_s},
        {server.indirizzo(u"/vuota"_s), u"non porta a una pagina web"_s},
        {u"file:///etc/hostname"_s, u"non è quello di una pagina web"_s},
        {QString(), u"non è stato impostato"_s},
    };
    FinestraWeb finestra;
    for (const auto &[indirizzo, motivo] : casi) {
        EXPECT_FALSE(finestra.apri(indirizzo)) << indirizzo.toStdString();
        const QString avviso = finestra.browser.avviso();
        EXPECT_TRUE(avviso.contains(motivo)) << indirizzo.toStdString() << ": " << avviso.toStdString();
        EXPECT_EQ(vistaDi(finestra.browser), nullptr) << indirizzo.toStdString();
    }
    EXPECT_FALSE(finestra.apri(chiusa + QString(5000, u'x')));
    EXPECT_LT(finestra.browser.avviso().size(), 700);
    EXPECT_TRUE(finestra.apri(server.indirizzo(u"/morta"_s))) << "a page with a link that leads nowhere";
    EXPECT_TRUE(aspetta([&] { return finestra.browser.avviso().contains(chiusa); }, Attesa_ms));
}

TEST(BrowserWeb, TrustsNoCertificateThatNobodyVouchesFor) {
    ServerProva server(serverCifrato());
    FinestraWeb finestra;
    EXPECT_FALSE(finestra.apri(u"https://127.0.0.1:%1/"_s.arg(server.porta())));
    EXPECT_TRUE(finestra.browser.avviso().contains(u"certificato"_s)) << finestra.browser.avviso().toStdString();
    EXPECT_TRUE(server.chieste.isEmpty());
}

TEST(BrowserWeb, APasswordIsRefusedAndTold) {
    ServerProva server;
    const QByteArray sfida = " realm=\"x\"\r\n";
    server.pagine[u"/chiusa"_s] = {"<title>vietato</title>", "401 Unauthorized", "WWW-Authenticate: Basic" + sfida};
    server.pagine[u"/muro"_s] = {"<title>vietato</title>", "401 Unauthorized"};
    server.pagine[u"/figura"_s] = {
        "<title>aperta</title><img src='/chiusa' onerror=\"document.title = 'senza figura'\">"};
    FinestraWeb finestra;
    EXPECT_FALSE(finestra.apri(server.indirizzo(u"/chiusa"_s)));
    EXPECT_TRUE(finestra.browser.avviso().startsWith(u"La pagina chiede un nome utente e una password"_s))
        << finestra.browser.avviso().toStdString();
    EXPECT_LE(server.quante, 2);
    EXPECT_TRUE(finestra.apri(server.indirizzo(u"/muro"_s))) << "the server's own page on its error";
    EXPECT_TRUE(finestra.apri(server.indirizzo(u"/figura"_s))) << "only a part of the page is closed";
    EXPECT_TRUE(finestra.attendiTitolo(u"senza figura"_s));
}

TEST(BrowserWeb, AProxyThatWantsAPasswordIsTold) {
    ServerProva proxy;
    proxy.pagine[u"http://sito.example/"_s] = {"<title>vietato</title>", "407 Proxy Authentication Required",
                                               "Proxy-Authenticate: Basic realm=\"x\"\r\n"};
    proxy.pagine[u"sito.example:443"_s] = proxy.pagine[u"http://sito.example/"_s];
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, u"127.0.0.1"_s, proxy.porta()});
    FinestraWeb finestra;
    const auto conosciuto = [&] { // the engine learns of another proxy while it asks for something
        finestra.apri(u"http://sito.example/"_s);
        return proxy.quante > 0;
    };
    EXPECT_TRUE(aspetta(conosciuto, Attesa_ms));
    proxy.quante = 0;
    for (const QString &indirizzo : {u"http://sito.example/"_s, u"https://sito.example/"_s}) {
        EXPECT_FALSE(finestra.apri(indirizzo));
        EXPECT_TRUE(finestra.browser.avviso().contains(u"il proxy della rete chiede"_s))
            << finestra.browser.avviso().toStdString();
    }
    EXPECT_LE(proxy.quante, 4);
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

TEST(BrowserWeb, APageThatTakesAllMemoryIsEnded) {
    ServerProva server;
    const QByteArray avida = "<title>avida</title><script>const a = []; setInterval(() => a.push(new "
                             "Uint8Array(2e7).fill(1)), 10)</script>";
    server.pagine[u"/"_s] = {avida};
    server.pagine[u"/cornice"_s] = {
        "<title>avida</title><iframe src='http://localhost:" + QByteArray::number(server.porta()) + "/'></iframe>"};
    FinestraWeb finestra;
    for (const QString &percorso : {u"/"_s, u"/cornice"_s}) {
        EXPECT_TRUE(finestra.apri(server.indirizzo(percorso)));
        EXPECT_TRUE(
            aspetta([&] { return finestra.browser.avviso().contains(u"occupava troppa memoria"_s); }, Attesa_ms))
            << percorso.toStdString();
    }
}

TEST(BrowserWeb, TheLastAddressAskedForWins) {
    ServerProva server;
    server.pagine[u"/b"_s] = {"<title>b</title>"};
    FinestraWeb finestra;
    finestra.browser.vai(server.indirizzo(u"/a"_s));
    EXPECT_TRUE(finestra.apri(server.indirizzo(u"/b"_s)));
    EXPECT_TRUE(finestra.attendiTitolo(u"b"_s));
    EXPECT_FALSE(server.chieste.contains(u"/a"_s));
    finestra.browser.vai(server.indirizzo(u"/b"_s));
    EXPECT_FALSE(finestra.apri(u"javascript:1"_s));
    finestra.browser.vai(u"javascript:1"_s);
    EXPECT_TRUE(finestra.apri(server.indirizzo(u"/b"_s)));
}

TEST(BrowserWeb, APageThatDiesIsReplacedByATextAndCanBeAskedForAgain) {
    ServerProva server;
    server.pagine[u"/"_s] = {"<title>notizie</title>"};
    FinestraWeb finestra;
    ASSERT_TRUE(finestra.apri(server.indirizzo(u"/"_s)));
    qint64 processo = 0;
    for (const QObject *figlio : vistaDi(finestra.browser)->children())
        if (figlio->inherits("QWebEnginePage"))
            processo = figlio->property("renderProcessPid").toLongLong();
    ASSERT_GT(processo, 1);
    ::kill(static_cast<pid_t>(processo), SIGKILL);
    EXPECT_TRUE(aspetta([&] { return finestra.browser.avviso().contains(u"si è chiusa per un errore"_s); }, Attesa_ms));
    EXPECT_TRUE(finestra.apri(server.indirizzo(u"/"_s)));
    EXPECT_TRUE(finestra.attendiTitolo(u"notizie"_s));
}

TEST(BrowserWeb, APageOfOurOwnNamesItsBaseToOthers) {
    ServerProva server;
    server.pagine[u"/filmato"_s] = {"<title>x</title>"};
    FinestraWeb finestra;
    const QString html = u"<title>nostra</title><iframe src='%1'></iframe>"_s.arg(server.indirizzo(u"/filmato"_s));
    finestra.browser.mostraHtml(html, QUrl(u"http://sito.example/"_s));
    EXPECT_TRUE(finestra.attendi());
    EXPECT_TRUE(finestra.attendiTitolo(u"nostra"_s));
    EXPECT_TRUE(server.chieste[u"/filmato"_s].contains("Referer: http://sito.example/"));
    finestra.browser.mostraHtml(html, QUrl(u"file:///etc/"_s));
    EXPECT_TRUE(aspetta([&] { return finestra.browser.avviso().contains(u"non porta a una pagina"_s); }, Attesa_ms));
}

TEST(BrowserWeb, WithoutAUsableComponentSaysSo) {
    const QTemporaryDir vuota;
    FinestraWeb senza(vuota.path());
    EXPECT_FALSE(senza.apri(u"http://127.0.0.1/"_s));
    EXPECT_TRUE(senza.browser.avviso().contains(u"manca il componente libzuvora-web.so"_s));
    QFile guasto(vuota.filePath(u"libzuvora-web.so"_s));
    ASSERT_TRUE(guasto.open(QIODevice::WriteOnly) && guasto.write("nessuna libreria") > 0);
    guasto.close();
    EXPECT_FALSE(senza.apri(u"http://127.0.0.1/"_s));
    EXPECT_TRUE(senza.browser.avviso().contains(u"non può essere caricato"_s));
    qputenv("QTWEBENGINEPROCESS_PATH", "/nessuno");
    FinestraWeb monca;
    EXPECT_FALSE(monca.apri(u"http://127.0.0.1/"_s));
    qunsetenv("QTWEBENGINEPROCESS_PATH");
    EXPECT_TRUE(monca.browser.avviso().contains(u"non è installato per intero"_s));
}

// Each page tries something and tells in its title what came of it.
TEST(BloccoWeb, APageGetsNothingFromTheMachine) {
    struct Caso {
        const char *script;
        QString titolo;
    };
    const Caso casi[] = {
        {"titolo(String(window.open('/altra')))", u"null"_s},
        {"alert('x'); titolo(confirm('x') + ' ' + prompt('x', 'y'))", u"false null"_s},
        {"fetch('file:///etc/hostname').then(() => titolo('letto'), () => titolo('negato'))", u"negato"_s},
        {"location.href = 'file:///etc/hostname'; setTimeout(() => titolo('resta'), 50)", u"resta"_s},
        {"location.href = 'mailto:a@b.example'; setTimeout(() => titolo('resta'), 50)", u"resta"_s},
        {"location.href = '/zip'; setTimeout(() => titolo('resta'), 200)", u"resta"_s},
        {"navigator.geolocation.getCurrentPosition(() => titolo('dove'), e => titolo('negato ' + e.code))",
         u"negato 1"_s},
        {"Notification.requestPermission().then(titolo)", u"denied"_s},
        {"navigator.clipboard.readText().then(() => titolo('letto'), () => titolo('negato'))", u"negato"_s},
        {"navigator.clipboard.writeText('x').then(() => titolo('scritto'), () => titolo('negato'))", u"negato"_s},
        {"navigator.mediaDevices.getUserMedia({audio: true}).then(() => titolo('ascolta'), () => titolo('negato'))",
         u"negato"_s},
    };
    ServerProva server;
    server.pagine[u"/zip"_s] = {"PK", "200 OK", "Content-Disposition: attachment; filename=a.zip\r\n"};
    FinestraWeb finestra;
    for (const Caso &caso : casi) {
        server.pagine[u"/prova"_s] = {"<script>function titolo(t) { document.title = t }" + QByteArray(caso.script) +
                                      "</script>"};
        EXPECT_TRUE(finestra.apri(server.indirizzo(u"/prova"_s)));
        EXPECT_TRUE(finestra.attendiTitolo(caso.titolo))
            << caso.script << ": " << titoloDi(finestra.browser).toStdString();
        EXPECT_EQ(vistaDi(finestra.browser)->property("url").toUrl().path(), u"/prova"_s) << caso.script;
    }
    EXPECT_FALSE(server.chieste.contains(u"/altra"_s));
}

TEST(BloccoWeb, NothingOutlivesAPage) {
    ServerProva server;
    server.pagine[u"/"_s] = {"<script>document.title = (localStorage.x || 'nuova') + ' ' + window.indexedDB;"
                             "localStorage.x = 'vecchia'; setTimeout(() => location.href = '/oltre', 200)</script>",
                             "200 OK", "Set-Cookie: visita=1; Max-Age=99999\r\nCache-Control: max-age=99999\r\n"};
    server.pagine[u"/oltre"_s] = {"<script>document.title = localStorage.x</script>"};
    FinestraWeb finestra;
    for (int volta = 0; volta < 2; ++volta) {
        server.chieste.clear();
        EXPECT_TRUE(finestra.apri(server.indirizzo(u"/"_s)));
        EXPECT_TRUE(finestra.attendiTitolo(u"nuova undefined"_s));
        EXPECT_TRUE(finestra.attendiTitolo(u"vecchia"_s)) << "within one visit a site remembers";
        EXPECT_TRUE(server.chieste.contains(u"/"_s));
        EXPECT_FALSE(server.chieste[u"/"_s].contains("visita"));
    }
    for (const auto dove : {QStandardPaths::AppLocalDataLocation, QStandardPaths::CacheLocation})
        EXPECT_FALSE(QDir(QStandardPaths::writableLocation(dove) + u"/QtWebEngine"_s).exists());
}

// The engine may be at work on the file when its page goes. ZUVORA_VOLTE asks for more pages than a test has time for.
TEST(BloccoWeb, APageThatSendsAFileCanBeLeftAtAnyMoment) {
    ServerProva server;
    server.pagine[u"/zip"_s] = {"PK", "200 OK", "Content-Disposition: attachment; filename=a.zip\r\n"};
    FinestraWeb finestra;
    const int volte = std::max(16, qEnvironmentVariableIntValue("ZUVORA_VOLTE"));
    for (int volta = 0; volta < volte && !HasFailure(); ++volta) {
        const QByteArray titolo = "pagina " + QByteArray::number(volta);
        server.pagine[u"/"_s] = {"<script>location.href = '/zip'; setTimeout(() => document.title = '" + titolo +
                                 "', " + QByteArray::number(3 * (volta % 8)) + ")</script>"};
        EXPECT_TRUE(finestra.apri(server.indirizzo(u"/"_s)));
        EXPECT_TRUE(finestra.attendiTitolo(QString::fromLatin1(titolo)));
    }
}

} // namespace
} // namespace zuvora
