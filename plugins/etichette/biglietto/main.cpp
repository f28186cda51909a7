// zuvora-biglietto: what the kiosk calls to print a ticket. Needs no display.
#include "etichette/biglietto/Argomenti.h"
#include "etichette/biglietto/Record.h"
#include "etichette/biglietto/Stampante.h"
#include "etichette/biglietto/Uscite.h"
#include "etichette/logic/FileEtichetta.h"
#include "shell/store/NomiFile.h"

#include <QDir>
#include <QGuiApplication>
#include <csignal>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace zuvora;

namespace {

constexpr int riuscito = 0;
constexpr int fallito = 1;
constexpr int usoErrato = 2;

void di(std::FILE *dove, const QString &testo) {
    std::fputs((testo + u'\n').toLocal8Bit().constData(), dove);
}

EsitoStampa esci(const Argomenti &a, const Etichetta &etichetta, const Valori &valori) {
    switch (a.uscita) {
    case Argomenti::Uscita::Pdf:
        return scriviPdf(a.destinazione, etichetta, valori);
    case Argomenti::Uscita::Png:
        return scriviPng(a.destinazione, etichetta, valori, a.dpi);
    case Argomenti::Uscita::Stampante:
        break;
    }
    return stampa(a.destinazione, etichetta, valori);
}

int esegui(const Argomenti &a) {
    const EtichettaLetta letta = leggiEtichetta(QDir(a.cartella).filePath(nomi::biglietto.toString()));
    if (!letta.etichetta) {
        di(stderr, u"Nessun biglietto stampato: Ticket.lbl nella cartella %1. %2"_s.arg(a.cartella, letta.motivo));
        return fallito;
    }
    RecordLetto record = leggiRecord(a.cartella, a.record);
    // Values of the command line may stand for a record that isn't there, never for another one than was asked for.
    if (!record.motivo.isEmpty() && (a.valori.isEmpty() || record.altri)) {
        di(stderr, u"Nessun biglietto stampato: "_s + record.motivo);
        return fallito;
    }
    for (const auto &[nome, testo] : a.valori)
        mettiValore(record.valori, nome, testo);
    const EsitoStampa esito = esci(a, *letta.etichetta, record.valori);
    for (const QString &avviso : esito.avvisi)
        di(stderr, u"Attenzione: "_s + avviso);
    if (!esito.motivo.isEmpty()) {
        di(stderr, u"Nessun biglietto stampato: "_s + esito.motivo);
        return fallito;
    }
    return riuscito;
}

} // namespace

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::signal(SIGXFSZ, SIG_IGN); // a file size limit is a failure to write, not the end of the program
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}); // English, for developers
    QGuiApplication applicazione(argc, argv);
    const ArgomentiLetti letti = leggiArgomenti(QGuiApplication::arguments().mid(1));
    if (letti.aiuto) {
        di(stdout, usoBiglietto());
        return riuscito;
    }
    if (!letti.argomenti) {
        di(stderr, letti.errore + u"\n\n"_s + usoBiglietto());
        return usoErrato;
    }
    return esegui(*letti.argomenti);
}
