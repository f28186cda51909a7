#include "installer/Crea.h"
#include "installer/Disegna.h"
#include "installer/Interruzione.h"
#include "installer/Programma.h"
#include "installer/Verifica.h"
#include "installer/copia/Ripristina.h"
#include "installer/copia/Salva.h"
#include "installer/importa/FonteAccess.h"
#include "installer/importa/Importa.h"
#include "installer/importa/LettoreAccess.h"

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace zuvora::installa;

namespace {
enum Uscita { InOrdine = 0, NonRiuscito = 1, UsoErrato = 2 };

const auto istruzioni =
    u"Uso: zuvora-installa COMANDO\n"
    "\n"
    "Comandi:\n"
    "  crea [--esempio] [--notizie URL] CARTELLA\n"
    "                      crea un'installazione completa nella cartella, nuova o vuota; --esempio aggiunge\n"
    "                      contenuti di esempio, --notizie sceglie la pagina delle notizie\n"
    "  importa VECCHIO.mdb [--totem VECCHIO_TOTEM.mdb] [--cartella VECCHIA] CARTELLA\n"
    "                      crea un'installazione dai database di una vecchia, in formato Access 97 o 2000-2003;\n"
    "                      --cartella prende dalla vecchia cartella immagini, playlist, suoni e frase\n"
    "  aggiorna CARTELLA   porta nell'installazione il programma di questa macchina; i dati restano come sono\n"
    "  disegna CARTELLA LAYOUT FILE.png\n"
    "                      scrive l'immagine di un layout (LayoutBase, Layout1 ... Layout10)\n"
    "  salva [--tieni N] CARTELLA FILE\n"
    "                      salva l'installazione in un file, anche con il programma aperto; con --tieni il nome\n"
    "                      prende la data e restano le ultime N copie\n"
    "  ripristina [--sopra] FILE CARTELLA\n"
    "                      rifà l'installazione di una copia nella cartella, nuova o vuota; con --sopra al posto\n"
    "                      di quella che c'è, che prima viene salvata\n"
    "  elenca FILE         mostra che cosa contiene una copia\n"
    "  verifica CARTELLA   controlla un'installazione senza modificarla: una riga per ogni difetto; le note\n"
    "                      non sono difetti\n"
    "  --help              mostra queste istruzioni\n"
    "  --version           mostra la versione\n"
    "\n"
    "Esito: 0 tutto in ordine, 1 non riuscito o difetti trovati, 2 comando errato.\n"_s;

void scrivi(std::FILE *dove, const QString &testo) {
    std::fputs(testo.toLocal8Bit().constData(), dove);
}

int usoErrato(const QString &motivo) {
    scrivi(stderr, motivo + u"\n\n"_s + istruzioni);
    return UsoErrato;
}

int riferisci(const Esito &esito) {
    scrivi(esito.riuscito ? stdout : stderr, esito.messaggio + u'\n');
    return esito.riuscito ? InOrdine : NonRiuscito;
}

// What stood on the command line: options with their value (empty when they take none), and the rest in its order.
struct Richiesta {
    QHash<QString, QString> opzioni;
    QStringList argomenti;
};

int crea(const Richiesta &richiesta) {
    ascoltaInterruzioni();
    OpzioniCrea opzioni;
    opzioni.cartella = richiesta.argomenti.first();
    opzioni.esempio = richiesta.opzioni.contains(u"--esempio"_s);
    opzioni.notizie = richiesta.opzioni.value(u"--notizie"_s);
    return riferisci(creaInstallazione(opzioni));
}

int importa(const Richiesta &richiesta) {
    ascoltaInterruzioni();
    OpzioniImporta opzioni;
    opzioni.archivio = richiesta.argomenti.at(0);
    opzioni.crea.cartella = richiesta.argomenti.at(1);
    opzioni.totem = richiesta.opzioni.value(u"--totem"_s);
    opzioni.vecchia = richiesta.opzioni.value(u"--cartella"_s);
    return riferisci(importaInstallazione(opzioni, [](const QString &riga) {
        scrivi(stdout, riga + u'\n');
        std::fflush(stdout);
    }));
}

int aggiorna(const Richiesta &richiesta) {
    ascoltaInterruzioni();
    return riferisci(aggiornaInstallazione(richiesta.argomenti.first()));
}

int disegna(const Richiesta &richiesta) {
    return riferisci(disegnaLayout(richiesta.argomenti.at(0), richiesta.argomenti.at(1), richiesta.argomenti.at(2)));
}

// Only the drawing of a layout needs the graphics module, and no display.
std::unique_ptr<QCoreApplication> applicazione(int &argc, char **argv) {
    if (argc < 2 || std::strcmp(argv[1], "disegna") != 0)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

int leggiPerAltri(const QString &file) {
    QFile uscita;
    if (!uscita.open(stdout, QIODevice::WriteOnly))
        return NonRiuscito;
    return leggiAccess(file, uscita);
}

int salva(const Richiesta &richiesta) {
    ascoltaInterruzioni();
    OpzioniSalva opzioni{richiesta.argomenti.at(0), richiesta.argomenti.at(1), 0};
    if (richiesta.opzioni.contains(u"--tieni"_s)) {
        opzioni.tieni = richiesta.opzioni.value(u"--tieni"_s).toInt();
        if (opzioni.tieni < 1)
            return usoErrato(u"Con --tieni va un numero da 1 in su."_s);
    }
    return riferisci(salvaInstallazione(opzioni, [](const QString &riga) { scrivi(stdout, riga + u'\n'); }));
}

int ripristina(const Richiesta &richiesta) {
    ascoltaInterruzioni();
    OpzioniRipristina opzioni{richiesta.argomenti.at(0), richiesta.opzioni.contains(u"--sopra"_s), {}};
    opzioni.crea.cartella = richiesta.argomenti.at(1);
    return riferisci(ripristinaInstallazione(opzioni));
}

int elenca(const Richiesta &richiesta) {
    return riferisci(elencaCopia(richiesta.argomenti.first()));
}

int verifica(const Richiesta &richiesta) {
    const Rapporto rapporto = verificaInstallazione(richiesta.argomenti.first());
    for (const QString &difetto : rapporto.difetti)
        scrivi(stdout, difetto + u'\n');
    for (const QString &nota : rapporto.note)
        scrivi(stdout, u"Nota: %1\n"_s.arg(nota));
    if (rapporto.difetti.isEmpty())
        scrivi(stdout, u"Installazione in ordine.\n"_s);
    return rapporto.difetti.isEmpty() ? InOrdine : NonRiuscito;
}

struct Comando {
    QLatin1StringView nome;
    QStringList opzioni;   // without a value
    QStringList conValore; // with one
    QStringList argomenti; // what each stands for
    int (*esegui)(const Richiesta &richiesta);
};

int esegui(const Comando &comando, QStringList parole) {
    Richiesta richiesta;
    while (!parole.isEmpty()) {
        const QString parola = parole.takeFirst();
        if (comando.conValore.contains(parola)) {
            if (parole.isEmpty())
                return usoErrato(u"Manca il valore di %1."_s.arg(parola));
            richiesta.opzioni.insert(parola, parole.takeFirst());
        } else if (comando.opzioni.contains(parola)) {
            richiesta.opzioni.insert(parola, {});
        } else if (parola.startsWith(u'-')) {
            return usoErrato(u"Opzione sconosciuta: %1"_s.arg(parola));
        } else {
            richiesta.argomenti += parola;
        }
    }
    if (richiesta.argomenti.size() < comando.argomenti.size())
        return usoErrato(u"Manca: %1."_s.arg(comando.argomenti.at(richiesta.argomenti.size())));
    if (richiesta.argomenti.size() > comando.argomenti.size())
        return usoErrato(u"Argomento di troppo: %1"_s.arg(richiesta.argomenti.at(comando.argomenti.size())));
    return comando.esegui(richiesta);
}
} // namespace

int main(int argc, char **argv) {
    // A limit on file sizes must fail the write, with a message, not end the process half-way.
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    const auto app = applicazione(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(ZUVORA_VERSIONE));

    const std::array comandi{
        Comando{"crea"_L1, {u"--esempio"_s}, {u"--notizie"_s}, {u"la cartella"_s}, crea},
        Comando{
            "importa"_L1, {}, {u"--totem"_s, u"--cartella"_s}, {u"il vecchio database"_s, u"la cartella"_s}, importa},
        Comando{"aggiorna"_L1, {}, {}, {u"la cartella"_s}, aggiorna},
        Comando{"disegna"_L1, {}, {}, {u"la cartella"_s, u"il layout"_s, u"il file"_s}, disegna},
        Comando{"salva"_L1, {}, {u"--tieni"_s}, {u"la cartella"_s, u"il file della copia"_s}, salva},
        Comando{"ripristina"_L1, {u"--sopra"_s}, {}, {u"il file della copia"_s, u"la cartella"_s}, ripristina},
        Comando{"elenca"_L1, {}, {}, {u"il file della copia"_s}, elenca},
        Comando{"verifica"_L1, {}, {}, {u"la cartella"_s}, verifica}};
    QStringList argomenti = QCoreApplication::arguments().mid(1);
    if (argomenti.isEmpty())
        return usoErrato(u"Manca il comando."_s);
    const QString nome = argomenti.takeFirst();
    if (nome == parolaLettore && argomenti.size() == 1)
        return leggiPerAltri(argomenti.first());
    if (nome == u"--help"_s || nome == u"-h"_s) {
        scrivi(stdout, istruzioni);
        return InOrdine;
    }
    if (nome == u"--version"_s) {
        scrivi(stdout, u"zuvora-installa %1\n"_s.arg(QCoreApplication::applicationVersion()));
        return InOrdine;
    }
    for (const Comando &comando : comandi)
        if (nome == comando.nome)
            return esegui(comando, argomenti);
    return usoErrato(u"Comando sconosciuto: %1"_s.arg(nome));
}
