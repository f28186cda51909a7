#include "installer/Banco.h"
#include "installer/Cantiere.h"
#include "installer/Interruzione.h"
#include "installer/Verifica.h"
#include "store/Ostacoli.h"

#include <QDir>
#include <QFile>
#include <functional>

using namespace Qt::Literals::StringLiterals;
using namespace zuvora::installa;
using namespace prova;
using zuvora::prova::LimiteFile;

namespace {
// A folder with a program and data beside it, as small as can be.
void creaOrigine(const QString &cartella) {
    for (const auto nome : {"ZuvoraDecorazioni/Cornici", "ZuvoraSfondiHD", "Suoni", "plugins"})
        QDir().mkpath(cartella + u'/' + QLatin1StringView(nome));
    for (const auto nome : {"vero", "zuvora-installa", "libzuvora-web.so", "libaltro.so", "plugins/libvoce.so"}) {
        QFile file(cartella + u'/' + QLatin1StringView(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(nome);
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }
    ASSERT_TRUE(QFile::link(u"vero"_s, cartella + u"/zuvora"_s));
}
} // namespace

using Crea = Banco;

TEST_F(Crea, LInstallazioneEInOrdineAncheInUnaCartellaDalNomeDifficile) {
    for (const bool esempio : {false, true}) {
        const QString cartella = percorso(u"sala d'attesa 100% àèì/%1/impianto"_s.arg(esempio));
        const Esito esito = creaInstallazione(opzioni(cartella, esempio));
        ASSERT_TRUE(esito.riuscito) << qPrintable(esito.messaggio);
        EXPECT_EQ(verificaInstallazione(cartella).difetti, QStringList());
        EXPECT_EQ(sql(cartella + u"/Zuvora.mdb"_s, u"SELECT PercorsoReteTotem FROM ConfigurazioneTotem"_s),
                  QDir::toNativeSeparators(cartella + u"/Totem"_s));
    }
}

TEST_F(Crea, IlProgrammaEICopiatoConIPlugin) {
    creaOrigine(percorso(u"origine"_s));
    const QString cartella = percorso(u"impianto"_s);
    const Esito esito = creaInstallazione({cartella, false, {}, true, percorso(u"origine"_s)});
    ASSERT_TRUE(esito.riuscito) << qPrintable(esito.messaggio);

    const QFileInfo programma(cartella + u"/zuvora"_s);
    EXPECT_TRUE(programma.isFile() && !programma.isSymLink() && programma.isExecutable());
    EXPECT_EQ(leggi(cartella + u"/zuvora"_s), "vero");
    EXPECT_EQ(leggi(cartella + u"/libzuvora-web.so"_s), "libzuvora-web.so");
    EXPECT_EQ(leggi(cartella + u"/plugins/libvoce.so"_s), "plugins/libvoce.so");
    EXPECT_TRUE(QFile::exists(cartella + u"/zuvora-installa"_s));
    EXPECT_FALSE(QFile::exists(cartella + u"/libaltro.so"_s));
}

TEST_F(Crea, NullaCambiaSeLaCartellaNonServe) {
    const struct {
        const char *presente; // file that is there before
        const char *cartella;
        const char *frase;
    } casi[] = {{"a/Zuvora.mdb", "a", "c'è già un archivio (Zuvora.mdb)"},
                {"b/ZUVORA.MDB", "b", "c'è già un archivio"},
                {"c/vecchio.mdb", "c", "c'è già un archivio"},
                {"d/mie/note.txt", "d", "c'è già mie"},
                {"e", "e", "non è una cartella"},
                {"f", "f/nuova/impianto", "non è una cartella"}};
    for (const auto &caso : casi) {
        scrivi(QString::fromUtf8(caso.presente), "contenuto");
        const auto prima = istantanea(percorso());
        const Esito esito = creaInstallazione(opzioni(percorso(QString::fromUtf8(caso.cartella)), true));
        EXPECT_FALSE(esito.riuscito);
        EXPECT_TRUE(esito.messaggio.contains(QString::fromUtf8(caso.frase))) << qPrintable(esito.messaggio);
        EXPECT_EQ(istantanea(percorso()), prima);
    }
}

TEST_F(Crea, SenzaProgrammaOImmaginiAccantoSiFerma) {
    const QString origine = percorso(u"origine"_s);
    creaOrigine(origine);
    for (const auto mancante : {"zuvora", "ZuvoraSfondiHD"}) {
        const QString nome = QString::fromLatin1(mancante);
        ASSERT_TRUE(QDir().rename(origine + u'/' + nome, percorso(u"via"_s)));
        const Esito esito = creaInstallazione({percorso(u"a/b/impianto"_s), false, {}, true, origine});
        EXPECT_FALSE(esito.riuscito);
        EXPECT_TRUE(esito.messaggio.contains(nome)) << qPrintable(esito.messaggio);
        EXPECT_FALSE(QFile::exists(percorso(u"a"_s)));
        ASSERT_TRUE(QDir().rename(percorso(u"via"_s), origine + u'/' + nome));
    }
}

// From a first file that doesn't fit to a database that fits but for its last pages.
TEST_F(Crea, UnDiscoCheSiRiempieNonLasciaTracce) {
    const qint64 intero = QFileInfo(impianto() + u"/Zuvora.mdb"_s).size();
    ASSERT_TRUE(QDir().mkdir(percorso(u"nuovo"_s)));
    const auto prima = istantanea(percorso());
    for (const qint64 limite : {qint64(0), qint64(50000), intero / 2, intero - 4096}) {
        for (const auto &cartella : {u"nuovo"_s, u"altro/nuovissimo"_s}) {
            Esito esito{};
            {
                const LimiteFile disco(limite);
                esito = creaInstallazione(opzioni(percorso(cartella), true));
            }
            EXPECT_FALSE(esito.riuscito) << limite;
            EXPECT_TRUE(
                esito.messaggio.contains(u"troppo grande per questo disco"_s) ||
                esito.messaggio.contains(u"%1/Zuvora.mdb: lo spazio sul disco è esaurito"_s.arg(percorso(cartella))))
                << qPrintable(esito.messaggio);
            EXPECT_EQ(istantanea(percorso()), prima) << limite;
        }
    }
}

// Runs in a process of its own; gives its process number.
pid_t inUnAltroProcesso(const std::function<bool()> &lavoro) {
    const pid_t figlio = fork();
    if (figlio == 0)
        _exit(lavoro() ? 0 : 1);
    return figlio;
}

// Whatever had reached its place when the process died, the next one begins anew.
TEST_F(Crea, CioCheUnProcessoUccisoLasciaVieneTolto) {
    const QString cartella = percorso(u"nuovo"_s);
    const auto presenti = [&] { return QDir(cartella).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(); };
    for (int entrate = 0; entrate < 6; ++entrate) {
        const pid_t figlio = inUnAltroProcesso([&] { return creaInstallazione(opzioni(cartella, false)).riuscito; });
        int stato = 0;
        while (presenti() < entrate && waitpid(figlio, &stato, WNOHANG) == 0)
            usleep(100);
        kill(figlio, SIGKILL);
        waitpid(figlio, &stato, 0);
        if (QFile::exists(cartella + u"/Zuvora.mdb"_s)) { // it was faster
            EXPECT_EQ(verificaInstallazione(cartella).difetti, QStringList());
            QDir(cartella).removeRecursively();
        }
        const Esito esito = creaInstallazione(opzioni(cartella, false));
        EXPECT_TRUE(esito.riuscito) << qPrintable(esito.messaggio);
        EXPECT_EQ(verificaInstallazione(cartella).difetti, QStringList());
        EXPECT_EQ(QDir(cartella).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 7);
        QDir(cartella).removeRecursively();
    }
}

TEST_F(Crea, UnInterruzioneNonLasciaTracce) {
    const QString cartella = percorso(u"a/b"_s);
    const pid_t figlio = inUnAltroProcesso([&] {
        ascoltaInterruzioni();
        raise(SIGTERM);
        const Esito esito = creaInstallazione(opzioni(cartella, false));
        return !esito.riuscito && esito.messaggio.startsWith(u"Interrotto"_s);
    });
    int stato = -1;
    waitpid(figlio, &stato, 0);
    EXPECT_EQ(stato, 0);
    EXPECT_TRUE(istantanea(percorso()).isEmpty());
}

TEST_F(Crea, DueAllaVoltaNonSiMescolano) {
    const Cantiere altro(percorso(u"nuovo"_s));
    const Esito esito = creaInstallazione(opzioni(percorso(u"nuovo"_s), false));
    EXPECT_FALSE(esito.riuscito);
    EXPECT_TRUE(QFile::exists(altro.preparazione()));
}

TEST_F(Crea, LaPaginaDelleNotizieSiSceglie) {
    OpzioniCrea scelta = opzioni(percorso(u"nuovo"_s), false);
    scelta.notizie = u"comune.example/avvisi"_s;
    ASSERT_TRUE(creaInstallazione(scelta).riuscito);
    EXPECT_EQ(sql(percorso(u"nuovo/Zuvora.mdb"_s), u"SELECT PercorsoURL FROM TG"_s), u"http://comune.example/avvisi"_s);
    scelta.cartella = percorso(u"altro"_s);
    scelta.notizie = u"file:///etc/passwd"_s;
    EXPECT_FALSE(creaInstallazione(scelta).riuscito);
    EXPECT_FALSE(QFile::exists(scelta.cartella));
}
