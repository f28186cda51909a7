#include "installer/Banco.h"
#include "installer/Guasto.h"
#include "installer/Verifica.h"
#include "installer/copia/Archivio.h"
#include "installer/copia/Ripristina.h"
#include "installer/copia/Salva.h"

#include <QDir>
#include <QFile>
#include <archive.h>
#include <archive_entry.h>
#include <csignal>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace prova;
using zuvora::installa::elencaCopia;
using zuvora::installa::Esito;
using zuvora::installa::verificaInstallazione;

namespace {
constexpr const char *puntino = "P1 1 1 0\n"; // a picture

class Copia : public Banco {
protected:
    // An installation with a picture, a playlist and a row of the user, saved.
    void SetUp() override {
        sala = impianto(true);
        scrivi(u"impianto/ZuvoraDecorazioni/Elementi/mia.png"_s, puntino);
        scrivi(u"impianto/mia.zvi"_s, (sala + u"/Immagini/foto.jpg\r\n/altrove/foto.jpg\r\n"_s).toLatin1());
        sql(sala + u"/Zuvora.mdb"_s, u"UPDATE Layout7 SET PercorsoImmagine = '%1/ZuvoraDecorazioni/Elementi/mia.png' "
                                     "WHERE rowid = 40; UPDATE Configurazione SET Nominativo = 'L''ATRIO'"_s.arg(sala));
    }
    Esito salva(int tieni = 0) {
        detti.clear();
        return zuvora::installa::salvaInstallazione({sala, copia, tieni}, [&](const QString &riga) { detti += riga; });
    }
    Esito ripristina(const QString &cartella, bool sopra = false) const {
        return zuvora::installa::ripristinaInstallazione({copia, sopra, opzioni(cartella, false)});
    }
    QString vale(const QString &cartella, const QString &istruzione) const {
        return sql(cartella + u"/Zuvora.mdb"_s, istruzione);
    }

    QString sala;
    QString copia = percorso(u"sala.zuvora"_s);
    QStringList detti;
};

const QString immagine = u"SELECT PercorsoImmagine FROM Layout7 WHERE rowid = 40"_s;
const QString nominativo = u"SELECT Nominativo FROM Configurazione"_s;

// An archive with one entry of that name and kind.
void archivioOstile(const QString &file, const char *nome, unsigned specie) {
    archive *a = archive_write_new();
    archive_write_add_filter_zstd(a);
    archive_write_set_format_pax_restricted(a);
    ASSERT_EQ(archive_write_open_filename(a, QFile::encodeName(file).constData()), ARCHIVE_OK);
    archive_entry *voce = archive_entry_new();
    archive_entry_set_pathname(voce, nome);
    archive_entry_set_filetype(voce, specie);
    archive_entry_set_perm(voce, 0644);
    archive_entry_set_size(voce, specie == AE_IFREG ? 1 : 0);
    if (specie == AE_IFLNK)
        archive_entry_set_symlink(voce, "/etc/passwd");
    ASSERT_EQ(archive_write_header(a, voce), ARCHIVE_OK);
    archive_write_data(a, "x", 1);
    archive_entry_free(voce);
    archive_write_close(a);
    archive_write_free(a);
}
} // namespace

TEST_F(Copia, RifaLInstallazioneAltroveColProgrammaAperto) {
    sqlite3 *aperto = nullptr;
    ASSERT_EQ(sqlite3_open((sala + u"/Zuvora.mdb"_s).toUtf8().constData(), &aperto), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(aperto, "BEGIN; SELECT * FROM radio", nullptr, nullptr, nullptr), SQLITE_OK);
    const Esito salvata = salva();
    sqlite3_close(aperto);
    ASSERT_TRUE(salvata.riuscito) << qPrintable(salvata.messaggio);
    EXPECT_EQ(detti, QStringList{u"Non è nella copia: /altrove/foto.jpg"_s});
    const QString elenco = elencaCopia(copia).messaggio;
    EXPECT_TRUE(elenco.contains(u"Elementi/mia.png"_s) && elenco.contains(u"Totem/TotemZuvora.mdb"_s))
        << qPrintable(elenco);
    EXPECT_FALSE(elenco.contains(u"th19.rtf"_s)); // the product brings it

    const QString nuova = percorso(u"altra sala"_s);
    const Esito esito = ripristina(nuova);
    ASSERT_TRUE(esito.riuscito) << qPrintable(esito.messaggio);
    EXPECT_EQ(verificaInstallazione(nuova).difetti, QStringList());
    EXPECT_EQ(vale(nuova, immagine), nuova + u"/ZuvoraDecorazioni/Elementi/mia.png"_s);
    EXPECT_EQ(vale(nuova, nominativo), u"L'ATRIO"_s);
    EXPECT_TRUE(vale(nuova, u"SELECT dindon FROM Configurazione"_s).endsWith(u"\\altra sala\\Suoni\\DinDon.wav"_s));
    EXPECT_EQ(leggi(nuova + u"/mia.zvi"_s), (nuova + u"/Immagini/foto.jpg\r\n/altrove/foto.jpg\r\n"_s).toLatin1());
}

