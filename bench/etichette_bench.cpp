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
#include <array>
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

constexpr int passi = 202; // the press, 200 moves, the release

// One drag that snaps to all the others; each step is painted before the next, the whole sheet of it. `tempi` keeps the
// least milliseconds that each step has taken, so that what disturbs the machine doesn't count.
void trascina(Foglio &foglio, std::array<double, passi> &tempi) {
    QWidget *vista = foglio.viewport();
    const QPoint inizio = foglio.posizioneSuSchermo(0).center();
    for (int passo = 0; passo < passi; ++passo) {
        const bool preme = passo == 0;
        const bool lascia = passo == passi - 1;
        const QPoint dove = preme ? inizio : inizio + QPoint(20 + passo, 20 + passo % 100);
        QElapsedTimer tempo;
        tempo.start();
        QMouseEvent e(preme    ? QEvent::MouseButtonPress
                      : lascia ? QEvent::MouseButtonRelease
                               : QEvent::MouseMove,
                      dove, vista->mapToGlobal(dove), preme || lascia ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
        QApplication::sendEvent(vista, &e);
        vista->repaint();
        double &minimo = tempi[std::size_t(passo)];
        minimo = std::min(minimo, static_cast<double>(tempo.nsecsElapsed()) / 1e6);
    }
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
    std::array<double, passi> tempi;
    for ([[maybe_unused]] auto giro : stato) {
        tempi.fill(1e9);
        for (int volte = 0; volte < 30; ++volte) {
            trascina(foglio, tempi);
            progetto.pila().undo();
            foglio.viewport()->repaint();
        }
        stato.SetIterationTime(*std::max_element(tempi.begin(), tempi.end()) / 1e3); // the worst step
    }
    stato.counters["metro"] = 8;
    stato.counters["limite"] = 1;
}
BENCHMARK(muoviTra300)->Name("muoviTra300/nostro")->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

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
