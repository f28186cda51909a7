// Moving through the catalogue with the arrow keys, and the preview of a 30-megapixel photo with the window's longest
// standstill meanwhile.
#include "AmbienteMuto.h"
#include "Applicazione.h"
#include "library/forms/ImpostaCornice.h"
#include "library/forms/ImpostaSfondo.h"
#include "shell/host/Stile.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

constexpr QSize Foto{6720, 4480};

// The catalogue as it is installed.
class Catalogo {
public:
    Catalogo() {
        misura::preparaApplicazione();
        const QString dati = QStringLiteral(ZUVORA_DATI);
        QFile::link(dati + u"/ZuvoraDecorazioni"_s, m_cartella.filePath(u"ZuvoraDecorazioni"_s));
        QFile schema(dati + u"/schema/zuvora.sql"_s);
        QFile righe(dati + u"/decorazioni.csv"_s);
        if (!schema.open(QIODevice::ReadOnly) || !righe.open(QIODevice::ReadOnly))
            return;
        QByteArray sql = "BEGIN;" + schema.readAll();
        righe.readLine();
        while (!righe.atEnd()) {
            const QList<QByteArray> campi = righe.readLine().trimmed().split(',');
            sql += "INSERT INTO Decorazioni VALUES(" + campi.at(0) + ",'" + campi.at(1) + "'," + campi.at(2) + ");";
        }
        sqlite3 *db = nullptr;
        sqlite3_open(m_cartella.filePath(u"Zuvora.mdb"_s).toUtf8().constData(), &db);
        sqlite3_exec(db, (sql + "COMMIT;").constData(), nullptr, nullptr, nullptr);
        sqlite3_close(db);
        m_valori.PercorsoApplicazione = m_cartella.path();
    }
    Ambiente ambiente() { return {m_valori, m_dialoghi, m_piattaforma}; }

private:
    QTemporaryDir m_cartella;
    ValoriCondivisi m_valori;
    misura::NessunDialogo m_dialoghi;
    misura::NessunaPiattaforma m_piattaforma;
};

void premi(QWidget &w, int tasto) {
    QKeyEvent giu(QEvent::KeyPress, tasto, Qt::NoModifier);
    QApplication::sendEvent(&w, &giu);
}

// One key press until list and preview are painted; the slowest of all rows is what the user would notice.
void scorriCatalogo(benchmark::State &stato) {
    Catalogo catalogo;
    ImpostaCornice form(catalogo.ambiente(), 1, nullptr);
    form.show();
    auto &grid = *form.findChild<Grid *>();
    auto &anteprima = *form.findChild<AnteprimaImmagine *>();
    double massimo = 0;
    int categoria = 0;
    for (auto _ : stato) {
        if (grid.Row() + 1 >= grid.Rows()) {
            stato.PauseTiming();
            categoria = (categoria + 1) % 3;
            form.findChild<QRadioButton *>(u"RB1(%1)"_s.arg(categoria))->click();
            QApplication::processEvents();
            stato.ResumeTiming();
        }
        QElapsedTimer orologio;
        orologio.start();
        premi(grid, Qt::Key_Down);
        grid.viewport()->repaint();
        while (anteprima.stato() == AnteprimaImmagine::Stato::InCorso)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        anteprima.repaint();
        massimo = std::max(massimo, static_cast<double>(orologio.nsecsElapsed()) / 1e6);
        if (anteprima.stato() != AnteprimaImmagine::Stato::Mostrata) {
            stato.SkipWithError("a picture of the catalogue is missing");
            break;
        }
    }
    stato.counters["massimo_ms"] = massimo;
}

void preparaFoto(const QString &percorso) {
    QImage foto(Foto, QImage::Format_RGB32);
    unsigned caso = 1;
    for (int y = 0; y < foto.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(foto.scanLine(y));
        for (int x = 0; x < foto.width(); ++x) {
            caso = caso * 1664525U + 1013904223U; // grain, as of a camera
            const int grana = static_cast<int>(caso >> 28U);
            riga[x] =
                qRgb((x * 200 / foto.width()) + grana, (y * 200 / foto.height()) + grana, ((x ^ y) & 127) + grana);
        }
    }
    foto.save(percorso, "JPG", 90);
}

void anteprimaFoto(benchmark::State &stato) {
    misura::preparaApplicazione();
    static const QTemporaryDir cartella;
    const QString percorso = cartella.filePath(u"foto.jpg"_s);
    if (!QFile::exists(percorso))
        preparaFoto(percorso);
    QWidget finestra;
    finestra.resize(600, 500);
    AnteprimaImmagine anteprima(&finestra, "Image1", {120, 120, 7935, 5895}, Percorsi());
    finestra.show();
    double fermo = 0;
    for (auto _ : stato) {
        QElapsedTimer giro;
        giro.start();
        anteprima.mostra(percorso);
        do {
            QApplication::processEvents();
            fermo = std::max(fermo, static_cast<double>(giro.nsecsElapsed()) / 1e6);
            QThread::msleep(1);
            giro.restart();
        } while (anteprima.stato() == AnteprimaImmagine::Stato::InCorso);
        anteprima.repaint();
        if (anteprima.stato() != AnteprimaImmagine::Stato::Mostrata)
            stato.SkipWithError("the photo could not be read");
    }
    stato.counters["fermo_ms"] = fermo;
    stato.counters["MB"] = static_cast<double>(QFile(percorso).size()) / 1e6;
}

const bool registrate = [] {
    const auto prepara = [](benchmark::internal::Benchmark *b, int ripetizioni) {
        b->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(ripetizioni)->ReportAggregatesOnly();
        b->ComputeStatistics("min", [](const std::vector<double> &v) { return *std::ranges::min_element(v); });
    };
    prepara(benchmark::RegisterBenchmark("catalogo/riga", scorriCatalogo)->Iterations(171), 3);
    prepara(benchmark::RegisterBenchmark("foto/anteprima", anteprimaFoto)->Iterations(1), 5);
    return true;
}();

} // namespace