TEST_F(Copia, SopraSalvaPrimaQuellaCheCE) {
    ASSERT_TRUE(salva().riuscito);
    vale(sala, u"UPDATE Configurazione SET Nominativo = 'DOPO'"_s);
    QFile::remove(sala + u"/ZuvoraDecorazioni/Elementi/mia.png"_s);
    const Esito esito = ripristina(sala, true);
    ASSERT_TRUE(esito.riuscito) << qPrintable(esito.messaggio);
    EXPECT_EQ(vale(sala, nominativo), u"L'ATRIO"_s);
    EXPECT_EQ(leggi(sala + u"/ZuvoraDecorazioni/Elementi/mia.png"_s), puntino);
    EXPECT_EQ(verificaInstallazione(sala).difetti, QStringList());

    const QStringList prima = QDir(sala).entryList({u"prima-del-ripristino-*.zuvora"_s});
    ASSERT_EQ(prima.size(), 1);
    copia = sala + u'/' + prima.first();
    ASSERT_TRUE(ripristina(percorso(u"prima"_s)).riuscito);
    EXPECT_EQ(vale(percorso(u"prima"_s), nominativo), u"DOPO"_s);
}

// Whichever step is the last that the process lives to, or that fails: all of the old installation is there again, and
// the restoring done anew succeeds.
TEST_F(Copia, SopraRiesceTuttoONiente) {
    for (const auto &pesante : {u"Immagini"_s, u"Filmati"_s}) // fewer steps
        QDir(sala + u'/' + pesante).removeRecursively();
    scrivi(u"impianto/Nuova/sua/nota.txt"_s, "nota");
    ASSERT_TRUE(salva().riuscito);
    QDir(sala + u"/Nuova"_s).removeRecursively();
    scrivi(u"impianto/mia.zvi"_s, "altra playlist");
    vale(sala, u"UPDATE Configurazione SET Nominativo = 'DOPO'"_s);
    const QString totem = sala + u"/Totem/TotemZuvora.mdb"_s;
    sql(totem, u"UPDATE NumerazioneIniziale SET P1 = 77"_s);
    const auto stato = [&] { // databases by what they hold
        auto file = istantanea(sala);
        file.removeIf([](const auto &voce) {
            return voce.key().contains(u"prima-del-ripristino"_s) || voce.key().contains(u".mdb"_s);
        });
        file[u"nominativo"_s] = vale(sala, nominativo).toUtf8();
        file[u"totem"_s] = sql(totem, u"SELECT P1 FROM NumerazioneIniziale"_s).toUtf8();
        return file;
    };
    const auto prima = stato();
    const QString guasta = percorso(u"guasta"_s);
    scrivi(u"guasta"_s, "non una copia");
    int sospesi = 0;
    const auto fino = [&](const QString &file, int ultimo, bool uccidi) {
        int passi = 0;
        return zuvora::installa::ripristinaInstallazione({file, true, opzioni(sala, false), [&passi, ultimo, uccidi] {
                                                              if (++passi != ultimo)
                                                                  return;
                                                              if (uccidi)
                                                                  raise(SIGKILL);
                                                              throw zuvora::installa::Guasto{u"Basta."_s};
                                                          }});
    };
    const auto muore = [&](const QString &file, int ultimo) { // before that step
        const pid_t figlio = fork();
        if (figlio == 0)
            _exit(fino(file, ultimo, true).riuscito ? 0 : 1);
        int fine = 0;
        waitpid(figlio, &fine, 0);
        return WIFSIGNALED(fine);
    };
    int riuccisi = 0;
    for (int ultimo = 1; !fino(copia, ultimo, false).riuscito; ++ultimo) {
        ASSERT_TRUE(stato() == prima) << "failed at " << ultimo;
        ASSERT_TRUE(muore(copia, ultimo)) << ultimo;
        const QString sospeso = verificaInstallazione(sala).difetti.value(0);
        const bool ameta = sospeso.contains(u"interrotto a metà"_s);
        if (ameta) {
            ++sospesi;
            EXPECT_TRUE(sospeso.contains(u"prima-del-ripristino-"_s)) << qPrintable(sospeso);
            EXPECT_FALSE(salva().riuscito) << "a mixture is no copy";
            riuccisi += muore(guasta, 1 + sospesi % 9) ? 1 : 0; // while it is undone
        } else {
            EXPECT_EQ(vale(sala, nominativo), u"DOPO"_s) << ultimo;
        }
        const Esito rifiuto = fino(guasta, 0, false);
        EXPECT_FALSE(rifiuto.riuscito);
        EXPECT_EQ(rifiuto.messaggio.contains(u"prima annullato"_s), ameta) << qPrintable(rifiuto.messaggio);
        ASSERT_TRUE(stato() == prima) << "killed at " << ultimo;
    }
    EXPECT_GT(sospesi, 8) << "the kills must hit";
    EXPECT_GT(riuccisi, 8);
    EXPECT_EQ(vale(sala, nominativo), u"L'ATRIO"_s);
    EXPECT_EQ(leggi(sala + u"/Nuova/sua/nota.txt"_s), "nota");
    EXPECT_EQ(verificaInstallazione(sala).difetti, QStringList());
    EXPECT_FALSE(stato().keys().join(u' ').contains(u".zuvora-installa"_s));
}

