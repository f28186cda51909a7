// The room of contents: a playlist of 20,000 lines against a bare loop, a key in the search for towns until the list is
// painted, a film until its first picture, and the window's longest standstill while a station or a path keeps silent.
#include "AmbienteMuto.h"
#include "Applicazione.h"
#include "content/forms/AnteprimaRadio.h"
#include "content/forms/AnteprimaVideo.h"
#include "content/forms/Form3.h"
#include "content/forms/ImpostaFoto.h"
#include "shell/logic/Percorsi.h"
#include "shell/logic/TestoAnsi.h"

#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

constexpr int Righe = 20000;

// A folder with a playlist whose files are all there, many lines a file.
class Sala {
public:
    Sala() {
        misura::preparaApplicazione();
        QByteArray testo;
        for (int n = 0; n < Righe; ++n) {
            const QString foto = m_cartella.filePath(u"foto%1.jpg"_s.arg(n % 500));
            if (n < 500)
                QFile(foto).open(QIODevice::WriteOnly);
            testo += foto.toLatin1() + "\r\n";
        }
        QFile file(playlist());
        file.open(QIODevice::WriteOnly);
        file.write(testo);
        file.close();
        QFile schema(QStringLiteral(ZUVORA_DATI) + u"/schema/zuvora.sql"_s);
        schema.open(QIODevice::ReadOnly);
        esegui(schema.readAll() + "INSERT INTO Configurazione (tempo) VALUES (20000);");
        m_valori.PercorsoApplicazione = m_cartella.path();
        m_piattaforma.cartella = QStringLiteral(ZUVORA_COMPONENTI);
        QDir::setCurrent(m_cartella.path());
    }
    ~Sala() { QDir::setCurrent(m_prima); }
    Sala(const Sala &) = delete;
    Sala &operator=(const Sala &) = delete;
    QString playlist() const { return m_cartella.filePath(u"sala.zvi"_s); }
    Ambiente ambiente() { return {m_valori, m_dialoghi, m_piattaforma}; }
    void esegui(const QByteArray &sql) const {
        sqlite3 *db = nullptr;
        sqlite3_open(m_cartella.filePath(u"Zuvora.mdb"_s).toUtf8().constData(), &db);
        sqlite3_exec(db, sql.constData(), nullptr, nullptr, nullptr);
        sqlite3_close(db);
    }

private:
    QString m_prima = QDir::currentPath();
    QTemporaryDir m_cartella;
    ValoriCondivisi m_valori;
    misura::NessunDialogo m_dialoghi;
    misura::NessunaPiattaforma m_piattaforma;
};

