#include "installer/Crea.h"
#include "installer/Verifica.h"

#include <QCoreApplication>
#include <array>
#include <csignal>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace zuvora::installa;

namespace {
enum Uscita { InOrdine = 0, NonRiuscito = 1, UsoErrato = 2 };

const auto istruzioni = u"Uso: zuvora-installa COMANDO\n"
                        "\n"
                        "Comandi:\n"
                        "  crea [--esempio] CARTELLA   crea un'installazione completa nella cartella, nuova o vuota;\n"
                        "                              con --esempio aggiunge contenuti di esempio\n"
                        "  verifica CARTELLA           controlla un'installazione senza modificarla: una riga per\n"
                        "                              ogni difetto\n"
                        "  --help                      mostra queste istruzioni\n"
                        "  --version                   mostra la versione\n"
                        "\n"
                        "Esito: 0 tutto in ordine, 1 non riuscito o difetti trovati, 2 comando errato.\n"_s;

void scrivi(std::FILE *dove, const QString &testo) {
    std::fputs(testo.toLocal8Bit().constData(), dove);
}

int usoErrato(const QString &motivo) {
    scrivi(stderr, motivo + u"\n\n"_s + istruzioni);
    return UsoErrato;
}

// Takes `opzione` out of the arguments; true when it was there.
bool prendi(QStringList &argomenti, const QString &opzione) {
    return argomenti.removeAll(opzione) > 0;
}

int crea(const QStringList &dati) {
    QStringList argomenti = dati;
    OpzioniCrea opzioni;
    opzioni.esempio = prendi(argomenti, u"--esempio"_s);
    opzioni.cartella = argomenti.value(0);
    const Esito esito = creaInstallazione(opzioni);
    scrivi(esito.riuscito ? stdout : stderr, esito.messaggio + u'\n');
    return esito.riuscito ? InOrdine : NonRiuscito;
}

int verifica(const QStringList &argomenti) {
    const QStringList difetti = verificaInstallazione(argomenti.value(0));
    for (const QString &difetto : difetti)
        scrivi(stdout, difetto + u'\n');
    if (difetti.isEmpty())
        scrivi(stdout, u"Installazione in ordine.\n"_s);
    return difetti.isEmpty() ? InOrdine : NonRiuscito;
}

struct Comando {
    QLatin1StringView nome;
    QStringList opzioni;
    int (*esegui)(const QStringList &argomenti); // its options and one folder
};

int esegui(const Comando &comando, const QStringList &argomenti) {
    int cartelle = 0;
    for (const QString &argomento : argomenti) {
        if (argomento.startsWith(u'-') && !comando.opzioni.contains(argomento))
            return usoErrato(u"Opzione sconosciuta: %1"_s.arg(argomento));
        cartelle += argomento.startsWith(u'-') ? 0 : 1;
    }
    if (cartelle != 1)
        return usoErrato(cartelle == 0 ? u"Manca la cartella."_s : u"Indicare una sola cartella."_s);
    return comando.esegui(argomenti);
}
} // namespace

int main(int argc, char **argv) {
    // A limit on file sizes must fail the write, with a message, not end the process half-way.
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    const QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(ZUVORA_VERSIONE));

    const std::array comandi{Comando{"crea"_L1, {u"--esempio"_s}, crea}, Comando{"verifica"_L1, {}, verifica}};
    QStringList argomenti = QCoreApplication::arguments().mid(1);
    if (argomenti.isEmpty())
        return usoErrato(u"Manca il comando."_s);
    const QString nome = argomenti.takeFirst();
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
