// The ticket designer: repainting the sheet while one object among 300 is moved; what 1,000 steps take of memory; the
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

void muoviTra300(benchmark::State &stato) {
    misura::preparaApplicazione();
    Progetto progetto(fitta());
    Foglio foglio(progetto, nullptr);
    foglio.resize(1000, 700);
    foglio.show();
    QApplication::processEvents();
    QWidget *vista = foglio.viewport();
    const QPoint inizio = foglio.posizioneSuSchermo(0).center();
    const auto manda = [&](QEvent::Type tipo, const QPoint &dove, Qt::MouseButton tasto) {
        QMouseEvent e(tipo, dove, vista->mapToGlobal(dove), tasto, Qt::LeftButton, Qt::AltModifier);
        QApplication::sendEvent(vista, &e);
    };
    manda(QEvent::MouseButtonPress, inizio, Qt::LeftButton);
    int passo = 0;
    double peggiore = 0;
    for ([[maybe_unused]] auto giro : stato) {
        QElapsedTimer tempo;
        tempo.start();
        manda(QEvent::MouseMove, inizio + QPoint(20 + passo % 200, 20 + passo % 100), Qt::NoButton);
        QApplication::processEvents();
        ++passo;
        peggiore = std::max(peggiore, static_cast<double>(tempo.nsecsElapsed()) / 1e6);
    }
    manda(QEvent::MouseButtonRelease, inizio, Qt::LeftButton);
    stato.counters["peggiore_ms"] = peggiore;
}
BENCHMARK(muoviTra300)->Unit(benchmark::kMillisecond);

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
    ->Iterations(5);

} // namespace
