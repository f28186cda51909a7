// The store against the bare C interface, on the same file with the same journal and sync settings.
#include "shell/store/Data.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <sqlite3.h>

namespace {

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

constexpr int kRighe = 70;
constexpr int kVisibili = 20; // rows that a list shows at once
constexpr std::array kColonne{u"DescCampo",
                              u"Top",
                              u"Left",
                              u"Testo",
                              u"NomeFont",
                              u"DimFont",
                              u"FontBold",
                              u"FontItalic",
                              u"ColoreSfondo",
                              u"ColoreTesto",
                              u"Allineamento",
                              u"Altezza",
                              u"Larghezza",
                              u"Visibile",
                              u"PercorsoImmagine",
                              u"SfondoTestoTrasparente"};
constexpr const char *kSchema = R"(
PRAGMA synchronous=OFF; BEGIN;
CREATE TABLE Layout1(DescCampo TEXT, Top REAL, [Left] REAL, Testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN,
 FontItalic BOOLEAN, ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Altezza REAL, Larghezza REAL,
 Visibile BOOLEAN, PercorsoImmagine TEXT, SfondoTestoTrasparente BOOLEAN);
CREATE TABLE ComuniMeteo(ID INTEGER PRIMARY KEY, Codice TEXT, Comune TEXT COLLATE NOCASE, Provincia TEXT, Regione TEXT);
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<70)
 INSERT INTO Layout1 SELECT 'Elemento'||i, i*15, i*30, 'Testo', 'Arial', 12, 0, 0, 255, 0, 2, 300, 900, 1, '', 1 FROM n;
COMMIT;
)";

// A made database in a folder of its own, and a bare connection on it with the store's settings.
class Banco {
public:
    Banco() {
        sqlite3_open((m_cartella.filePath(u"Zuvora.mdb"_s)).toUtf8().constData(), &m_db);
        esegui(kSchema);
        comuni();
        esegui("PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL");
    }
    ~Banco() { sqlite3_close(m_db); }
    Banco(const Banco &) = delete;
    Banco &operator=(const Banco &) = delete;

    sqlite3_stmt *prepara(const QByteArray &sql) const {
        sqlite3_stmt *s = nullptr;
        sqlite3_prepare_v2(m_db, sql.constData(), -1, &s, nullptr);
        return s;
    }
    QString cartella() const { return m_cartella.path(); }
    int quantiComuni() const { return m_comuni; }

private:
    void esegui(const char *sql) { sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr); }
    void comuni() {
        QFile file(QStringLiteral(ZUVORA_COMUNI));
        if (!file.open(QIODevice::ReadOnly))
            return;
        file.readLine();
        esegui("BEGIN");
        sqlite3_stmt *s = prepara("INSERT INTO ComuniMeteo(Codice,Comune,Provincia,Regione) VALUES(?1,?2,?3,?4)");
        while (!file.atEnd()) {
            const QList<QByteArray> campi = file.readLine().trimmed().split(',');
            for (int i = 0; i < 4 && i < campi.size(); ++i)
                sqlite3_bind_text(s, i + 1, campi[i].constData(), static_cast<int>(campi[i].size()), SQLITE_TRANSIENT);
            sqlite3_step(s);
            sqlite3_reset(s);
            ++m_comuni;
        }
        sqlite3_finalize(s);
        esegui("COMMIT");
    }

    // In the current folder, not in a memory file system: syncs must cost what they cost.
    QTemporaryDir m_cartella{u"bench-XXXXXX"_s};
    sqlite3 *m_db = nullptr;
    int m_comuni = 0;
};

using Orologio = std::chrono::steady_clock;

double secondi(Orologio::time_point da) {
    return std::chrono::duration<double>(Orologio::now() - da).count();
}

// 70 rows saved by both sides in turns, update by update, each on a file of its own. Where other programs keep the disk
// busy a single update takes anything from one to fifty milliseconds: a side's time is 70 times its median update.
class Salvataggio {
public:
    Salvataggio() {
        QByteArray sql = "UPDATE Layout1 SET ";
        for (size_t i = 0; i < kColonne.size(); ++i)
            sql +=
                (i > 0 ? ",[" : "[") + QString::fromUtf16(kColonne.at(i)).toUtf8() + "]=?" + QByteArray::number(i + 1);
        m_aggiorna = m_metro.prepara(sql + " WHERE rowid=?17");
    }
    ~Salvataggio() { sqlite3_finalize(m_aggiorna); }
    Salvataggio(const Salvataggio &) = delete;
    Salvataggio &operator=(const Salvataggio &) = delete;