// The kiosk's folder elsewhere on this machine comes into the installation.
TEST_F(Copia, IlTotemFuoriDallaCartellaViAppartiene) {
    const QString fuori = percorso(u"chiosco"_s);
    ASSERT_TRUE(QDir().rename(sala + u"/Totem"_s, fuori));
    scrivi(u"chiosco/Ticket.lbl"_s, "biglietto");
    vale(sala, u"UPDATE ConfigurazioneTotem SET PercorsoReteTotem = '%1'"_s.arg(fuori));
    ASSERT_TRUE(salva().riuscito);
    const QString nuova = percorso(u"nuova"_s);
    ASSERT_TRUE(ripristina(nuova).riuscito);
    EXPECT_EQ(vale(nuova, u"SELECT PercorsoReteTotem FROM ConfigurazioneTotem"_s), nuova + u"/Totem"_s);
    EXPECT_EQ(leggi(nuova + u"/Totem/Ticket.lbl"_s), "biglietto");
    EXPECT_EQ(verificaInstallazione(nuova).difetti, QStringList());
}

TEST_F(Copia, UnaCopiaGuastaEPrimaRifiutataENullaCambia) {
    ASSERT_TRUE(salva().riuscito);
    const QByteArray sana = leggi(copia);
    QList<QByteArray> guaste{sana.left(sana.size() / 2), sana.left(sana.size() - 1), {}, "non una copia"};
    for (const qsizetype dove : {sana.size() / 3, sana.size() / 2, sana.size() - sana.size() / 8}) {
        QByteArray cambiata = sana;
        cambiata[dove] = static_cast<char>(cambiata[dove] ^ 1);
        guaste += cambiata;
    }
    for (const QByteArray &guasta : std::as_const(guaste)) {
        scrivi(u"sala.zuvora"_s, guasta);
        const auto prima = istantanea(percorso());
        EXPECT_FALSE(elencaCopia(copia).riuscito);
        EXPECT_FALSE(ripristina(percorso(u"nuova"_s)).riuscito);
        EXPECT_FALSE(ripristina(sala, true).riuscito);
        EXPECT_EQ(istantanea(percorso()), prima);
    }
}

TEST_F(Copia, IPercorsiOstiliSonoRifiutati) {
    struct Caso {
        const char *nome;
        unsigned specie;
    };
    const Caso casi[] = {{"../fuori", AE_IFREG},  {"/tmp/fuori", AE_IFREG},   {"a/../../fuori", AE_IFREG},
                         {"C:\\fuori", AE_IFREG}, {"collegamento", AE_IFLNK}, {"cartella", AE_IFDIR}};
    for (const Caso &caso : casi) {
        archivioOstile(copia, caso.nome, caso.specie);
        const auto prima = istantanea(percorso());
        const Esito esito = ripristina(percorso(u"nuova"_s));
        EXPECT_FALSE(esito.riuscito);
        EXPECT_TRUE(esito.messaggio.contains(u"voce non ammessa"_s)) << qPrintable(esito.messaggio);
        EXPECT_EQ(istantanea(percorso()), prima) << caso.nome;
    }
}

TEST_F(Copia, RestanoLeUltime) {
    const QString vecchia = percorso(u"sala-20010101-000000.zuvora"_s);
    scrivi(u"sala-20010101-000000.zuvora"_s, "vecchia");
    scrivi(u"sala-altra.zuvora"_s, "non di questo gruppo");
    ASSERT_TRUE(salva(1).riuscito);
    EXPECT_FALSE(QFile::exists(vecchia));
    EXPECT_TRUE(QFile::exists(percorso(u"sala-altra.zuvora"_s)));
    EXPECT_EQ(QDir(percorso()).entryList({u"sala-2*-*.zuvora"_s}).size(), 1);
}

TEST_F(Copia, UnArchivioDanneggiatoNonDiventaUnaCopia) {
    ASSERT_TRUE(salva().riuscito);
    const QByteArray buona = leggi(copia);
    QByteArray byte = leggi(sala + u"/Zuvora.mdb"_s);
    scrivi(u"impianto/Zuvora.mdb"_s, byte.replace(byte.size() - 8192, 4096, QByteArray(4096, '\0')));
    EXPECT_FALSE(salva().riuscito);
    EXPECT_EQ(leggi(copia), buona);
    EXPECT_EQ(QDir(percorso()).entryList(QDir::Files).size(), 1);
}