// As the form does it: read, fill the list, ask for every file beside the window, write the report.
void apriNostro(benchmark::State &stato) {
    Sala sala;
    ImpostaFoto form(sala.ambiente(), nullptr);
    auto &elenco = *form.findChild<FileListBox *>(u"File2"_s);
    const QString rapporto = u"FileImmaginiMancanti.txt"_s;
    double fermo = 0;
    for (auto _ : stato) {
        QFile::remove(rapporto);
        QElapsedTimer clic;
        clic.start();
        Q_EMIT elenco.cliccato();
        fermo = std::max(fermo, static_cast<double>(clic.nsecsElapsed()) / 1e6);
        while (!QFile::exists(rapporto))
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    stato.counters["fermo_ms"] = fermo;
    stato.counters["limite"] = 2;
}

void apriMetro(benchmark::State &stato) {
    const Sala sala;
    for (auto _ : stato) {
        QFile file(sala.playlist());
        file.open(QIODevice::ReadOnly);
        int mancano = 0;
        while (!file.atEnd()) {
            const QByteArray riga = file.readLine().trimmed();
            struct stat esito {};
            mancano += stat(riga.constData(), &esito) == 0 ? 0 : 1;
        }
        benchmark::DoNotOptimize(mancano);
    }
}

void salvaNostro(benchmark::State &stato) {
    const Sala sala;
    const QStringList righe = leggiRighe(sala.playlist()).righe;
    for (auto _ : stato)
        if (!scriviRighe(sala.playlist(), righe).isEmpty())
            stato.SkipWithError("not written");
    stato.counters["limite"] = 2;
}

void salvaMetro(benchmark::State &stato) {
    const Sala sala;
    QFile file(sala.playlist());
    file.open(QIODevice::ReadOnly);
    const QByteArray testo = file.readAll();
    const QByteArray nome = (sala.playlist() + u'2').toUtf8();
    for (auto _ : stato) {
        // A file that is there only when it is whole begins as a new one, on either side.
        const int f = open(nome.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        if (write(f, testo.constData(), static_cast<size_t>(testo.size())) != testo.size())
            stato.SkipWithError("not written");
        fsync(f);
        close(f);
        stato.PauseTiming();
        unlink(nome.constData());
        stato.ResumeTiming();
    }
}

// The keys of a name, one by one, each until the list of towns is painted.
void tastoComuni(benchmark::State &stato) {
    Sala sala;
    QFile comuni(QStringLiteral(ZUVORA_COMUNI));
    comuni.open(QIODevice::ReadOnly);
    comuni.readLine();
    QByteArray sql = "BEGIN;";
    while (!comuni.atEnd())
        sql += "INSERT INTO ComuniMeteo (Codice,Comune,Provincia,Regione) VALUES ('" +
               comuni.readLine().trimmed().replace("'", "''").replace(",", "','") + "');";
    sala.esegui(sql + "COMMIT");
    Form3 form(sala.ambiente(), u"https://meteo.example"_s, nullptr);
    form.show();
    auto &cerca = *form.findChild<QLineEdit *>(u"Text4"_s);
    auto &grid = *form.findChild<Grid *>();
    const QString nome = u"roccasecca"_s;
    double massimo = 0;
    qsizetype quale = 0;
    for (auto _ : stato) {
        const QString c(nome.at(quale % nome.size()));
        if (quale++ % nome.size() == 0) {
            stato.PauseTiming();
            cerca.clear();
            stato.ResumeTiming();
        }
        QElapsedTimer tasto;
        tasto.start();
        QKeyEvent giu(QEvent::KeyPress, c.front().toUpper().unicode(), Qt::NoModifier, c);
        QApplication::sendEvent(&cerca, &giu);
        grid.viewport()->repaint();
        massimo = std::max(massimo, static_cast<double>(tasto.nsecsElapsed()) / 1e6);
    }
    stato.counters["massimo_ms"] = massimo;
}

// From the click to the first picture; the first run loads the component too.
void primaImmagine(benchmark::State &stato) {
    Sala sala;
    double massimo = 0;
    for (auto _ : stato) {
        QElapsedTimer clic;
        clic.start();
        AnteprimaVideo form(sala.ambiente(), QStringLiteral(ZUVORA_DATI) + u"/esempio/Filmati/mare_al_tramonto.mp4"_s,
                            nullptr);
        form.show();
        auto &MP1 = *form.findChild<Riproduttore *>();
        const auto &posizione = *form.findChild<QSlider *>(u"posizione"_s);
        while (posizione.value() == 0 && MP1.avviso().isEmpty())
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        if (!MP1.avviso().isEmpty())
            stato.SkipWithError("the film does not play");
        massimo = std::max(massimo, static_cast<double>(clic.nsecsElapsed()) / 1e6);
    }
    stato.counters["massimo_ms"] = massimo;
}

// Longest gap of a timer of 5 ms over a second.
double buco(const std::function<void()> &dopo) {
    QTimer battito;
    battito.setTimerType(Qt::PreciseTimer);
    QElapsedTimer prima;
    qint64 massimo = 0;
    QObject::connect(&battito, &QTimer::timeout, &battito,
                     [&] { massimo = std::max(massimo, prima.nsecsElapsed()), prima.restart(); });
    prima.start();
    battito.start(5);
    dopo();
    QElapsedTimer durata;
    durata.start();
    while (durata.elapsed() < 1000)
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return static_cast<double>(massimo) / 1e6;
}

void stazioneMuta(benchmark::State &stato) {
    Sala sala;
    QTcpServer muto;
    muto.listen(QHostAddress::LocalHost);
    const QString indirizzo = u"http://127.0.0.1:%1/"_s.arg(muto.serverPort());
    double fermo = 0;
    double ferma = 0;
    for (auto _ : stato) {
        ferma = std::max(ferma, buco([] {}));
        AnteprimaRadio prova(sala.ambiente(), {u"prova"_s, indirizzo}, nullptr);
        prova.show(); // loads the component
        while (!muto.hasPendingConnections())
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        fermo = std::max(fermo, buco([] {}));
        AnteprimaRadio altra(sala.ambiente(), {u"altra"_s, indirizzo}, nullptr);
        fermo = std::max(fermo, buco([&] { altra.show(); }));
    }
    stato.counters["fermo_ms"] = fermo;
    stato.counters["form_ferma_ms"] = ferma;
}

// A machine one folder of which never answers; the threads that ask for it stay behind.
class DiscoMuto : public SistemaLocale {
public:
    Specie specie(const QString &percorso) const override {
        attendi(percorso);
        return SistemaLocale::specie(percorso);
    }
    QStringList nomi(const QString &cartella) const override {
        attendi(cartella);
        return SistemaLocale::nomi(cartella);
    }

private:
    static void attendi(const QString &percorso) {
        while (percorso.startsWith(u"/mnt/nas"_s))
            std::this_thread::sleep_for(std::chrono::hours(1));
    }
};

// A playlist on a share that hangs: the list, the preview of an entry, files dropped on the list.
void percorsoMuto(benchmark::State &stato) {
    Sala sala;
    QFile file(sala.playlist());
    file.open(QIODevice::WriteOnly);
    file.write(QByteArray("/mnt/nas/foto.jpg\r\n").repeated(100));
    file.close();
    double fermo = 0;
    double ferma = 0;
    QTimer lettore; // presses the button of the box that tells of the missing files
    QObject::connect(&lettore, &QTimer::timeout, &lettore, [] {
        if (QWidget *box = QApplication::activeModalWidget())
            box->close();
    });
    lettore.start(20);
    for (auto _ : stato) {
        Ambiente ambiente = sala.ambiente();
        ambiente.percorsi = Percorsi(std::make_shared<DiscoMuto>());
        ImpostaFoto form(ambiente, nullptr);
        form.show();
        auto &List2 = *form.findChild<ListBox *>(u"List2"_s);
        if (List2.count() != 100)
            stato.SkipWithError("the list does not fill at once");
        fermo = std::max(fermo, buco([&] {
                             Q_EMIT form.findChild<FileListBox *>(u"File2"_s)->cliccato();
                             List2.setCurrentRow(7);
                             Q_EMIT List2.cliccato();
                             Q_EMIT List2.fileRilasciati({u"/mnt/nas/altra.jpg"_s});
                         }));
        form.findChild<Button *>(u"Command5"_s)->click();
        ImpostaFoto quieta(sala.ambiente(), nullptr);
        quieta.show();
        ferma = std::max(ferma, buco([] {}));
    }
    stato.counters["fermo_ms"] = fermo;
    stato.counters["form_ferma_ms"] = ferma;
}

const bool registrate = [] {
    const auto prepara = [](const char *nome, void (*f)(benchmark::State &), int giri, int ripetizioni) {
        auto *b = benchmark::RegisterBenchmark(nome, f);
        b->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(giri);
        b->Repetitions(ripetizioni)->ReportAggregatesOnly();
        b->ComputeStatistics("min", [](const std::vector<double> &v) { return *std::ranges::min_element(v); });
    };
    prepara("playlist_apri/nostro", apriNostro, 3, 5);
    prepara("playlist_apri/metro", apriMetro, 3, 5);
    prepara("playlist_salva/nostro", salvaNostro, 3, 5);
    prepara("playlist_salva/metro", salvaMetro, 3, 5);
    prepara("comuni/tasto", tastoComuni, 50, 3);
    prepara("film/prima_immagine", primaImmagine, 1, 3);
    prepara("radio/muta", stazioneMuta, 1, 2);
    prepara("percorso/muto", percorsoMuto, 1, 3);
    return true;
}();

} // namespace
