// The ticket designer: the worst step of moving one object among 300 against 8 ms; what 1,000 steps take of memory; the
// command line's PDF against a program that writes one line in the same font into a PDF.
#include "Applicazione.h"
#include "etichette/designer/Foglio.h"
#include "etichette/logic/FileEtichetta.h"
#include "etichette/logic/Progetto.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

namespace {

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

// Texts, frames and codes in rows.
Etichetta fitta() {
    Etichetta e;
    e.carta.altezza = 2000;
    for (int i = 0; i < 300; ++i) {
        const TipoOggetto tipi[] = {TipoOggetto::Testo, TipoOggetto::Cornice, TipoOggetto::Codice};
        Oggetto o = nuovoOggetto(tipi[i % 3], QPoint(10 + i % 10 * 75, 10 + i / 10 * 60));
        o.area.setSize(QSize(70, 50));
        e.oggetti << o;
    }
    return e;
}

// One drag of 200 steps, snapping to all the others; each step is painted before the next, the whole sheet of it. The
// time is that of the worst step, press and release among them.
double trascina(Foglio &foglio, int oggetto) {
    QWidget *vista = foglio.viewport();
    const QPoint inizio = foglio.posizioneSuSchermo(oggetto).center();
    double peggiore = 0;
    const auto manda = [&](QEvent::Type tipo, const QPoint &dove, Qt::MouseButton tasto) {
        QElapsedTimer tempo;
        tempo.start();
        QMouseEvent e(tipo, dove, vista->mapToGlobal(dove), tasto, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(vista, &e);
        vista->repaint();
        peggiore = std::max(peggiore, static_cast<double>(tempo.nsecsElapsed()) / 1e9);
    };
    manda(QEvent::MouseButtonPress, inizio, Qt::LeftButton);
    for (int passo = 0; passo < 200; ++passo)
        manda(QEvent::MouseMove, inizio + QPoint(20 + passo, 20 + passo % 100), Qt::NoButton);
    manda(QEvent::MouseButtonRelease, inizio + QPoint(220, 120), Qt::LeftButton);
    return peggiore;
}

void muoviTra300(benchmark::State &stato) {
    misura::preparaApplicazione();
    Progetto progetto(fitta());
    Foglio foglio(progetto, nullptr);
    foglio.resize(1000, 700);
    foglio.adatta();
    foglio.show();
    QApplication::processEvents();
    foglio.viewport()->repaint(); // as it stands before anybody presses
    double peggiore = 0;
    int oggetto = 0;
    for ([[maybe_unused]] auto giro : stato) {
        const double questa = trascina(foglio, oggetto++ % 30);
        stato.SetIterationTime(questa);
        peggiore = std::max(peggiore, questa * 1000);
    }
    stato.counters["peggiore_ms"] = peggiore;
    stato.counters["metro"] = 8;
    stato.counters["limite"] = 1;
}
BENCHMARK(muoviTra300)->Name("muoviTra300/nostro")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);

void milleAnnulla(benchmark::State &stato) {
    misura::preparaApplicazione();
    double mega = 0;
    for ([[maybe_unused]] auto giro : stato) {
        Progetto progetto(fitta());
        const size_t prima = mallinfo2().uordblks;
        for (int i = 0; i < 1000; ++i) {
            progetto.scegli({i % 300});
            progetto.sposta(QPoint(i % 2 == 0 ? 1 : -1, 1));
        }
        if (progetto.pila().count() != 1000)
            stato.SkipWithError("the steps were not kept");
        mega = std::max(mega, static_cast<double>(mallinfo2().uordblks - prima) / 1e6);
    }
    stato.counters["MB"] = mega;
}
BENCHMARK(milleAnnulla)->Unit(benchmark::kMillisecond)->Iterations(3);

struct Totem {
    QTemporaryDir cartella;
    Totem() {
        sqlite3 *db = nullptr;
        sqlite3_open(cartella.filePath(u"TotemZuvora.mdb"_s).toUtf8().constData(), &db);
        sqlite3_exec(db,
                     "CREATE TABLE DatiDaStampareIMP (TitoloInstallazione TEXT, Lettera TEXT, Numero INTEGER, Servizio "
                     "TEXT, [Data] DATE, Ora DATE, PersoneInAttesa INTEGER, Messaggio TEXT);"
                     "INSERT INTO DatiDaStampareIMP VALUES ('Clinica', 'A', 152, 'Cassa', '2026-11-23', "
                     "'2026-11-23 10:25:07', 4, 'Grazie')",
                     nullptr, nullptr, nullptr);
        sqlite3_close(db);
        scriviEtichetta(cartella.filePath(u"Ticket.lbl"_s), modelliPronti().first().etichetta);
    }
};

double tempoDi(const QString &programma, const QStringList &argomenti) {
    QElapsedTimer tempo;
    tempo.start();
    const int codice = QProcess::execute(programma, argomenti);
    return codice == 0 ? static_cast<double>(tempo.nsecsElapsed()) / 1e9 : -1;
}

// Both programs in turns, so that the machine disturbs both alike.
void pdfDaRigaDiComando(benchmark::State &stato) {
    const Totem totem;
    const QString pdf = totem.cartella.filePath(u"b.pdf"_s);
    const QString famiglia = modelliPronti().first().etichetta.oggetti.first().stile.famiglia;
    double metro = 1e9;
    for ([[maybe_unused]] auto giro : stato) {
        const double nostro = tempoDi(QStringLiteral(ZUVORA_BIGLIETTO), {totem.cartella.path(), u"--pdf"_s, pdf});
        const double altro = tempoDi(QStringLiteral(ZUVORA_UNA_RIGA), {pdf, famiglia});
        if (nostro < 0 || altro < 0) {
            stato.SkipWithError("a program has failed");
            break;
        }
        metro = std::min(metro, altro);
        stato.SetIterationTime(nostro);
    }
    stato.counters["metro"] = metro * 1000;
    stato.counters["limite"] = 1.5;
}
BENCHMARK(pdfDaRigaDiComando)
    ->Name("pdfBiglietto/nostro")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(40)
    ->ReportAggregatesOnly()
    ->ComputeStatistics("min",
                        [](const std::vector<double> &giri) { return *std::min_element(giri.begin(), giri.end()); });

} // namespace
