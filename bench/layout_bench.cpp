// Saving and copying a layout against the same 70 statements through the C interface, with the store's journal and sync
// settings; and how long the reading of a layout takes.
#include "designer/logic/ImmaginiQt.h"
#include "designer/logic/LetturaLayout.h"
#include "designer/logic/Righe.h"
#include "designer/logic/ScritturaLayout.h"
#include "library/logic/CopiaLogica.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

// An installation with two layouts, in the current folder and not in a memory file system: syncs must cost what they
// cost.
class Banco {
public:
    Banco() {
        sqlite3_open(m_cartella.filePath(u"Zuvora.mdb"_s).toUtf8().constData(), &m_db);
        QFile schema(QStringLiteral(ZUVORA_SCHEMA));
        if (schema.open(QIODevice::ReadOnly))
            esegui("PRAGMA synchronous=OFF; BEGIN; " + schema.readAll() + "; COMMIT");
        for (const char *tabella : {"LayoutBase", "Layout1"})
            esegui(QByteArray("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<70) INSERT INTO ") +
                   tabella + "(DescCampo,testo,NomeFont) SELECT 'Elemento '||i,'Testo','Arial' FROM n");
        esegui("PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL");
    }
    ~Banco() { sqlite3_close(m_db); }
    Banco(const Banco &) = delete;
    Banco &operator=(const Banco &) = delete;

    void esegui(const QByteArray &sql) const { sqlite3_exec(m_db, sql.constData(), nullptr, nullptr, nullptr); }
    // New texts in the base, untimed: the engine writes nothing where a row stays as it was.
    void rinnova(benchmark::State &stato) const {
        stato.PauseTiming();
        esegui("UPDATE LayoutBase SET testo='Testo '||random()");
        stato.ResumeTiming();
    }
    sqlite3_stmt *prepara(const QByteArray &sql) const {
        sqlite3_stmt *s = nullptr;
        sqlite3_prepare_v2(m_db, sql.constData(), -1, &s, nullptr);
        return s;
    }
    QString cartella() const { return m_cartella.path(); }
    QString file(const QString &nome) const { return m_cartella.filePath(nome); }

private:
    QTemporaryDir m_cartella{u"bench-XXXXXX"_s};
    sqlite3 *m_db = nullptr;
};

void lega(sqlite3_stmt *s, int n, const Valore &v) {
    if (v.typeId() == QMetaType::QString) {
        const QByteArray testo = v.toString().toUtf8();
        sqlite3_bind_text(s, n, testo.constData(), static_cast<int>(testo.size()), SQLITE_TRANSIENT);
    } else {
        sqlite3_bind_double(s, n, v.toDouble());
    }
}

// "UPDATE ... SET a=?1,... WHERE rowid=?"; the row's number comes last.
QByteArray aggiorna(std::span<const ColonnaLayout> colonne) {
    QByteArray assegni;
    int n = 0;
    for (const ColonnaLayout c : colonne) {
        ++n;
        assegni += (n > 1 ? ",[" : "[") + nomeColonna(c).toUtf8() + "]=?" + QByteArray::number(n);
    }
    return "UPDATE Layout1 SET " + assegni + " WHERE rowid=?" + QByteArray::number(n + 1);
}

// Every row different from what the last save wrote.
void cambia(DisplayLayout &layout) {
    for (LayoutElement &e : layout) {
        e.area.top += 15;
        e.coloreSfondo += 1;
        e.didascalia = QString::number(e.area.top);
        e.immagine += u'x';
    }
}

void salvaNostro(benchmark::State &stato) {
    const Banco banco;
    DisplayLayout layout(u"Layout1"_s);
    for (auto _ : stato) {
        cambia(layout);
        if (!SalvaLayout(layout, banco.cartella()).completo())
            stato.SkipWithError("the save failed");
    }
    stato.counters["limite"] = 1.2;
}

void salvaMetro(benchmark::State &stato) {
    const Banco banco;
    DisplayLayout layout(u"Layout1"_s);
    std::vector<sqlite3_stmt *> istruzioni;
    for (const RigaLayout &riga : righe())
        istruzioni.push_back(banco.prepara(aggiorna(riga.scritte)));
    for (auto _ : stato) {
        cambia(layout);
        for (int posto = 0; posto < righeLayout; ++posto) {
            sqlite3_stmt *s = istruzioni[static_cast<std::size_t>(posto)];
            int n = 0;
            for (const ColonnaLayout c : righe()[static_cast<std::size_t>(posto)].scritte)
                lega(s, ++n, valoreDi(layout, posto, c));
            sqlite3_bind_int(s, n + 1, posto + 1);
            sqlite3_step(s);
            sqlite3_reset(s);
        }
    }
    std::ranges::for_each(istruzioni, sqlite3_finalize);
}

