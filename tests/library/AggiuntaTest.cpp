// A picture's way into the catalogue, and what is left of it when the program ends on the way.
#include "library/logic/Aggiunta.h"
#include "kit/InstallazioneProva.h"
#include "library/logic/Decorazioni.h"
#include "shell/logic/CopiaFile.h"
#include "shell/store/Data.h"
#include "store/Ostacoli.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <csignal>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// What was made sure to be on the disk, in that order; the disk can be made to refuse.
QStringList *scaricati = nullptr;
bool discoRifiuta = false;
// The process is killed when so many steps more are taken; each time something is to be made sure is one.
int passiDaVivere = 0;

void passo() {
    if (--passiDaVivere == 0)
        raise(SIGKILL);
}

} // namespace

extern "C" int fsync(int descrittore);
extern "C" int fsync(int descrittore) {
    passo();
    if (scaricati != nullptr)
        *scaricati << QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(descrittore));
    if (discoRifiuta) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, descrittore));
}

namespace zuvora {
namespace {

class Aggiunta : public testing::Test {
protected:
    Aggiunta() { scaricati = &scritti; }
    ~Aggiunta() override {
        scaricati = nullptr;
        discoRifiuta = false;
    }
    QString scrivi(const QString &nome, const QByteArray &contenuto) {
        QFile file(i.file(nome));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contenuto) == contenuto.size());
        return file.fileName();
    }
    QByteArray leggi(const QString &percorso) {
        QFile file(percorso);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList inAttesa() {
        return QDir(categoria).entryList({u".*"_s}, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    qlonglong scriviRiga(const QString &nome) {
        Data dato;
        return aggiungiDecorazione(apri(dato, i.cartella(), u"Decorazioni"_s), nome, 1).toLongLong();
    }
    QString posto(const QString &nome) { return postoTemporaneo(categoria, ultimoID(i.cartella()), nome); }

    InstallazioneProva i;
    QString categoria = cartellaDecorazioni(i.cartella(), 0);
    QStringList scritti;
    Avanzamento avanzamento;
};

TEST_F(Aggiunta, LaCopiaEGiaSulDiscoPrimaDelNomeEIlNomePrimaDelSuccesso) {
    const QString origine = scrivi(u"L'età.jpg"_s, QByteArray(3 << 20, 'n'));
    const QString temporaneo = posto(u"L'età.jpg"_s);
    const QString meta = categoria + u"L'età.jpg"_s;
    scrivi(u"ZuvoraDecorazioni/Cornici/L'età.jpg"_s, "vecchio");
    scritti.clear();
    CopiaPreparata copia(origine, temporaneo, avanzamento);
    EXPECT_EQ(copia.motivo(), QString());
    const QString cartella = QFileInfo(temporaneo).path();
    EXPECT_EQ(scritti, QStringList({temporaneo, cartella, QFileInfo(cartella).path()}));
    EXPECT_EQ(avanzamento.percento(), 100);
    EXPECT_EQ(leggi(meta), "vecchio");
    scritti.clear();
    EXPECT_EQ(copia.colloca(meta), QString());
    EXPECT_EQ(scritti, QStringList{QFileInfo(meta).path()});
    EXPECT_EQ(leggi(meta), leggi(origine));
}

TEST_F(Aggiunta, UnaCopiaCheNonRiesceNonLasciaNulla) {
    const QString origine = scrivi(u"a.jpg"_s, QByteArray(3 << 20, 'n'));
    EXPECT_EQ(incontroCopia(origine, i.cartella(), avanzamento), Incontro::Impedito);
    const auto copia = [&](const QString &da) { return CopiaPreparata(da, posto(u"a.jpg"_s), avanzamento).motivo(); };
    EXPECT_TRUE(copia(i.file(u"manca.jpg"_s)).contains(u"non esiste"_s));
    EXPECT_FALSE(copia(i.cartella()).isEmpty()) << "a folder is no file";
    discoRifiuta = true;
    EXPECT_TRUE(copia(origine).contains(u"Errore del disco"_s));
    discoRifiuta = false;
    {
        const prova::LimiteFile pieno(2 << 20);
        EXPECT_TRUE(copia(origine).contains(u"troppo grande"_s));
    }
    { CopiaPreparata abbandonata(origine, posto(u"a.jpg"_s), avanzamento); }
    QDir(categoria).mkdir(u"a.jpg"_s);
    EXPECT_FALSE(CopiaPreparata(origine, posto(u"a.jpg"_s), avanzamento).colloca(categoria + u"a.jpg"_s).isEmpty());
    avanzamento.annulla();
    EXPECT_FALSE(copia(origine).isEmpty());
    EXPECT_EQ(inAttesa(), QStringList());
}

// The process is killed at each step in turn: a row always has its whole picture in the end, and nothing is left that
// waits.
TEST_F(Aggiunta, UnaFineImprovvisaSiRiparaAllaProssimaApertura) {
    const QByteArray contenuto(2 << 20, 'n');
    int senzaRiga = 0; // kills that left a copy waiting
    int conRiga = 0;
    int fine = 0;
    for (int vita = 1; vita == 1 || WIFSIGNALED(fine); ++vita) {
        const QString nome = u"n%1.jpg"_s.arg(vita);
        const QString origine = scrivi(nome, contenuto);
        const pid_t figlio = fork();
        if (figlio == 0) {
            passiDaVivere = vita;
            CopiaPreparata copia(origine, posto(nome), avanzamento);
            passo();
            scriviRiga(nome);
            passo();
            copia.colloca(categoria + nome);
            _exit(0);
        }
        waitpid(figlio, &fine, 0);
        const bool riga = i.valore(u"SELECT count(*) FROM Decorazioni WHERE File='%1'"_s.arg(nome)).toInt() > 0;
        (riga ? conRiga : senzaRiga) += inAttesa().isEmpty() ? 0 : 1;
        EXPECT_TRUE(riga || WIFSIGNALED(fine));
        riparaAggiunte(i.cartella());
        EXPECT_EQ(leggi(categoria + nome) == contenuto, riga) << vita;
        EXPECT_EQ(QFile::exists(categoria + nome), riga) << vita;
        EXPECT_EQ(inAttesa(), QStringList()) << vita;
    }
    EXPECT_GT(senzaRiga, 2) << "the kills must hit";
    EXPECT_GT(conRiga, 0);
}

} // namespace
} // namespace zuvora