    struct Tempi {
        double nostro = 0;
        double metro = 0;
    };
    Tempi salva() {
        std::array<double, kRighe> nostri{};
        std::array<double, kRighe> metri{};
        auto inizio = Orologio::now();
        Recordset &rs = apri(m_dato, m_nostro.cartella(), u"Layout1"_s);
        const double apertura = secondi(inizio);
        for (size_t riga = 0; riga < kRighe; ++riga) {
            m_valore += 1;
            inizio = Orologio::now();
            aggiornaNostra(rs);
            nostri.at(riga) = secondi(inizio);
            inizio = Orologio::now();
            aggiornaMetro(static_cast<int>(riga) + 1);
            metri.at(riga) = secondi(inizio);
        }
        return {apertura + kRighe * mediana(nostri), kRighe * mediana(metri)};
    }

private:
    static double mediana(std::array<double, kRighe> &tempi) {
        std::ranges::nth_element(tempi, tempi.begin() + kRighe / 2);
        return tempi.at(kRighe / 2);
    }
    void aggiornaNostra(Recordset &rs) const {
        rs.Edit();
        for (const char16_t *colonna : kColonne)
            rs[colonna].SetValue(m_valore);
        rs.Update();
        rs.MoveNext();
    }
    void aggiornaMetro(int riga) const {
        for (int i = 1; i <= 16; ++i)
            sqlite3_bind_double(m_aggiorna, i, m_valore);
        sqlite3_bind_int(m_aggiorna, 17, riga);
        sqlite3_step(m_aggiorna);
        sqlite3_reset(m_aggiorna);
    }

    Banco m_nostro;
    Banco m_metro;
    Data m_dato;
    sqlite3_stmt *m_aggiorna = nullptr;
    double m_valore = 0;
};

void salvaNostro(benchmark::State &stato) {
    Salvataggio salvataggio;
    for (auto _ : stato) {
        const auto [nostro, metro] = salvataggio.salva();
        stato.SetIterationTime(nostro);
        stato.counters["metro"] = metro * 1000;
    }
    stato.counters["limite"] = 1.2;
}

void cercaNostro(benchmark::State &stato, const QString &testo) {
    const Banco banco;
    if (banco.quantiComuni() == 0) {
        stato.SkipWithError("data/comuni.csv is missing");
        return;
    }
    Data d;
    for (auto _ : stato) {
        Recordset &rs = apri(d, banco.cartella(),
                             u"select * from ComuniMeteo where [Comune] like'"_s + testo + u"*' order by [comune]"_s);
        for (int riga = 0; riga < kVisibili; ++riga)
            for (int colonna = 0; colonna < 5; ++colonna)
                benchmark::DoNotOptimize(rs.leggi(riga, colonna));
        stato.counters["righe"] = rs.RecordCount();
    }
    stato.counters["limite"] = 3;
}

void cercaMetro(benchmark::State &stato, const QString &testo) {
    const Banco banco;
    const QByteArray sql = "select * from ComuniMeteo where [Comune] like'" + testo.toUtf8() + "%' order by [comune]";
    for (auto _ : stato) {
        sqlite3_stmt *s = banco.prepara(sql);
        int righe = 0;
        for (; sqlite3_step(s) == SQLITE_ROW; ++righe)
            for (int colonna = 0; righe < kVisibili && colonna < 5; ++colonna)
                benchmark::DoNotOptimize(sqlite3_column_text(s, colonna));
        sqlite3_finalize(s);
        stato.counters["righe"] = righe;
    }
}

const bool kRegistrate = [] {
    const auto prepara = [](benchmark::internal::Benchmark *b, int ripetizioni) {
        b->Unit(benchmark::kMillisecond)->Repetitions(ripetizioni)->ReportAggregatesOnly();
        b->ComputeStatistics("min", [](const std::vector<double> &v) { return *std::ranges::min_element(v); });
    };
    prepara(benchmark::RegisterBenchmark("salva70/nostro", salvaNostro)->UseManualTime()->Iterations(1), 20);
    for (const auto &[nome, testo] :
         {std::pair("comuni_rom", u"rom"_s), std::pair("comuni_s", u"s"_s), std::pair("comuni_tutti", QString())}) {
        const std::string inizio = nome;
        prepara(benchmark::RegisterBenchmark((inizio + "/nostro").c_str(), cercaNostro, testo)
                    ->UseRealTime()
                    ->MinTime(0.05),
                9);
        prepara(
            benchmark::RegisterBenchmark((inizio + "/metro").c_str(), cercaMetro, testo)->UseRealTime()->MinTime(0.05),
            9);
    }
    return true;
}();

} // namespace