void copiaNostro(benchmark::State &stato) {
    const Banco banco;
    for (auto _ : stato) {
        banco.rinnova(stato);
        if (!copiaLayout(banco.cartella(), 0, 1).completo)
            stato.SkipWithError("the copy failed");
    }
    stato.counters["limite"] = 1.2;
}

void copiaMetro(benchmark::State &stato) {
    const Banco banco;
    std::array<ColonnaLayout, colonneLayout> tutte{};
    QByteArray elenco;
    for (int c = 0; c < colonneLayout; ++c) {
        tutte[static_cast<std::size_t>(c)] = static_cast<ColonnaLayout>(c);
        elenco += (c > 0 ? ",[" : "[") + nomeColonna(static_cast<ColonnaLayout>(c)).toUtf8() + ']';
    }
    sqlite3_stmt *leggi = banco.prepara("SELECT " + elenco + " FROM LayoutBase WHERE rowid=?1");
    sqlite3_stmt *scrivi = banco.prepara(aggiorna(tutte));
    for (auto _ : stato) {
        banco.rinnova(stato);
        for (int riga = 1; riga <= righeLayout; ++riga) {
            sqlite3_bind_int(leggi, 1, riga);
            sqlite3_step(leggi);
            for (int c = 0; c < colonneLayout; ++c)
                sqlite3_bind_value(scrivi, c + 1, sqlite3_column_value(leggi, c));
            sqlite3_reset(leggi);
            sqlite3_bind_int(scrivi, colonneLayout + 1, riga);
            sqlite3_step(scrivi);
            sqlite3_reset(scrivi);
        }
    }
    sqlite3_finalize(leggi);
    sqlite3_finalize(scrivi);
}

class SenzaImmagini final : public CaricatoreImmagini {
public:
    bool carica(const QString &) override { return true; }
};

// The rows alone.
void caricaRighe(benchmark::State &stato) {
    const Banco banco;
    SenzaImmagini immagini;
    for (auto _ : stato) {
        DisplayLayout layout(u"Layout1"_s);
        benchmark::DoNotOptimize(CaricaLayout(layout, immagini, banco.cartella()));
    }
}

// With a background of 1920 x 1080 and 25 decorations, each a picture of its own, decoded afresh.
void caricaImmagini(benchmark::State &stato) {
    const Banco banco;
    QImage(1920, 1080, QImage::Format_RGB32).save(banco.file(u"sfondo.jpg"_s));
    QImage decorazione(600, 400, QImage::Format_ARGB32);
    decorazione.fill(qRgba(200, 10, 10, 120));
    for (int i = 1; i <= numeroDecorazioni; ++i)
        decorazione.save(banco.file(u"%1.png"_s.arg(i)));
    const QByteArray cartella = banco.cartella().toUtf8();
    banco.esegui("UPDATE Layout1 SET Visibile=1; UPDATE Layout1 SET PercorsoImmagine='" + cartella +
                 "/sfondo.jpg' WHERE rowid=32; UPDATE Layout1 SET PercorsoImmagine='" + cartella +
                 "/'||(rowid-34)||'.png' WHERE rowid BETWEEN 35 AND 59");
    for (auto _ : stato) {
        ImmaginiQt immagini;
        DisplayLayout layout(u"Layout1"_s);
        if (!CaricaLayout(layout, immagini, banco.cartella()).avvisi.isEmpty())
            stato.SkipWithError("a picture is missing");
    }
}

const bool registrate = [] {
    const auto prepara = [](benchmark::internal::Benchmark *b, int ripetizioni) {
        b->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(ripetizioni)->ReportAggregatesOnly();
        b->ComputeStatistics("min", [](const std::vector<double> &v) { return *std::ranges::min_element(v); });
    };
    prepara(benchmark::RegisterBenchmark("SalvaLayout/nostro", salvaNostro)->Iterations(1), 25);
    prepara(benchmark::RegisterBenchmark("SalvaLayout/metro", salvaMetro)->Iterations(1), 25);
    prepara(benchmark::RegisterBenchmark("copia/nostro", copiaNostro)->Iterations(1), 25);
    prepara(benchmark::RegisterBenchmark("copia/metro", copiaMetro)->Iterations(1), 25);
    prepara(benchmark::RegisterBenchmark("carica/righe", caricaRighe)->MinTime(0.05), 5);
    prepara(benchmark::RegisterBenchmark("carica/immagini", caricaImmagini)->MinTime(0.05), 5);
    return true;
}();

} // namespace
