// The store against the bare C interface, on the same file with the same journal and sync settings.
#include "shell/store/Data.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
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

void salvaNostro(benchmark::State &stato) {
    const Banco banco;
    Data d;
    double valore = 0;
    for (auto _ : stato) {
        Recordset &rs = apri(d, banco.cartella(), u"Layout1"_s);
        for (int riga = 0; riga < kRighe; ++riga) {
            rs.Edit();
            for (const char16_t *colonna : kColonne)
                rs[colonna].SetValue(valore);
            rs.Update();
            rs.MoveNext();
            valore += 1;
        }
    }
    stato.counters["limite"] = 1.2;
}

void salvaMetro(benchmark::State &stato) {
    const Banco banco;
    QByteArray sql = "UPDATE Layout1 SET ";
    for (size_t i = 0; i < kColonne.size(); ++i)
        sql += (i > 0 ? ",[" : "[") + QString::fromUtf16(kColonne.at(i)).toUtf8() + "]=?" + QByteArray::number(i + 1);
    sqlite3_stmt *s = banco.prepara(sql + " WHERE rowid=?17");
    double valore = 0;
    for (auto _ : stato) {
        for (int riga = 1; riga <= kRighe; ++riga) {
            for (int i = 1; i <= 16; ++i)
                sqlite3_bind_double(s, i, valore);
            sqlite3_bind_int(s, 17, riga);
            sqlite3_step(s);
            sqlite3_reset(s);
            valore += 1;
        }
    }
    sqlite3_finalize(s);
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
        b->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(ripetizioni)->ReportAggregatesOnly();
        b->ComputeStatistics("min", [](const std::vector<double> &v) { return *std::ranges::min_element(v); });
    };
    prepara(benchmark::RegisterBenchmark("salva70/nostro", salvaNostro)->Iterations(1), 25);
    prepara(benchmark::RegisterBenchmark("salva70/metro", salvaMetro)->Iterations(1), 25);
    for (const auto &[nome, testo] :
         {std::pair("comuni_rom", u"rom"_s), std::pair("comuni_s", u"s"_s), std::pair("comuni_tutti", QString())}) {
        const std::string inizio = nome;
        prepara(benchmark::RegisterBenchmark((inizio + "/nostro").c_str(), cercaNostro, testo)->MinTime(0.05), 9);
        prepara(benchmark::RegisterBenchmark((inizio + "/metro").c_str(), cercaMetro, testo)->MinTime(0.05), 9);
    }
    return true;
}();

} // namespace
