// What a page may not do.
#include "web/FinestraWeb.h"
#include "web/ServerProva.h"

#include <QDir>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

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
